#include "translation/CodeLookups.h"

#include <array>

#include "tests/support/TranslationState.h"

namespace korvande::testing {
namespace {

CodeKey Key(TextView code) { return MakeFixedText<7>(code); }

void AddRow(CodeTable& table, TextView liscadCode, TextView lkiCode) {
    CodeRow row{};
    row.LiscadCode = liscadCode;
    row.LkiCode = lkiCode;
    table.rows.push_back(row);
    table.RowsChanged();
}

// One of the six lookups with the table that it is made for.
struct LookupCase {
    std::int32_t (*look)(CodeTable&, UnknownCodeTally*, const CodeKey&);
    CodeTable CodeTables::*table;
    TextView known;  // the code in the row below
    char16_t letter;
};
constexpr std::array<LookupCase, 6> lookups = {{{LookupPointByLiscadCode, &CodeTables::points, u"BOOM", u'P'},
                                                {LookupLineByLiscadCode, &CodeTables::lines, u"MUUR", u'L'},
                                                {LookupTextByLiscadCode, &CodeTables::texts, u"NAAM", u'T'},
                                                {LookupPointCode, &CodeTables::points, u"S01", u'P'},
                                                {LookupLineCode, &CodeTables::lines, u"B05", u'L'},
                                                {LookupTextCode, &CodeTables::texts, u"Z02", u'T'}}};

class CodeLookups : public TranslationTest {
 protected:
    CodeLookups() {
        AddRow(codes.points, u"BOOM", u"S01");
        AddRow(codes.lines, u"MUUR", u"B05");
        AddRow(codes.texts, u"NAAM", u"Z02");
    }

    std::int32_t Look(const LookupCase& lookup, TextView code, UnknownCodeTally* tally) {
        return lookup.look(codes.*lookup.table, tally, Key(code));
    }

    CodeTables& codes = translation.codes;
    UnknownCodeTally unknowns;
};

TEST_F(CodeLookups, EachSearchesItsFieldOfItsTable) {
    for (const LookupCase& lookup : lookups) {
        for (const LookupCase& other : lookups) {
            const bool isKnown = lookup.known == other.known;
            EXPECT_EQ(Look(lookup, other.known, nullptr), isKnown ? 1 : 0) << ToUtf8(other.known);
        }
    }
}

TEST_F(CodeLookups, EachCountsOneUseOfTheRowItEndsOn) {
    for (const LookupCase& lookup : lookups) {
        const std::vector<CodeRow>& rows = (codes.*lookup.table).rows;
        (codes.*lookup.table).ForgetUses();
        Look(lookup, lookup.known, nullptr);
        Look(lookup, lookup.known, nullptr);
        Look(lookup, u"X", nullptr);
        EXPECT_EQ(rows[1].Count, 2);
        EXPECT_EQ(rows[0].Count, 1);
    }
}

TEST_F(CodeLookups, EachTalliesAnUnknownCodeUnderTheLetterOfItsTable) {
    for (const LookupCase& lookup : lookups) {
        unknowns.Reset();
        Look(lookup, u"X", &unknowns);
        Look(lookup, u"X", &unknowns);
        const auto& entries = unknowns.Entries();
        ASSERT_EQ(entries.size(), 1U);
        EXPECT_EQ(entries[0].Code.View(), Concat(Text(1, lookup.letter), u"X      "));
        EXPECT_EQ(entries[0].Count, 2);
    }
}

TEST_F(CodeLookups, WithoutATallyUnknownCodesAreCountedAllTheSame) {
    for (const LookupCase& lookup : lookups) Look(lookup, u"X", nullptr);
    EXPECT_EQ(codes.points.rows[0].Count, 2);
    EXPECT_EQ(codes.lines.rows[0].Count, 2);
    EXPECT_EQ(codes.texts.rows[0].Count, 2);
    EXPECT_TRUE(translation.unknowns.Entries().empty());
}

TEST_F(CodeLookups, KnownCodesAreNotTallied) {
    for (const LookupCase& lookup : lookups) Look(lookup, lookup.known, &unknowns);
    EXPECT_TRUE(unknowns.Entries().empty());
}

TEST_F(CodeLookups, ACodeThatWasNeverFilledIsTalliedAsItIs) {
    LookupPointByLiscadCode(codes.points, &unknowns, CodeKey{});
    ASSERT_EQ(unknowns.Entries().size(), 1U);
    EXPECT_EQ(unknowns.Entries()[0].Code.View(), TextView(u"P\0\0\0\0\0\0\0", 8));
}

TEST_F(CodeLookups, ATableWithoutAnyRowCountsAndTalliesNothing) {
    for (const LookupCase& lookup : lookups) {
        CodeTable& table = codes.*lookup.table;
        table.rows.clear();
        table.RowsChanged();
        EXPECT_EQ(Look(lookup, u"A", &unknowns), 0);
        EXPECT_TRUE(table.rows.empty());
    }
    EXPECT_TRUE(unknowns.Entries().empty());
}

TEST_F(CodeLookups, TheTallyIsThatOfTheLogBookWhenTheExportBoxIsSet) {
    translation.options.chkImportUnknowns = true;
    translation.options.chkExportUnknowns = false;
    EXPECT_EQ(TallyOf(translation), &translation.unlistedUnknowns);
    translation.options.chkImportUnknowns = false;
    translation.options.chkExportUnknowns = true;
    EXPECT_EQ(TallyOf(translation), &translation.unknowns);
}

TEST_F(CodeLookups, BothTalliesAreEmptiedTogether) {
    CountUnknownCode(translation.unknowns, MakeFixedText<8>(u"PX"));
    CountUnknownCode(translation.unlistedUnknowns, MakeFixedText<8>(u"LY"));
    ForgetUnknowns(translation);
    EXPECT_TRUE(translation.unknowns.Entries().empty());
    EXPECT_TRUE(translation.unlistedUnknowns.Entries().empty());
}

}  // namespace
}  // namespace korvande::testing
