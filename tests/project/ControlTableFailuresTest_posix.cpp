#include <gtest/gtest.h>

#include "tests/project/ProjectTest.h"

namespace korvande::testing {

namespace {

class PosixControlTables : public ProjectTest {};

TEST_F(PosixControlTables, AFileThatOpensButCannotBeReadIsReported) {
    EXPECT_FALSE(LoadFile(u"/proc/self/mem"));
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Kon bestand: '/proc/self/mem' niet openen;\nFoutcode: "
                                                        "75\nFout bij toegang tot pad of bestand"});
}

}  // namespace

}  // namespace korvande::testing
