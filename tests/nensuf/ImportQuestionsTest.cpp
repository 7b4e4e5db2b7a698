#include <array>

#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

// The three questions about the format of a file.
struct Question {
    std::string text;  // with line feeds
    std::string title;
};
const Question looksLikeSuf2 = {
    "De NEN1878 file lijkt een oud formaat SUF2 bestand te zijn.\nAls SUF2 verder verwerken ?",
    "Probleem bij inlezen van NEN1878 bestand"};
const Question looksLikeNen = {"De SUF2 file lijkt een NEN1878 bestand te zijn.\nAls NEN1878 verder verwerken ?",
                               "Probleem bij inlezen van SUF2 bestand"};
const Question holdsHeaders = {
    "De SUF2 file leek wel eerst een SUF2, maar bevat toch NEN1878 07-headers.\nToch als SUF2 verder verwerken ?",
    "Probleem bij inlezen van SUF2 bestand"};

const std::string goesOnAsNen = "==>  Verwerking vervolgd als NEN1878 bestand";
const std::string goesOnAsSuf2 = "==>  Verwerking vervolgd als SUF2 bestand";

class ImportQuestions : public ImportTest {
 protected:
    // Imports a point behind the second line given; the answers must be used up.
    void ImportWith(Variant variant, std::string_view columns3To12, std::deque<Answer> answers,
                    std::string_view groups) {
        translation.mode.variant = variant;
        screen.answers = std::move(answers);
        Import(groups, FirstLine() + SecondLine(columns3To12));
        EXPECT_TRUE(screen.answers.empty());
        EXPECT_EQ(translation.mode.variant, variant) << "an answer is for this import only";
    }

    // The variants in which coordinates were read, import by import: those that did not end at the header.
    std::string VariantsRead() const {
        std::string variants;
        for (const std::string& status : screen.statuses) {
            if (status.starts_with("Inlezen ")) variants += status.substr(8) + " ";
        }
        return variants;
    }

    void ExpectQuestion(std::size_t place, const Question& question) {
        ASSERT_LT(place, screen.boxes.size());
        const MessageBox& box = screen.boxes[place];
        EXPECT_EQ(ToUtf8(box.text), question.text);
        EXPECT_EQ(ToUtf8(box.title), question.title);
        EXPECT_EQ(box.icon, Icon::Question);
        EXPECT_EQ(box.buttons, Buttons::YesNoCancel);
    }

    void ExpectCancelled(std::string_view message) {
        const MessageBox& box = screen.boxes.back();
        EXPECT_EQ(ToUtf8(box.text), message);
        EXPECT_EQ(ToUtf8(box.title), "");
        EXPECT_EQ(box.icon, Icon::None);
        EXPECT_EQ(box.buttons, Buttons::Ok);
        EXPECT_TRUE(translation.outcome.importCancelled);
        EXPECT_FALSE(translation.outcome.cancelled);
        // The numbers of an import that ends here are not cleaned up.
        EXPECT_EQ(std::count(screen.statuses.begin(), screen.statuses.end(), "Opschonen Puntnummers"), 0);
    }

    static constexpr std::string_view suf2Cancelled = "SUF2 import afgebroken door gebruiker.";
    const std::string point = korvande::testing::Point("P10", At(1000, 2000));
    const std::string ownerGroup = Record("07NVOSAIZO", "00") + Record("07APOSTBUS", "00") + Record("07WMOLVEREN");
};

TEST_F(ImportQuestions, AUsualFileOfEitherVariantAsksNothing) {
    Import(ownerGroup + point);
    translation.mode.variant = Variant::Suf2;
    Import(point, Suf2Header());
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportQuestions, YesToTheFirstQuestionGoesOnAsSuf2WithItsPrecision) {
    ImportWith(Variant::Nen1878, "010201", {Answer::Yes}, point);
    ExpectQuestion(0, looksLikeSuf2);
    EXPECT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(VariantsRead(), "SUF2 ");
    EXPECT_EQ(Points(), "|BOOM|1.000 2.000 0.000|0.0000\n");
    EXPECT_EQ(LogText(), looksLikeSuf2.text + "\n" + goesOnAsSuf2 + "\n");
}

TEST_F(ImportQuestions, NoToTheFirstQuestionGoesOnAsNen1878WithItsPrecision) {
    ImportWith(Variant::Nen1878, "010209", {Answer::No}, point);
    EXPECT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(VariantsRead(), "NEN1878 ");
    EXPECT_EQ(Points(), "|BOOM|0.100 0.200 0.000|0.0000\n");
    EXPECT_EQ(LogText(), looksLikeSuf2.text + "\n" + goesOnAsNen + "\n");
}

TEST_F(ImportQuestions, CancelAtTheFirstQuestionEndsTheImport) {
    ImportWith(Variant::Nen1878, "010201", {Answer::Cancel}, point);
    ASSERT_EQ(screen.boxes.size(), 2U);
    ExpectQuestion(0, looksLikeSuf2);
    ExpectCancelled("NEN1878 import afgebroken door gebruiker.");
    EXPECT_EQ(Points(), "");
    EXPECT_EQ(LogText(), looksLikeSuf2.text + "\n==>  NEN1878 import afgebroken door gebruiker.\n");
}

TEST_F(ImportQuestions, InTheLogBookTheLinesOfAQuestionEndWithCrLf) {
    ImportWith(Variant::Nen1878, "010201", {Answer::Yes}, "");
    translation.log.Close();
    EXPECT_EQ(FileBytes(logName), WithCrLf(looksLikeSuf2.text + "\n" + goesOnAsSuf2 + "\n"));
}

TEST_F(ImportQuestions, OnlyAZeroInColumn7LooksLikeSuf2) {
    for (const std::string column7 : {"1", "2", "9", " ", "A", "O"})
        ImportWith(Variant::Nen1878, "0102" + column7 + "9", {}, point);
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(VariantsRead(), "NEN1878 NEN1878 NEN1878 NEN1878 NEN1878 NEN1878 ");
}

TEST_F(ImportQuestions, YesToTheSecondQuestionGoesOnAsNen1878WithItsPrecision) {
    ImportWith(Variant::Suf2, "010225", {Answer::Yes}, point);
    ExpectQuestion(0, looksLikeNen);
    EXPECT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(VariantsRead(), "NEN1878 ");
    EXPECT_EQ(Points(), "|BOOM|10.000 20.000 0.000|0.0000\n");
    EXPECT_EQ(LogText(), looksLikeNen.text + "\n" + goesOnAsNen + "\n");
}

TEST_F(ImportQuestions, NoToTheSecondQuestionStaysSuf2WithItsPrecision) {
    ImportWith(Variant::Suf2, "010222", {Answer::No}, point);
    EXPECT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(VariantsRead(), "SUF2 ");
    EXPECT_EQ(Points(), "|BOOM|10.000 20.000 0.000|0.0000\n");
    EXPECT_EQ(LogText(), looksLikeNen.text + "\n" + goesOnAsSuf2 + "\n");
}

TEST_F(ImportQuestions, CancelAtTheSecondQuestionEndsTheImport) {
    ImportWith(Variant::Suf2, "010215", {Answer::Cancel}, point);
    ASSERT_EQ(screen.boxes.size(), 2U);
    ExpectQuestion(0, looksLikeNen);
    ExpectCancelled(suf2Cancelled);
    EXPECT_EQ(Points(), "");
    EXPECT_EQ(LogText(), looksLikeNen.text + "\n==>  SUF2 import afgebroken door gebruiker.\n");
}

TEST_F(ImportQuestions, WhatSortsAfterOneInColumn8LooksLikeNen1878) {
    for (const std::string column8 : {"2", "5", "9", "A", "z", "\xE9"}) {
        ImportWith(Variant::Suf2, "01021" + column8, {Answer::No}, point);
        ExpectQuestion(screen.boxes.size() - 1, looksLikeNen);
    }
    EXPECT_EQ(screen.boxes.size(), 6U);
}

TEST_F(ImportQuestions, WhatSortsUpToOneInColumn8IsSuf2) {
    for (const std::string column8 : {" ", "-", "0", "1"}) ImportWith(Variant::Suf2, "01021" + column8, {}, point);
    ImportBytes(FirstLine() + "0201021\r\n" + point);
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(VariantsRead(), "SUF2 SUF2 SUF2 SUF2 SUF2 ");
}

TEST_F(ImportQuestions, YesToTheFirstQuestionMayBringTheSecond) {
    const std::array<Answer, 3> answers = {Answer::Yes, Answer::No, Answer::Cancel};
    const std::array<std::string, 3> variants = {"NEN1878 ", "SUF2 ", ""};
    for (std::size_t i = 0; i < answers.size(); ++i) {
        screen.boxes.clear();
        screen.statuses.clear();
        ImportWith(Variant::Nen1878, "010205", {Answer::Yes, answers[i]}, point);
        ExpectQuestion(0, looksLikeSuf2);
        ExpectQuestion(1, looksLikeNen);
        EXPECT_EQ(VariantsRead(), variants[i]);
        EXPECT_EQ(screen.boxes.size(), answers[i] == Answer::Cancel ? 3U : 2U);
        if (answers[i] == Answer::Cancel) {
            EXPECT_EQ(screen.messages.back(), suf2Cancelled);
        }
    }
    const std::string asked = looksLikeSuf2.text + "\n" + goesOnAsSuf2 + "\n" + looksLikeNen.text + "\n";
    EXPECT_EQ(LogText(), asked + goesOnAsNen + "\n" + asked + goesOnAsSuf2 + "\n" + asked + "==>  " +
                             std::string(suf2Cancelled) + "\n");
}

TEST_F(ImportQuestions, YesTwiceComesBackToNen1878WithItsPrecision) {
    ImportWith(Variant::Nen1878, "010205", {Answer::Yes, Answer::Yes}, point);
    EXPECT_EQ(Points(), "|BOOM|0.100 0.200 0.000|0.0000\n");
}

TEST_F(ImportQuestions, EachOwnerGroupInSuf2AsksAsLongAsTheAnswerIsYes) {
    ImportWith(Variant::Suf2, "010201", {Answer::Yes, Answer::Yes}, ownerGroup + point + ownerGroup + point);
    ASSERT_EQ(screen.boxes.size(), 2U);
    ExpectQuestion(0, holdsHeaders);
    ExpectQuestion(1, holdsHeaders);
    EXPECT_EQ(VariantsRead(), "SUF2 ");
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 2);
    const std::string asked = holdsHeaders.text + "\n" + goesOnAsSuf2 + "\n";
    EXPECT_EQ(LogText(), asked + asked);
}

TEST_F(ImportQuestions, NoAtAnOwnerGroupGoesOnAsNen1878WithoutAnotherQuestion) {
    ImportWith(Variant::Suf2, "010201", {Answer::Yes, Answer::No}, ownerGroup + ownerGroup + ownerGroup + point);
    EXPECT_EQ(screen.boxes.size(), 2U);
    // The coordinates stay those of the variant that the 02 record was read in.
    EXPECT_EQ(Points(), "|BOOM|1.000 2.000 0.000|0.0000\n");
    EXPECT_EQ(LogText(),
              holdsHeaders.text + "\n" + goesOnAsSuf2 + "\n" + holdsHeaders.text + "\n" + goesOnAsNen + "\n");
}

TEST_F(ImportQuestions, CancelAtAnOwnerGroupKeepsWhatWasImported) {
    const std::string numbered = korvande::testing::Point("P10", N("7") + At(1000, 2000));
    ImportWith(Variant::Suf2, "010201", {Answer::Cancel}, numbered + numbered + ownerGroup + numbered);
    ASSERT_EQ(screen.boxes.size(), 2U);
    ExpectQuestion(0, holdsHeaders);
    ExpectCancelled(suf2Cancelled);
    EXPECT_EQ(Points(), "7|BOOM|1.000 2.000 0.000|0.0000\n7|BOOM|1.000 2.000 0.000|0.0000\n");
    EXPECT_EQ(LogText(), holdsHeaders.text + "\n==>  SUF2 import afgebroken door gebruiker.\n");
}

TEST_F(ImportQuestions, ANen1878FileReadAsSuf2AsksBothQuestionsOfSuf2) {
    ImportWith(Variant::Suf2, "010215", {Answer::No, Answer::Yes}, ownerGroup + point);
    ExpectQuestion(0, looksLikeNen);
    ExpectQuestion(1, holdsHeaders);
    EXPECT_EQ(Points(), "|BOOM|10000.000 20000.000 0.000|0.0000\n");
}

TEST_F(ImportQuestions, AnotherButtonThanYesAndNoIsCancel) {
    ImportWith(Variant::Nen1878, "010201", {Answer::Ok}, point);
    ExpectCancelled("NEN1878 import afgebroken door gebruiker.");
}

}  // namespace

}  // namespace korvande::testing
