#include <gtest/gtest.h>
#include <sqlite3.h>

namespace korvande::testing {

namespace {

// How the library of databases that is part of the Windows programs was made.
TEST(LinkedSqlite, WasBuiltWithWhatAGeoPackageNeedsAndWithoutTheLoadingOfCode) {
    EXPECT_NE(sqlite3_compileoption_used("OMIT_LOAD_EXTENSION"), 0);
    EXPECT_NE(sqlite3_compileoption_used("DQS=0"), 0) << "a name that is not there would be taken for a text";
    EXPECT_NE(sqlite3_compileoption_used("THREADSAFE=1"), 0);
    EXPECT_NE(sqlite3_compileoption_used("ENABLE_RTREE"), 0);
}

}  // namespace

}  // namespace korvande::testing
