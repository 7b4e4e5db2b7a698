#include "library/Handle.h"

#include <exception>
#include <stdexcept>

#include "library/CallbackScreen.h"

namespace korvande {

void TellError(korvande_handle& handle, TextView message) noexcept {
    try {
        handle.error = HandedOut(message);
    } catch (const std::exception&) {
        handle.hasNoMemoryForError = true;
    }
}

int TellCurrentError(korvande_handle& handle) noexcept {
    try {
        throw;
    } catch (const WrongUse& error) {
        TellError(handle, error.message);
        return KORVANDE_WRONG_USE;
    } catch (const TranslationAborted&) {
        TellError(handle, u"Afgebroken.");
    } catch (const RuntimeError& error) {
        TellError(handle, error.Description());
    } catch (const std::bad_alloc&) {
        handle.hasNoMemoryForError = true;
    } catch (const std::length_error&) {
        handle.hasNoMemoryForError = true;
    } catch (...) {
        TellError(handle, u"Onbekende fout");
    }
    return KORVANDE_FAILED;
}

}  // namespace korvande
