#include "core/RuntimeError.h"

#include <cerrno>
#include <new>
#include <stdexcept>

namespace korvande {

namespace {

TextView DescriptionOf(int number) {
    switch (number) {
        case errors::invalidCall:
            return u"Ongeldige aanroep";
        case errors::overflow:
            return u"Overloop";
        case errors::outOfMemory:
            return u"Onvoldoende geheugen";
        case errors::subscriptOutOfRange:
            return u"Index buiten bereik";
        case errors::typeMismatch:
            return u"Typen komen niet overeen";
        case errors::badFileName:
            return u"Ongeldige bestandsnaam of ongeldig bestandsnummer";
        case errors::fileNotFound:
            return u"Bestand niet gevonden";
        case errors::fileAlreadyOpen:
            return u"Bestand al geopend";
        case errors::diskFull:
            return u"Schijf vol";
        case errors::inputPastEnd:
            return u"Invoer voorbij het einde van het bestand";
        case errors::accessDenied:
            return u"Toegang geweigerd";
        case errors::deviceNotReady:
            return u"Station niet gereed";
        case errors::pathAccess:
            return u"Fout bij toegang tot pad of bestand";
        case errors::pathNotFound:
            return u"Pad niet gevonden";
        default:
            return u"Onbekende fout";
    }
}

}  // namespace

RuntimeError::RuntimeError(int errorNumber) : RuntimeError(errorNumber, DescriptionOf(errorNumber)) {}

RuntimeError::RuntimeError(int errorNumber, TextView errorDescription)
    : number(errorNumber), description(errorDescription), utf8(ToUtf8(errorDescription)) {}

int ErrorNumberOf(int systemError) noexcept {
    switch (systemError) {
        case ENOENT:
            return errors::fileNotFound;
        case ENOTDIR:
            return errors::pathNotFound;
        case EACCES:
        case EPERM:
        case EROFS:
        case EBUSY:
        case ETXTBSY:
            return errors::accessDenied;
        case ENOSPC:
        case EFBIG:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return errors::diskFull;
        case ENOMEM:
            return errors::outOfMemory;
        case EINVAL:
        case ELOOP:
        case ENAMETOOLONG:
            return errors::badFileName;
        case ENXIO:
        case ENODEV:
            return errors::deviceNotReady;
        default:
            return errors::pathAccess;
    }
}

RuntimeError CurrentError() {
    try {
        throw;
    } catch (const RuntimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return RuntimeError(errors::outOfMemory);
    } catch (const std::length_error&) {
        return RuntimeError(errors::outOfMemory);
    }
}

}  // namespace korvande
