#include <gmock/gmock.h>

#include "tests/gui/TranslationFixture.h"

namespace korvande::testing {

namespace {

using ::testing::HasSubstr;

std::string Line(std::string text, const char* endCode) {
    text.resize(62, ' ');
    return text + endCode + "\r\n";
}

// A drawing of one point behind a second line that is another variant's, or with an owner's group in a SUF2 file.
struct Question {
    const char* name;
    int mode;  // of the mode list
    const char* secondLine;
    const char* group;
    const char* text;
    const char* cancelled;
    const char* afterYes;
    const char* afterNo;
};

void PrintTo(const Question& question, std::ostream* stream) { *stream << question.name; }

constexpr Question questions[] = {
    {"LooksLikeSuf2", 2, "020102010201         0         0         1         0         1", "",
     "De NEN1878 file lijkt een oud formaat SUF2 bestand te zijn.\nAls SUF2 verder verwerken ?",
     "NEN1878 import afgebroken door gebruiker.", "SUF2", "NEN1878"},
    {"LooksLikeNen1878", 3, "020102150201         0         0         1         0         1", "",
     "De SUF2 file lijkt een NEN1878 bestand te zijn.\nAls NEN1878 verder verwerken ?",
     "SUF2 import afgebroken door gebruiker.", "NEN1878", "SUF2"},
    {"HoldsNen1878Headers", 3, "020102010201         0         0         1         0         1", "07NVOSAIZO",
     "De SUF2 file leek wel eerst een SUF2, maar bevat toch NEN1878 07-headers.\nToch als SUF2 verder verwerken ?",
     "SUF2 import afgebroken door gebruiker.", "SUF2", "NEN1878"},
};

class FormatQuestionTest : public TranslationFixture, public ::testing::WithParamInterface<Question> {
 protected:
    // Translates the drawing and answers the question.
    void TranslateWith(int button) {
        const Question& question = GetParam();
        Open();
        std::string drawing = Line("010NEN1878    V202611202611       0101S05", "01") + Line(question.secondLine, "01");
        if (*question.group != '\0') drawing += Line(question.group, "01");
        drawing +=
            Line("03MQ21     G010111   ", "00") + Line("04I1        X121000500Y487000250", "01") + Line("99", "  ");
        Type("txtFileSUFNEN", ToUtf8(folder.Write("in.sfn", drawing)));
        Type("txtFileIDEX", ToUtf8(folder / "uit.idx"));
        Choose("cboXlateMode", question.mode);
        dialogs.buttons = {button};
        Press("cmdStart");
        ASSERT_FALSE(dialogs.messages.empty());
        EXPECT_EQ(dialogs.messages[0], question.text);
        EXPECT_EQ(dialogs.labels[0], "Ja Nee Annuleren");
    }
};

TEST_P(FormatQuestionTest, YesTakesTheVariantThatIsProposed) {
    TranslateWith(wxID_YES);
    EXPECT_THAT(LogBookText("uit.LOG"), HasSubstr(std::string("Verwerking vervolgd als ") + GetParam().afterYes));
    EXPECT_TRUE(FileIsThere(folder / "uit.idx"));
}

TEST_P(FormatQuestionTest, NoTakesTheOther) {
    TranslateWith(wxID_NO);
    EXPECT_THAT(LogBookText("uit.LOG"), HasSubstr(std::string("Verwerking vervolgd als ") + GetParam().afterNo));
    EXPECT_TRUE(FileIsThere(folder / "uit.idx"));
}

TEST_P(FormatQuestionTest, CancelEndsTheImport) {
    TranslateWith(wxID_CANCEL);
    ASSERT_GE(dialogs.messages.size(), 2U);
    EXPECT_EQ(dialogs.messages[1], GetParam().cancelled);
    EXPECT_THAT(LogBookText("uit.LOG"), HasSubstr(std::string("==>  ") + GetParam().cancelled));
    EXPECT_EQ(dialogs.messages.back(), ToUtf8(folder / "in.sfn") + " is niet vertaald: afgebroken.");
    EXPECT_TRUE(Find<wxButton>("cmdStart").IsEnabled());
}

INSTANTIATE_TEST_SUITE_P(OfTheImport, FormatQuestionTest, ::testing::ValuesIn(questions),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace

}  // namespace korvande::testing
