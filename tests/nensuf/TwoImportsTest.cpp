#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

// Two imports of different variants, options and tables.
class TwoImports : public ImportTest {
 protected:
    // The same numbers are tenths of millimetres in one and centimetres in the other, and "P10" is another code; one
    // takes unknown objects and tallies them, the other only what lies in a rectangle.
    static std::string BytesOf(Variant variant) {
        const std::string groups = korvande::testing::Point("P10", N("1") + At(1000, 2000)) +
                                   korvande::testing::Point("ONB", At(3, 3)) +
                                   Arc("B10", At(0, 1000) + At(1000, 0) + At(0, -1000)) +
                                   TextGroups("Z10", At(1500, 1500) + At(2500, 1500), "Weg") + Record("99");
        // The header line of the other variant asks a question, at which the import stands still.
        return variant == Variant::Nen1878 ? FirstLine() + SecondLine("010209") + groups
                                           : FirstLine("Ander plan") + SecondLine("010222") + groups;
    }

    static void Fill(Translation& translation, Variant variant) {
        Prepare(translation);
        translation.mode.variant = variant;
        Options& options = translation.options;
        const bool isSuf2 = variant == Variant::Suf2;
        options.chkImportUnknowns = options.chkExportUnknowns = !isSuf2;
        options.chkSelectXY = isSuf2;
        options.txtMaxX = u"12";
        options.txtMaxY = u"22";
        if (isSuf2) AddRow(translation.codes.points, u"ANDERS", u"P10", u"Andere boom");
    }

    static std::string ResultOf(const Translation& translation) {
        const Drawing& drawing = translation.drawing;
        std::string result = PointsOf(drawing) + LinesOf(drawing) + EdgesOf(drawing) + TextsOf(drawing) +
                             ToUtf8(translation.account.Summary()) + ToUtf8(translation.ProjectName) + " " +
                             std::to_string(translation.crossingsFound) + " " + std::to_string(translation.inputLine);
        for (const UnknownCodeRec& unknown : translation.unknowns.Entries()) result += ToUtf8(unknown.Code.View());
        for (const CodeRow& row : translation.codes.points.rows) result += " " + std::to_string(row.Count);
        return result;
    }

    static std::string ResultAlone(Variant variant) {
        RecordingScreen screen;
        screen.answers = {Answer::No};
        Translation translation(screen);
        Fill(translation, variant);
        const std::string bytes = BytesOf(variant);
        translation.inputBytes = bytes;
        ImportNenSuf(translation);
        EXPECT_EQ(screen.messages.size(), 1U);
        return ResultOf(translation);
    }
};

TEST_F(TwoImports, OneInTheMiddleOfTheOtherTouchesNothingOfIt) {
    const std::string nenBytes = BytesOf(Variant::Nen1878);
    const std::string suf2Bytes = BytesOf(Variant::Suf2);
    RecordingScreen outer;
    Translation one(outer);
    Translation other(screen);
    Fill(one, Variant::Nen1878);
    Fill(other, Variant::Suf2);
    one.inputBytes = nenBytes;
    other.inputBytes = suf2Bytes;
    outer.answers = {Answer::No};
    screen.answers = {Answer::No};
    int imports = 0;
    outer.onMessage = [&] {
        ImportNenSuf(other);
        ++imports;
    };
    ImportNenSuf(one);
    EXPECT_EQ(imports, 1);
    EXPECT_EQ(ResultOf(one), ResultAlone(Variant::Nen1878));
    EXPECT_EQ(ResultOf(other), ResultAlone(Variant::Suf2));
    EXPECT_EQ(PointsOf(one.drawing).substr(0, 37), "1|BOOM|0.100 0.200 0.000|0.0000\n|STAN");
    EXPECT_EQ(PointsOf(other.drawing).substr(0, 37), "1|ANDERS|10.000 20.000 0.000|0.0000\n|");
}

TEST_F(TwoImports, TheAnswerOfOneIsNotThatOfTheOther) {
    RecordingScreen otherScreen;
    Translation other(otherScreen);
    Prepare(other);
    const std::string bytes =
        FirstLine() + SecondLine("010201") + korvande::testing::Point("P10", At(1000, 2000)) + Record("99");
    translation.inputBytes = other.inputBytes = bytes;
    screen.answers = {Answer::Yes};
    otherScreen.answers = {Answer::No};
    ImportNenSuf(translation);
    ImportNenSuf(other);
    EXPECT_EQ(screen.statuses[0], "Inlezen SUF2");
    EXPECT_EQ(otherScreen.statuses[0], "Inlezen NEN1878");
    EXPECT_EQ(translation.mode, other.mode);
}

TEST_F(TwoImports, CrossingsAreCountedInTheirOwnTranslation) {
    Translation other(screen);
    Prepare(other);
    const std::string arc = Arc("B10", At(0, 10000) + At(10000, 0) + At(0, -10000));
    const std::string straight = Arc("B10", At(0, 0) + At(1000, 1000) + At(3000, 3000));
    Import(arc + arc + straight + Line("B10", At(0, 0) + At(10, 10)));
    EXPECT_EQ(translation.crossingsFound, 2);
    EXPECT_EQ(other.crossingsFound, 0);
    const std::string bytes = NenHeader() + arc + Record("99");
    other.inputBytes = bytes;
    ImportNenSuf(other);
    EXPECT_EQ(other.crossingsFound, 1);
    EXPECT_EQ(translation.crossingsFound, 2);
}

}  // namespace

}  // namespace korvande::testing
