#include "core/VersionText.h"

#include <gtest/gtest.h>

#include "core/Version.h"

namespace korvande::testing {

namespace {

TEST(VersionText, ItHasANoughtBeforeTheSecondAndTheThirdNumber) {
    EXPECT_EQ(VersionText(), Concat(versionMajor, u".0", versionMinor, u".0", versionRevision));
    EXPECT_EQ(VersionText(), u"8.01.064");
}

}  // namespace

}  // namespace korvande::testing
