#include <filesystem>

#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

class PosixPatterns : public CliTest {};

TEST_F(PosixPatterns, WhatTheShellLeftIsAName) {
    folder.Write("*.idx", smallIdex);
    folder.Write("b.idx", smallIdex);
    std::filesystem::create_directory(folder.Path() + "/uit");
    const ProgramResult result = Translate("idex-nen1878", {"--uitvoermap", "uit", "*.idx"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(IsThere("uit/*.sfn"));
    EXPECT_FALSE(IsThere("uit/b.sfn"));
    EXPECT_EQ(Run({"controleer", "?.idx"}).status, 3);
}

}  // namespace

}  // namespace korvande::testing
