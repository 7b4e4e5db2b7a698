#include <gtest/gtest.h>

#include "tests/support/TestFiles.h"

// The sample street in the other formats is what the program makes of the IDEX file.
namespace korvande::testing {

namespace {

std::string BytesInSource(const std::string& name) { return FileBytes(FromUtf8(KORVANDE_SOURCE_DIR "/" + name)); }

TEST(Samples, TheStreetInNen1878IsTheProgramsOwn) {
    const std::string sample = BytesInSource("samples/straat.sfn");
    EXPECT_FALSE(sample.empty());
    EXPECT_EQ(sample, BytesInSource("tests/golden/sample_idex_to_nen1878/verwacht/straat.sfn"));
}

TEST(Samples, TheStreetInSuf2IsTheProgramsOwn) {
    const std::string sample = BytesInSource("samples/straat.sf2");
    EXPECT_FALSE(sample.empty());
    EXPECT_EQ(sample, BytesInSource("tests/golden/sample_idex_to_suf2/verwacht/straat.sf2"));
}

}  // namespace

}  // namespace korvande::testing
