#include "core/RuntimeError.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <new>
#include <stdexcept>
#include <string>

namespace korvande::testing {

namespace {

TEST(RuntimeError, EveryNumberHasItsDescription) {
    struct Row {
        int number;
        int meaning;
        const char* description;
    };
    constexpr Row rows[] = {
        {5, errors::invalidCall, "Ongeldige aanroep"},
        {6, errors::overflow, "Overloop"},
        {7, errors::outOfMemory, "Onvoldoende geheugen"},
        {9, errors::subscriptOutOfRange, "Index buiten bereik"},
        {13, errors::typeMismatch, "Typen komen niet overeen"},
        {52, errors::badFileName, "Ongeldige bestandsnaam of ongeldig bestandsnummer"},
        {53, errors::fileNotFound, "Bestand niet gevonden"},
        {55, errors::fileAlreadyOpen, "Bestand al geopend"},
        {61, errors::diskFull, "Schijf vol"},
        {62, errors::inputPastEnd, "Invoer voorbij het einde van het bestand"},
        {70, errors::accessDenied, "Toegang geweigerd"},
        {71, errors::deviceNotReady, "Station niet gereed"},
        {75, errors::pathAccess, "Fout bij toegang tot pad of bestand"},
        {76, errors::pathNotFound, "Pad niet gevonden"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.meaning, row.number);
        const RuntimeError error(row.number);
        EXPECT_EQ(error.Number(), row.number);
        EXPECT_EQ(ToUtf8(error.Description()), row.description);
        EXPECT_STREQ(error.what(), row.description);
    }
}

TEST(RuntimeError, ADescriptionOfItsOwnTakesTheUsualOnesPlace) {
    const RuntimeError error(errors::subscriptOutOfRange, u"Regelnummer é buiten bereik");
    EXPECT_EQ(error.Number(), 9);
    EXPECT_EQ(error.Description(), u"Regelnummer é buiten bereik");
    EXPECT_STREQ(error.what(), "Regelnummer é buiten bereik");
}

TEST(RuntimeError, ANumberWithoutMeaningIsUnknown) { EXPECT_EQ(RuntimeError(12345).Description(), u"Onbekende fout"); }

TEST(RuntimeError, ASystemErrorHasARunTimeErrorNumber) {
    struct Row {
        int systemError;
        int number;
    };
    constexpr Row rows[] = {
        {ENOENT, 53}, {ENOTDIR, 76}, {EACCES, 70}, {EPERM, 70},        {EROFS, 70}, {EBUSY, 70},  {ETXTBSY, 70},
        {ENOSPC, 61}, {EFBIG, 61},   {ENOMEM, 7},  {ENAMETOOLONG, 52}, {ELOOP, 52}, {EINVAL, 52}, {ENXIO, 71},
        {ENODEV, 71}, {EISDIR, 75},  {EIO, 75},    {EMFILE, 75},       {0, 75},
    };
#ifdef EDQUOT
    EXPECT_EQ(ErrorNumberOf(EDQUOT), 61);
#endif
    for (const Row& row : rows) EXPECT_EQ(ErrorNumberOf(row.systemError), row.number) << row.systemError;
}

template <class Thrown>
RuntimeError ErrorFor(const Thrown& thrown) {
    try {
        throw thrown;
    } catch (...) {
        return CurrentError();
    }
}

TEST(RuntimeError, TheErrorBeingHandledIsFound) {
    EXPECT_EQ(ErrorFor(RuntimeError(55)).Number(), 55);
    EXPECT_EQ(ErrorFor(RuntimeError(9, u"eigen")).Description(), u"eigen");
}

TEST(RuntimeError, AnAllocationThatFailsIsError7) {
    EXPECT_EQ(ErrorFor(std::bad_alloc()).Number(), 7);
    EXPECT_EQ(ErrorFor(std::length_error("vector")).Number(), 7);
}

TEST(RuntimeError, AnyOtherExceptionGoesOnItsWay) {
    EXPECT_THROW(ErrorFor(std::logic_error("bug")), std::logic_error);
    EXPECT_THROW(ErrorFor(TranslationAborted()), TranslationAborted);
}

}  // namespace

}  // namespace korvande::testing
