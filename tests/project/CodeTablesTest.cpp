#include "project/CodeTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "tests/support/ProgramState.h"

namespace korvande::testing {

namespace {

CodeKey Key(TextView code) { return MakeFixedText<7>(code); }

void AddRow(CodeTable& table, TextView liscadCode, TextView lkiCode) {
    CodeRow row{};
    row.LiscadCode = liscadCode;
    row.LkiCode = lkiCode;
    row.Type = row.Type = TextView();
    row.Description = TextView();
    table.rows.push_back(row);
    table.RowsChanged();
}

// One of the six lookups with its table.
struct LookupCase {
    std::int32_t (*find)(const CodeKey&);
    CodeTable& (*table)();
    FixedText<7> CodeRow::*field;
    char16_t letter;
};
constexpr std::array<LookupCase, 6> lookups = {{{LookupPointByLiscadCode, PointCodes, &CodeRow::LiscadCode, u'P'},
                                                {LookupLineByLiscadCode, LineCodes, &CodeRow::LiscadCode, u'L'},
                                                {LookupTextByLiscadCode, TextCodes, &CodeRow::LiscadCode, u'T'},
                                                {LookupPointCode, PointCodes, &CodeRow::LkiCode, u'P'},
                                                {LookupLineCode, LineCodes, &CodeRow::LkiCode, u'L'},
                                                {LookupTextCode, TextCodes, &CodeRow::LkiCode, u'T'}}};

class CodeTables : public ProgramTest {};

TEST_F(CodeTables, EachLookupSearchesItsFieldOfItsTable) {
    AddRow(PointCodes(), u"BOOM", u"S01");
    AddRow(LineCodes(), u"MUUR", u"B05");
    AddRow(TextCodes(), u"NAAM", u"Z02");
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"BOOM")), 1);
    EXPECT_EQ(LookupLineByLiscadCode(Key(u"MUUR")), 1);
    EXPECT_EQ(LookupTextByLiscadCode(Key(u"NAAM")), 1);
    EXPECT_EQ(LookupPointCode(Key(u"S01")), 1);
    EXPECT_EQ(LookupLineCode(Key(u"B05")), 1);
    EXPECT_EQ(LookupTextCode(Key(u"Z02")), 1);
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"MUUR")), 0);
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"S01")), 0);
    EXPECT_EQ(LookupLineCode(Key(u"Z02")), 0);
}

TEST_F(CodeTables, ATableWithItsUnknownRowOnlyKnowsNoCode) {
    SaveGridData();
    for (const LookupCase& lookup : lookups) {
        ASSERT_EQ(lookup.table().rows.size(), 1U);
        EXPECT_EQ(lookup.find(Key(u"X")), 0);
        EXPECT_EQ(lookup.find(lookup.table().rows[0].*lookup.field), 0);
    }
    EXPECT_EQ(PointCodes().rows[0].Count, 4);
}

TEST_F(CodeTables, OfRowsWithTheSameCodeTheLowestPlacedIsFound) {
    AddRow(PointCodes(), u"A", u"Q1");
    AddRow(PointCodes(), u"B", u"Q2");
    AddRow(PointCodes(), u"A", u"Q2");
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"A")), 3);
    EXPECT_EQ(LookupPointCode(Key(u"Q2")), 3);
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"B")), 2);
}

TEST_F(CodeTables, ACodeAskedTwiceInARowIsSearchedOnceAndCountedTwice) {
    AddRow(PointCodes(), u"A", u"Q1");
    const std::int64_t before = PointCodes().byLiscad.SearchCount();
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"A")), 1);
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"A")), 1);
    EXPECT_EQ(PointCodes().byLiscad.SearchCount() - before, 1);
    EXPECT_EQ(PointCodes().rows[1].Count, 2);
    LookupPointByLiscadCode(Key(u"B"));
    LookupPointByLiscadCode(Key(u"A"));
    EXPECT_EQ(PointCodes().byLiscad.SearchCount() - before, 3);
}

TEST_F(CodeTables, AnUnknownCodeAskedTwiceInARowIsSearchedOnceToo) {
    const std::int64_t before = LineCodes().byLki.SearchCount();
    EXPECT_EQ(LookupLineCode(Key(u"X")), 0);
    EXPECT_EQ(LookupLineCode(Key(u"X")), 0);
    EXPECT_EQ(LineCodes().byLki.SearchCount() - before, 1);
    EXPECT_EQ(LineCodes().rows[0].Count, 2);
}

TEST_F(CodeTables, TheMemoriesOfTheLookupsAreSeparate) {
    AddRow(PointCodes(), u"A", u"B");
    AddRow(PointCodes(), u"B", u"A");
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"A")), 1);
    EXPECT_EQ(LookupPointCode(Key(u"A")), 2);
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"A")), 1);
    EXPECT_EQ(LookupLineByLiscadCode(Key(u"A")), 0);
}

TEST_F(CodeTables, ARebuiltTableIsNotMetByAnOldMemory) {
    frmKORVANDE().gridPoints.SetRowCount(3);
    frmKORVANDE().gridPoints[2][Grid::Liscad] = u"A";
    SaveGridData();
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"A")), 1);
    frmKORVANDE().gridPoints.SetRowCount(2);
    SaveGridData();
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"A")), 0);
    ResetProject();
    AddRow(PointCodes(), u"A", u"Q1");
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"A")), 1);
}

TEST_F(CodeTables, CaseMatters) {
    AddRow(PointCodes(), u"AB", u"Q1");
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"ab")), 0);
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"AB")), 1);
}

TEST_F(CodeTables, CodesAreComparedOnSevenPaddedCharacters) {
    AddRow(PointCodes(), u"ABCDEFGHI", u"Q1");
    AddRow(PointCodes(), u"", u"Q2");
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"ABCDEFGXX")), 1);
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"ABCDEF")), 0);
    EXPECT_EQ(LookupPointByLiscadCode(Key(u" ABCDEF")), 0);
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"   ")), 2);
}

TEST_F(CodeTables, ACodeThatWasNeverFilledIsNotTheBlankCode) {
    AddRow(PointCodes(), u"", u"Q1");
    EXPECT_EQ(LookupPointByLiscadCode(CodeKey{}), 0);
}

TEST_F(CodeTables, TheUnknownRowIsNoAnswerToItsOwnCode) {
    AddRow(PointCodes(), u"A", u"Q1");
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"STANDRD")), 0);
    AddRow(PointCodes(), u"STANDRD", u"Q1");
    EXPECT_EQ(LookupPointByLiscadCode(Key(u"STANDRD")), 2);
}

TEST_F(CodeTables, UnknownCodesAreTalliedWhenTheExportBoxIsSet) {
    frmKORVANDE().chkExportUnknowns = true;
    for (const LookupCase& lookup : lookups) {
        TheDrawing().UnknownCodes.Reset();
        lookup.find(Key(u"X"));
        lookup.find(Key(u"X"));
        const auto& entries = TheDrawing().UnknownCodes.Entries();
        ASSERT_EQ(entries.size(), 1U);
        EXPECT_EQ(entries[0].Code.View(), Concat(Text(1, lookup.letter), u"X      "));
        EXPECT_EQ(entries[0].Count, 2);
    }
}

TEST_F(CodeTables, UnknownCodesAreNotTalliedOtherwise) {
    frmKORVANDE().chkExportUnknowns = false;
    frmKORVANDE().chkImportUnknowns = true;
    for (const LookupCase& lookup : lookups) lookup.find(Key(u"X"));
    EXPECT_TRUE(TheDrawing().UnknownCodes.Entries().empty());
    EXPECT_EQ(PointCodes().rows[0].Count, 2);
}

TEST_F(CodeTables, KnownCodesAreNotTallied) {
    frmKORVANDE().chkExportUnknowns = true;
    AddRow(PointCodes(), u"A", u"Q1");
    LookupPointByLiscadCode(Key(u"A"));
    EXPECT_TRUE(TheDrawing().UnknownCodes.Entries().empty());
    EXPECT_EQ(PointCodes().rows[0].Count, 0);
}

TEST_F(CodeTables, ATableWithoutAnyRowCountsNothing) {
    frmKORVANDE().chkExportUnknowns = true;
    for (const LookupCase& lookup : lookups) {
        lookup.table().rows.clear();
        lookup.table().RowsChanged();
        EXPECT_EQ(lookup.find(Key(u"A")), 0);
    }
    EXPECT_TRUE(TheDrawing().UnknownCodes.Entries().empty());
}

// What a lookup says must be what a plain search from the last row up says.
std::int32_t PlainSearch(const CodeTable& table, FixedText<7> CodeRow::*field, const CodeKey& key) {
    for (std::size_t row = table.rows.size() - 1; row > 0; --row) {
        if (table.rows[row].*field == key) return static_cast<std::int32_t>(row);
    }
    return 0;
}

TEST_F(CodeTables, LookupsAnswerAsAPlainSearchFromTheLastRow) {
    std::mt19937 random(20240514);
    const auto below = [&random](unsigned limit) { return static_cast<std::size_t>(random() % limit); };
    const auto code = [&below] {
        Text text;
        for (std::size_t length = below(9); length > 0; --length) text.push_back(u"ABa é\0"[below(6)]);
        return below(40) == 0 ? CodeKey{} : Key(text);
    };
    for (int round = 0; round < 60; ++round) {
        for (const LookupCase& lookup : lookups) {
            std::vector<CodeRow>& rows = lookup.table().rows;
            rows.assign(1 + below(300), CodeRow{});
            for (CodeRow& row : rows) {
                row.LiscadCode = code();
                row.LkiCode = code();
            }
            lookup.table().RowsChanged();
            for (int i = 0; i < 200; ++i) {
                const CodeKey key =
                    below(2) == 0 ? code() : rows[below(static_cast<unsigned>(rows.size()))].*lookup.field;
                const std::int32_t expected = PlainSearch(lookup.table(), lookup.field, key);
                const std::int32_t count = rows[static_cast<std::size_t>(expected)].Count;
                ASSERT_EQ(lookup.find(key), expected) << ToUtf8(key.View());
                ASSERT_EQ(rows[static_cast<std::size_t>(expected)].Count, count + 1);
            }
        }
    }
}

}  // namespace

}  // namespace korvande::testing
