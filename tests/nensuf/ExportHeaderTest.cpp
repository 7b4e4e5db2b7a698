#include "nensuf/ExportHeader.h"

#include "core/modStrings.h"
#include "tests/nensuf/ExportTest.h"

namespace korvande::testing {
namespace {

class ExportHeader : public ExportTest {
 protected:
    ExportHeader() {
        OwnerRec& owner = translation.owner;
        owner.NameLong = u"GEMEENTE MOLVEREN";
        owner.NameShort = u"MOLV";
        owner.Street = u"KERKSTRAAT";
        owner.Number = u"12";
        owner.Extra = u"A";
        owner.ZipCode = u"7391KX";
        owner.Town = u"MOLVEREN";
    }

    // The header's lines; each is 64 columns.
    std::vector<std::string> HeaderLines() {
        std::string text;
        LineWriter output;
        output.OpenBytes(text);
        WriteExportHeader(output, translation.mode.variant, translation.owner);
        output.Close();
        std::erase(text, '\r');
        std::vector<std::string> lines = SplitLines(text);
        for (const std::string& line : lines) EXPECT_EQ(line.size(), 64U) << line;
        return lines;
    }
};

// What stands in columns `from` to `to`, counted from 1.
struct Columns {
    std::size_t from;
    std::size_t to;
    std::string content;
};

void ExpectColumns(const std::string& line, const std::vector<Columns>& expected) {
    std::size_t next = 1;
    for (const Columns& columns : expected) {
        EXPECT_EQ(columns.from, next) << "the table skips columns";
        EXPECT_EQ(line.substr(columns.from - 1, columns.to - columns.from + 1), columns.content) << columns.from;
        next = columns.to + 1;
    }
    EXPECT_EQ(next, 65U);
}

std::string Blanks(std::size_t count) { return PadRight({}, count); }

TEST_F(ExportHeader, TheFirstRecordOfSuf2) {
    translation.mode.variant = Variant::Suf2;
    ExpectColumns(HeaderLines()[0], {{1, 3, "010"},
                                     {4, 14, Blanks(11)},
                                     {15, 21, "V      "},
                                     {22, 27, "202405"},
                                     {28, 34, Blanks(7)},
                                     {35, 50, "VAIKLI, LisCAD  "},
                                     {51, 62, Blanks(12)},
                                     {63, 64, "01"}});
}

TEST_F(ExportHeader, Suf2HasTwoLinesAndNoOwner) {
    translation.mode.variant = Variant::Suf2;
    const auto lines = HeaderLines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1], "02010201             0         0         1         0         101");
}

TEST_F(ExportHeader, TheFirstRecordOfNen1878) {
    ExpectColumns(HeaderLines()[0], {{1, 3, "010"},
                                     {4, 14, "NEN1878    "},
                                     {15, 15, "V"},
                                     {16, 21, "202405"},
                                     {22, 27, "202405"},
                                     {28, 34, Blanks(7)},
                                     {35, 38, "0101"},
                                     {39, 41, "S05"},
                                     {42, 62, Blanks(21)},
                                     {63, 64, "01"}});
}

TEST_F(ExportHeader, Nen1878HasFiveLinesWithTheOwnerBehindTheSecond) {
    const auto lines = HeaderLines();
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[1], "020102150201         0         0         1         0         101");
    EXPECT_EQ(lines[2].substr(0, 3), "07N");
    EXPECT_EQ(lines[3].substr(0, 3), "07A");
    EXPECT_EQ(lines[4].substr(0, 3), "07W");
}

TEST_F(ExportHeader, TheOwnersName) {
    ExpectColumns(HeaderLines()[2], {{1, 3, "07N"},
                                     {4, 38, "GEMEENTE MOLVEREN" + Blanks(18)},
                                     {39, 53, Blanks(14) + "K"},
                                     {54, 61, "MOLV    "},
                                     {62, 64, " 00"}});
}

TEST_F(ExportHeader, TheOwnersAddress) {
    ExpectColumns(HeaderLines()[3], {{1, 3, "07A"},
                                     {4, 27, "KERKSTRAAT" + Blanks(14)},
                                     {28, 32, "12   "},
                                     {33, 37, "A    "},
                                     {38, 53, Blanks(15) + "P"},
                                     {54, 59, "7391KX"},
                                     {60, 64, "   00"}});
}

TEST_F(ExportHeader, TheOwnersTown) {
    ExpectColumns(HeaderLines()[4],
                  {{1, 3, "07W"}, {4, 27, "MOLVEREN" + Blanks(16)}, {28, 62, Blanks(35)}, {63, 64, "01"}});
}

TEST_F(ExportHeader, BlankOwnerFieldsGiveSpaces) {
    OwnerRec& owner = translation.owner;
    owner.NameLong = u"";
    owner.NameShort = u"";
    owner.Street = u"";
    owner.Number = u"";
    owner.Extra = u"";
    owner.ZipCode = u"";
    owner.Town = u"";
    const auto lines = HeaderLines();
    EXPECT_EQ(lines[2], "07N" + Blanks(49) + "K" + Blanks(9) + "00");
    EXPECT_EQ(lines[3], "07A" + Blanks(49) + "P" + Blanks(9) + "00");
    EXPECT_EQ(lines[4], "07W" + Blanks(59) + "01");
}

TEST_F(ExportHeader, OwnerFieldsThatAreTooLongAreCut) {
    OwnerRec& owner = translation.owner;
    owner.NameLong = Text(36, u'A');
    owner.NameShort = Text(9, u'B');
    owner.Street = Text(25, u'C');
    owner.Number = Text(6, u'D');
    owner.Extra = Text(6, u'E');
    owner.ZipCode = Text(7, u'F');
    owner.Town = Text(25, u'G');
    const auto lines = HeaderLines();
    EXPECT_EQ(lines[2], "07N" + std::string(35, 'A') + Blanks(14) + "KBBBBBBBB 00");
    EXPECT_EQ(lines[3], "07A" + std::string(24, 'C') + "DDDDDEEEEE" + Blanks(15) + "PFFFFFF   00");
    EXPECT_EQ(lines[4], "07W" + std::string(24, 'G') + Blanks(35) + "01");
}

TEST_F(ExportHeader, AccentsInTheOwnersNameAreSingleBytes) {
    translation.owner.Town = u"'s-Gravenpolder é";
    EXPECT_EQ(HeaderLines()[4].substr(3, 18), "'s-Gravenpolder \xE9 ");
}

}  // namespace
}  // namespace korvande::testing
