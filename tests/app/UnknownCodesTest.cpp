#include "app/UnknownCodes.h"

#include "app/GridHistory.h"
#include "app/GridMarks.h"
#include "tests/app/AppTest.h"

// The codes that a run did not know come into the tables.
namespace korvande::testing {

namespace {

class UnknownCodesTest : public AppRunTest {
 protected:
    // A drawing with these point codes, and a text of the code BORD.
    Text DrawingOf(const std::vector<std::string>& codes) const {
        std::string text =
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,East,North,Code)\n";
        int number = 0;
        for (const std::string& code : codes) text += std::to_string(++number) + ",121000,487000,\"" + code + "\";\n";
        text += "END POINTS\nEND DATABASE\n";
        return folder.Write("in.idx", WithCrLf(text));
    }

    static std::string Told(const UnknownCodes& unknown) {
        std::string told;
        for (const UnknownCode& code : unknown.codes) {
            told += ToUtf8(Text(1, code.table)) + ":" + ToUtf8(code.code) + "(" + std::to_string(code.count) + ") ";
        }
        return told;
    }

    UnknownCodes Unknown() const { return StillUnknown(form, form.lastRun.unknownCodes); }
};

TEST_F(UnknownCodesTest, ARunFromIdexTellsItsLiscadCodes) {
    Choose(0, DrawingOf({"PAAL", "BOOM", "PAAL", ""}), folder / "uit.sfn");
    RunTranslation(form);
    EXPECT_EQ(Told(Unknown()), "P:(1) P:BOOM(1) P:PAAL(2) ");
    EXPECT_EQ(Unknown().column, Grid::Liscad);
}

TEST_F(UnknownCodesTest, ARunToIdexTellsItsLkiCodes) {
    Choose(2, folder / "uit.idx", folder.Write("in.sfn", Nen1878()));
    RunTranslation(form);
    EXPECT_EQ(Told(Unknown()), "P:BOOM(1) ");
    EXPECT_EQ(Unknown().column, Grid::Lki);
}

TEST_F(UnknownCodesTest, CodesThatTheTablesGotAreKnown) {
    Choose(0, DrawingOf({"PAAL", "BOOM"}), folder / "uit.sfn");
    RunTranslation(form);
    AddCodes(form, {Grid::Liscad, {{u'P', u"BOOM", 1}}});
    EXPECT_EQ(Told(Unknown()), "P:PAAL(1) ");
    RunTranslation(form);
    EXPECT_EQ(Told(Unknown()), "P:PAAL(1) ");
}

TEST_F(UnknownCodesTest, TheFirstRowIsNeverSearchedAndKnowsNoCode) {
    const UnknownCodes unknown{Grid::Liscad, {{u'P', u"STANDRD", 3}}};
    EXPECT_EQ(Told(StillUnknown(form, unknown)), "P:STANDRD(3) ");
}

TEST_F(UnknownCodesTest, EachGetsARowAtTheEndOfItsTable) {
    const UnknownCodes unknown{Grid::Liscad, {{u'L', u"HEG", 1}, {u'L', u"MUUR", 2}, {u'T', u"NAAM", 1}}};
    EXPECT_EQ(AddCodes(form, unknown), &form.editedLines);
    ASSERT_EQ(form.gridLines.RowCount(), 4);
    EXPECT_EQ(form.gridLines[2][Grid::Liscad], u"HEG");
    EXPECT_EQ(form.gridLines[3][Grid::Liscad], u"MUUR");
    EXPECT_EQ(form.gridTexts[2][Grid::Liscad], u"NAAM");
    EXPECT_EQ(form.gridPoints.RowCount(), 2);
    EXPECT_EQ(form.editedLines.row, 2);
    EXPECT_EQ(form.editedLines.column, Grid::Lki);
}

TEST_F(UnknownCodesTest, LkiCodesGoIntoTheirColumnAndTheCursorToTheEmptyOne) {
    EXPECT_EQ(AddCodes(form, {Grid::Lki, {{u'P', u"Q77", 1}}}), &form.editedPoints);
    EXPECT_EQ(form.gridPoints[2][Grid::Lki], u"Q77");
    EXPECT_EQ(form.gridPoints[2][Grid::Liscad], u"");
    EXPECT_EQ(form.editedPoints.column, Grid::Liscad);
}

TEST_F(UnknownCodesTest, TheirRowsAreMarkedAsIncompleteAndTakenBackInOneStep) {
    AddCodes(form, {Grid::Liscad, {{u'P', u"BOOM", 1}, {u'P', u"PAAL", 1}}});
    const std::optional<CellMark> mark = GridMarks(form.editedPoints).At(2, Grid::Lki);
    ASSERT_TRUE(mark);
    EXPECT_EQ(mark->kind, MarkKind::Incomplete);
    Undo(form.editedPoints);
    EXPECT_EQ(form.gridPoints.RowCount(), 2);
}

TEST_F(UnknownCodesTest, NoCodesChangeNothing) {
    EXPECT_EQ(AddCodes(form, {}), nullptr);
    EXPECT_FALSE(CanUndo(form.editedPoints));
}

TEST_F(UnknownCodesTest, OneEditIsOneCharacterMoreLessOrOther) {
    for (const auto& [one, other] : {std::pair{u"LANTARN", u"LANTAARN"},
                                     {u"BOOM", u"BOON"},
                                     {u"XPAAL", u"PAAL"},
                                     {u"PAALX", u"PAAL"},
                                     {u"A", u""}}) {
        EXPECT_TRUE(AreOneEditApart(one, other)) << ToUtf8(one);
        EXPECT_TRUE(AreOneEditApart(other, one)) << ToUtf8(one);
    }
    for (const auto& [one, other] : {std::pair{u"BOOM", u"BOOM"},
                                     {u"BOOM", u"BMOO"},
                                     {u"BOOM", u"BO"},
                                     {u"BOOM", u"BAAM"},
                                     {u"PAAL", u"PAALXX"},
                                     {u"", u"AB"}}) {
        EXPECT_FALSE(AreOneEditApart(one, other)) << ToUtf8(one);
        EXPECT_FALSE(AreOneEditApart(other, one)) << ToUtf8(one);
    }
}

TEST_F(UnknownCodesTest, ANearCodeOrTheSameDescriptionSuggestsAnLkiCodeThatNobodyIsGivenUnasked) {
    ReplaceRows(form.editedPoints, 2, 0,
                {{u"LANTRN", u"S02", u"PUNT", u"Lantaarn"},
                 {u"PUT", u"S03", u"PUNT", u"Inspectieput"},
                 {u"PAL", u"", u"PUNT", u"Paal"},
                 {u"AB", u"S04", u"PUNT", u""}});
    UnknownCodes unknown{Grid::Liscad,
                         {{u'P', u"LANTRNS", 1},
                          {u'P', u"KOLK", 1, u"INSPECTIEPUT"},
                          {u'P', u"PAAL", 1},
                          {u'P', u"AC", 1},
                          {u'L', u"LANTRNS", 1}}};
    Suggest(form, unknown);
    EXPECT_EQ(unknown.codes[0].suggestion, u"S02");
    EXPECT_EQ(unknown.codes[0].suggestedBy, u"LANTRN");
    EXPECT_EQ(unknown.codes[1].suggestion, u"S03");
    // A row without an LKI code, a short code and another table suggest nothing.
    for (const std::size_t place : {2, 3, 4}) EXPECT_EQ(unknown.codes[place].suggestion, u"") << place;
    for (const UnknownCode& code : unknown.codes) EXPECT_EQ(code.lkiCode, u"");
    unknown.codes[1].lkiCode = unknown.codes[1].suggestion;
    AddCodes(form, unknown);
    EXPECT_EQ(form.gridPoints[6][Grid::Liscad], u"LANTRNS");
    EXPECT_EQ(form.gridPoints[6][Grid::Lki], u"");
    EXPECT_EQ(form.gridPoints[7][Grid::Lki], u"S03");
}

TEST_F(UnknownCodesTest, LkiCodesGetNoSuggestion) {
    ReplaceRows(form.editedPoints, 2, 0, {{u"PUT", u"Q771", u"PUNT", u"Put"}});
    UnknownCodes unknown{Grid::Lki, {{u'P', u"Q772", 1, u"Put"}}};
    Suggest(form, unknown);
    EXPECT_EQ(unknown.codes[0].suggestion, u"");
}

}  // namespace

}  // namespace korvande::testing
