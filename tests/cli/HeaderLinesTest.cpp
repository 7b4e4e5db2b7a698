#include <gtest/gtest.h>

#include <algorithm>

#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

// The lines of an exchange file, without their ends, changed one by one.
template <typename Change>
std::string WithLines(const std::string& bytes, Change change) {
    std::string changed;
    for (std::size_t at = 0; at < bytes.size(); at += recordBytes) {
        changed += change(bytes.substr(at, recordBytes - 2), at / recordBytes) + "\r\n";
    }
    return changed;
}

// Checks and translates exchange files whose lines are not as they should be.
class HeaderLines : public CliTest {
 protected:
    HeaderLines() { folder.Write("t.nst", smallTable); }

    // Expects each to be read like the file that it was made of.
    void ExpectReadLike(const std::string& usual, const std::string& changed) {
        const bool isSuf2 = usual == smallSuf2;
        EXPECT_NE(changed, usual);
        const std::string wanted = CheckOf(usual);
        EXPECT_TRUE(wanted.starts_with(isSuf2 ? "0 (SUF2)\n" : "1 (NEN1878)\n")) << wanted;
        EXPECT_EQ(CheckOf(changed), wanted) << changed;
        const std::string translated = TranslationOf(usual, isSuf2);
        EXPECT_TRUE(Has(translated, "1000.0000")) << translated;
        EXPECT_EQ(TranslationOf(changed, isSuf2), translated) << changed;
    }

    // The status of a check and what it prints behind the name of the file.
    std::string CheckOf(const std::string& bytes) {
        folder.Write("in", bytes);
        const ProgramResult result = Run({"controleer", "--project", "t.nst", "in"});
        const std::string text = result.output + result.error;
        return std::to_string(result.status) + text.substr(std::min(text.find(" ("), text.size()));
    }

    // The status of a translation and the file that it makes.
    std::string TranslationOf(const std::string& bytes, bool isSuf2) {
        folder.Write("in", bytes);
        folder.Write("uit", "");
        const int status = Translate(isSuf2 ? "suf2-idex" : "nen1878-idex", {"--project", "t.nst", "in", "uit"}).status;
        return std::to_string(status) + Bytes("uit");
    }
};

TEST_F(HeaderLines, OfSixtyThreeCharactersAreReadLikeWholeOnes) {
    for (const std::string& usual : {smallNen1878, smallSuf2}) {
        ExpectReadLike(usual, WithLines(usual, [](const std::string& line, std::size_t index) {
                           return index < 2 ? line.substr(1) : line;
                       }));
    }
}

TEST_F(HeaderLines, WithABlankInColumn1AreReadLikeWholeOnes) {
    for (const std::string& usual : {smallNen1878, smallSuf2}) {
        ExpectReadLike(usual, WithLines(usual, [](const std::string& line, std::size_t) {
                           return line[0] == '0' ? " " + line.substr(1) : line;
                       }));
    }
}

TEST_F(HeaderLines, OfSeventyCharactersAreReadByTheirLastSixtyFour) {
    for (const std::string& usual : {smallNen1878, smallSuf2}) {
        ExpectReadLike(usual, WithLines(usual, [](const std::string& line, std::size_t) { return "      " + line; }));
    }
}

TEST_F(HeaderLines, MayStandBehindLinesOfWhiteSpace) {
    for (const std::string& usual : {smallNen1878, smallSuf2}) ExpectReadLike(usual, "\r\n \t \r\n" + usual);
}

TEST_F(HeaderLines, AndAllOthersMayHaveBlanksBehindThem) {
    for (const std::string blanks : {" ", "                "}) {
        for (const std::string& usual : {smallNen1878, smallSuf2}) {
            ExpectReadLike(usual,
                           WithLines(usual, [&blanks](const std::string& line, std::size_t) { return line + blanks; }));
        }
    }
}

TEST_F(HeaderLines, AClosingRecordMayBeShort) {
    ExpectReadLike(smallNen1878, smallNen1878.substr(0, smallNen1878.find("99   ")) + "99\r\n");
}

TEST_F(HeaderLines, ThatAreNoneAfterAllAreTold) {
    const std::string noFrame = smallNen1878.substr(1, recordBytes) + smallNen1878.substr(2 * recordBytes);
    EXPECT_EQ(CheckOf(noFrame), "3");
    EXPECT_EQ(TranslationOf(noFrame, false), "3");
    EXPECT_TRUE(Has(Log("LOG"), "FOUT:  NEN1878 bestand bevat geen '02' (KOP) record.")) << Log("LOG");
}

}  // namespace

}  // namespace korvande::testing
