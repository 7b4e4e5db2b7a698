#include "project/CodeTables.h"

#include <array>
#include <random>

#include "tests/project/ProjectTest.h"

namespace korvande::testing {

namespace {

CodeKey Key(TextView code) { return MakeFixedText<7>(code); }

void AddRow(CodeTable& table, TextView liscadCode, TextView lkiCode) {
    CodeRow row{};
    row.LiscadCode = liscadCode;
    row.LkiCode = lkiCode;
    row.Type = TextView();
    row.Description = TextView();
    table.rows.push_back(row);
    table.RowsChanged();
}

// The two ways to find a row.
struct FindCase {
    std::int32_t (*find)(CodeTable&, const CodeKey&);
    FixedText<7> CodeRow::*field;
};
constexpr std::array<FindCase, 2> finds = {{{FindLiscadCode, &CodeRow::LiscadCode}, {FindLkiCode, &CodeRow::LkiCode}}};

class CodeTablesTest : public ProjectTest {
 protected:
    std::array<CodeTable*, 3> tables = {&pointTable, &lineTable, &textTable};
};

TEST_F(CodeTablesTest, AResetLeavesOneUnknownRowInEach) {
    for (CodeTable* table : tables) {
        table->rows.resize(5);
        table->rows[0].Type = u"DUMMY";
        CountUse(*table, 0, 7);
    }
    ResetCodeTables(project.codes);
    EXPECT_EQ(TableText(pointTable), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\n");
    EXPECT_EQ(TableText(lineTable), "STANDRD|Q00|LIJN|ONBEKEND LIJNOBJECT|0|0|0\n");
    EXPECT_EQ(TableText(textTable), "STANDRD|Z19||ONBEKEND TEKSTOBJECT|0|0|0\n");
    EXPECT_EQ(pointTable.rows[0].Count, 0);
    EXPECT_FALSE(textTable.rows[0].Type.NeverFilled());
}

TEST_F(CodeTablesTest, EachHasItsLetter) {
    EXPECT_EQ(pointTable.letter, u'P');
    EXPECT_EQ(lineTable.letter, u'L');
    EXPECT_EQ(textTable.letter, u'T');
}

TEST_F(CodeTablesTest, ARowIsFoundByEitherCodeInItsOwnTable) {
    AddRow(pointTable, u"BOOM", u"S01");
    AddRow(lineTable, u"MUUR", u"B05");
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"BOOM")), 1);
    EXPECT_EQ(FindLkiCode(pointTable, Key(u"S01")), 1);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"S01")), 0);
    EXPECT_EQ(FindLkiCode(pointTable, Key(u"BOOM")), 0);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"MUUR")), 0);
    EXPECT_EQ(FindLkiCode(lineTable, Key(u"B05")), 1);
}

TEST_F(CodeTablesTest, FindingCountsNothing) {
    AddRow(pointTable, u"BOOM", u"S01");
    for (const FindCase& entry : finds) {
        entry.find(pointTable, Key(u"BOOM"));
        entry.find(pointTable, Key(u"S01"));
    }
    EXPECT_EQ(pointTable.rows[0].Count, 0);
    EXPECT_EQ(pointTable.rows[1].Count, 0);
}

TEST_F(CodeTablesTest, UsesAreForgottenInEveryTable) {
    CodeTables codes;
    ResetCodeTables(codes);
    for (CodeTable* const table : {&codes.points, &codes.lines, &codes.texts}) {
        CountUse(*table, 0, 3);
        CountUse(*table, 0);
        EXPECT_EQ(table->rows[0].Count, 4);
        EXPECT_EQ(table->used, std::vector<std::int32_t>{0}) << "each row once";
    }
    ForgetUses(codes);
    for (const CodeTable* const table : {&codes.points, &codes.lines, &codes.texts}) {
        EXPECT_EQ(table->rows[0].Count, 0);
        EXPECT_EQ(table->rows.size(), 1U);
        EXPECT_TRUE(table->used.empty());
    }
}

TEST_F(CodeTablesTest, UsesOfRowsThatAreNoLongerThereAreForgotten) {
    AddRow(lineTable, u"MUUR", u"B05");
    CountUse(lineTable, 1);
    CountUse(lineTable, 0);
    lineTable.rows.resize(1);
    lineTable.RowsChanged();
    EXPECT_EQ(lineTable.rows[0].Count, 0);
    EXPECT_TRUE(lineTable.used.empty());
}

TEST_F(CodeTablesTest, AUseIsCountedInItsRow) {
    AddRow(lineTable, u"MUUR", u"B05");
    CountUse(lineTable, 1);
    CountUse(lineTable, 0);
    CountUse(lineTable, 1);
    EXPECT_EQ(lineTable.rows[0].Count, 1);
    EXPECT_EQ(lineTable.rows[1].Count, 2);
    EXPECT_EQ(pointTable.rows[0].Count, 0);
}

TEST_F(CodeTablesTest, ATableWithItsUnknownRowOnlyKnowsNoCode) {
    for (CodeTable* table : tables) {
        for (const FindCase& entry : finds) {
            ASSERT_EQ(table->rows.size(), 1U);
            EXPECT_EQ(entry.find(*table, Key(u"X")), 0);
            EXPECT_EQ(entry.find(*table, table->rows[0].*entry.field), 0);
        }
    }
}

TEST_F(CodeTablesTest, ATableWithoutAnyRowKnowsNoCodeAndCountsNoUse) {
    for (CodeTable* table : tables) {
        table->rows.clear();
        table->RowsChanged();
        for (const FindCase& entry : finds) EXPECT_EQ(entry.find(*table, Key(u"A")), 0);
        CountUse(*table, 0);
        EXPECT_TRUE(table->rows.empty());
    }
}

TEST_F(CodeTablesTest, OfRowsWithTheSameCodeTheLowestPlacedIsFound) {
    AddRow(pointTable, u"A", u"Q1");
    AddRow(pointTable, u"B", u"Q2");
    AddRow(pointTable, u"A", u"Q2");
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"A")), 3);
    EXPECT_EQ(FindLkiCode(pointTable, Key(u"Q2")), 3);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"B")), 2);
}

TEST_F(CodeTablesTest, ACodeAskedTwiceInARowIsSearchedOnce) {
    AddRow(pointTable, u"A", u"Q1");
    const std::int64_t before = pointTable.byLiscad.SearchCount();
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"A")), 1);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"A")), 1);
    EXPECT_EQ(pointTable.byLiscad.SearchCount() - before, 1);
    FindLiscadCode(pointTable, Key(u"B"));
    FindLiscadCode(pointTable, Key(u"A"));
    EXPECT_EQ(pointTable.byLiscad.SearchCount() - before, 3);
}

TEST_F(CodeTablesTest, AnUnknownCodeAskedTwiceInARowIsSearchedOnceToo) {
    const std::int64_t before = lineTable.byLki.SearchCount();
    EXPECT_EQ(FindLkiCode(lineTable, Key(u"X")), 0);
    EXPECT_EQ(FindLkiCode(lineTable, Key(u"X")), 0);
    EXPECT_EQ(lineTable.byLki.SearchCount() - before, 1);
}

TEST_F(CodeTablesTest, TheMemoriesOfTheLookupsAreSeparate) {
    AddRow(pointTable, u"A", u"B");
    AddRow(pointTable, u"B", u"A");
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"A")), 1);
    EXPECT_EQ(FindLkiCode(pointTable, Key(u"A")), 2);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"A")), 1);
    EXPECT_EQ(FindLiscadCode(lineTable, Key(u"A")), 0);
}

TEST_F(CodeTablesTest, ACopyOfATableRemembersForItself) {
    AddRow(pointTable, u"A", u"Q1");
    CodeTables copy = project.codes;
    EXPECT_EQ(FindLiscadCode(copy.points, Key(u"A")), 1);
    AddRow(copy.points, u"A", u"Q2");
    EXPECT_EQ(FindLiscadCode(copy.points, Key(u"A")), 2);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"A")), 1);
}

TEST_F(CodeTablesTest, AResetTableIsNotMetByAnOldMemory) {
    AddRow(pointTable, u"A", u"Q1");
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"A")), 1);
    ResetCodeTables(project.codes);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"A")), 0);
    AddRow(pointTable, u"A", u"Q1");
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"A")), 1);
}

TEST_F(CodeTablesTest, ANewTableHasSearchedNothingAndRemembersNothing) {
    CodeTable table(u'P');
    EXPECT_EQ(table.byLiscad.SearchCount(), 0);
    table.rows.resize(2);
    EXPECT_EQ(FindLiscadCode(table, table.rows[1].LiscadCode), 1) << "a code that was never filled is one too";
    EXPECT_EQ(table.byLiscad.SearchCount(), 1);
}

TEST_F(CodeTablesTest, CaseMatters) {
    AddRow(pointTable, u"AB", u"Q1");
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"ab")), 0);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"AB")), 1);
}

TEST_F(CodeTablesTest, CodesAreComparedOnSevenPaddedCharacters) {
    AddRow(pointTable, u"ABCDEFGHI", u"Q1");
    AddRow(pointTable, u"", u"Q2");
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"ABCDEFGXX")), 1);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"ABCDEF")), 0);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u" ABCDEF")), 0);
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"   ")), 2);
}

TEST_F(CodeTablesTest, ACodeThatWasNeverFilledIsNotTheBlankCode) {
    AddRow(pointTable, u"", u"Q1");
    EXPECT_EQ(FindLiscadCode(pointTable, CodeKey{}), 0);
}

TEST_F(CodeTablesTest, TheUnknownRowIsNoAnswerToItsOwnCode) {
    AddRow(pointTable, u"A", u"Q1");
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"STANDRD")), 0);
    AddRow(pointTable, u"STANDRD", u"Q1");
    EXPECT_EQ(FindLiscadCode(pointTable, Key(u"STANDRD")), 2);
}

// What a lookup says must be what a plain search from the last row up says.
std::int32_t PlainSearch(const CodeTable& table, FixedText<7> CodeRow::*field, const CodeKey& key) {
    for (std::size_t row = table.rows.size() - 1; row > 0; --row) {
        if (table.rows[row].*field == key) return static_cast<std::int32_t>(row);
    }
    return 0;
}

TEST_F(CodeTablesTest, LookupsAnswerAsAPlainSearchFromTheLastRow) {
    std::mt19937 random(20240514);
    const auto below = [&random](unsigned limit) { return static_cast<std::size_t>(random() % limit); };
    const auto code = [&below] {
        Text text;
        for (std::size_t length = below(9); length > 0; --length) text.push_back(u"ABa é\0"[below(6)]);
        return below(40) == 0 ? CodeKey{} : Key(text);
    };
    for (int round = 0; round < 120; ++round) {
        CodeTable& table = *tables[below(3)];
        for (const FindCase& entry : finds) {
            table.rows.assign(1 + below(300), CodeRow{});
            for (CodeRow& row : table.rows) {
                row.LiscadCode = code();
                row.LkiCode = code();
            }
            table.RowsChanged();
            for (int i = 0; i < 200; ++i) {
                const CodeKey key =
                    below(2) == 0 ? code() : table.rows[below(static_cast<unsigned>(table.rows.size()))].*entry.field;
                ASSERT_EQ(entry.find(table, key), PlainSearch(table, entry.field, key)) << ToUtf8(key.View());
            }
        }
    }
}

}  // namespace

}  // namespace korvande::testing
