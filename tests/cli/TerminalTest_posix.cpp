#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

class OnATerminal : public CliTest {
 protected:
    OnATerminal() {
        folder.Write("a.idx", smallIdex);
        folder.Write("a.suf", smallSuf2);
    }

    // What the program asks of a file that looks like SUF2, with this typed in answer.
    ProgramResult Answered(const std::string& typed) {
        return Translate("nen1878-idex", {"a.suf", "uit.idx"}, {.input = typed, .terminal = Terminal::InputAndError});
    }

    // Whether nothing in it moves a cursor, rings a bell or starts a sequence: no control characters, neither those
    // below the blank nor those of the upper half (C2 80 to C2 9F hex).
    static bool IsHarmless(const std::string& shown) {
        for (std::size_t i = 0; i < shown.size(); ++i) {
            const auto byte = static_cast<unsigned char>(shown[i]);
            const auto next = static_cast<unsigned char>(i + 1 < shown.size() ? shown[i + 1] : ' ');
            if ((byte < 0x20 && byte != '\n') || byte == 0x7F || (byte == 0xC2 && next < 0xA0)) return false;
        }
        return true;
    }
};

constexpr const char* question =
    "De NEN1878 file lijkt een oud formaat SUF2 bestand te zijn.\nAls SUF2 verder verwerken ?";

TEST_F(OnATerminal, ProgressTellsTheStepWithABarAndAPercentage) {
    const ProgramResult result = Translate("idex-nen1878", {"a.idx", "uit.sfn"}, {.terminal = Terminal::Error});
    EXPECT_EQ(result.status, 0);
    for (const char* const step :
         {"Inlezen IDEX", "Inlezen Punten", "Inlezen Lijnstrings", "Inlezen Lijnsegmenten", "Inlezen Teksten",
          "Schrijven Exportbestand: Voorbereiden", "Schrijven Exportbestand: Symbolen",
          "Schrijven Exportbestand: Lijnen", "Schrijven Exportbestand: Teksten"}) {
        EXPECT_TRUE(Has(result.error, std::string("\r\x1B[K") + step + " [")) << step;
    }
    EXPECT_TRUE(Has(result.error, " [..............................] 0%"));
    // The progress line is gone before anything else is shown.
    EXPECT_TRUE(Has(result.error, "\r\x1B[KVolgens de controletabel")) << result.error;
    EXPECT_FALSE(Has(result.output, "\x1B"));
}

TEST_F(OnATerminal, ProgressFillsTheBar) {
    std::string many = smallIdex.substr(0, smallIdex.find("    2,\"A2\""));
    for (int i = 2; i < 200000; ++i) many += std::to_string(i) + ",\"\",1,2,3,\"MV\",\"\",0;\r\n";
    folder.Write("b.idx", many + "END POINTS\r\nEND DATABASE\r\n");
    const ProgramResult result = Translate("idex-nen1878", {"b.idx", "uit.sfn"}, {.terminal = Terminal::Error});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(Has(result.error, "[###")) << result.error.substr(0, 2000);
    EXPECT_FALSE(Has(result.error, "101%"));
}

TEST_F(OnATerminal, ImportsTellTheirStepsToo) {
    folder.Write("a.nen", smallNen1878);
    const ProgramResult result = Translate("nen1878-idex", {"a.nen", "uit.idx"}, {.terminal = Terminal::Error});
    for (const char* const step : {"Inlezen NEN1878", "Opschonen Puntnummers", "Wegschrijven Header",
                                   "Wegschrijven punten", "Wegschrijven lijnstrings", "Wegschrijven lijnsegmenten"}) {
        EXPECT_TRUE(Has(result.error, step)) << step;
    }
    EXPECT_FALSE(Has(result.error, "Wegschrijven teksten")) << "there are none";
}

TEST_F(OnATerminal, WithoutATerminalOrWhenAskedForSilenceThereIsNoProgress) {
    EXPECT_FALSE(Has(Translate("idex-nen1878", {"a.idx", "uit.sfn"}).error, "Inlezen"));
    const ProgramResult silent =
        Translate("idex-nen1878", {"--stil", "a.idx", "uit.sfn"}, {.terminal = Terminal::Error});
    EXPECT_EQ(silent.status, 0);
    EXPECT_EQ(silent.error, "");
}

TEST_F(OnATerminal, AQuestionIsAskedAndAnswered) {
    struct Case {
        const char* typed;
        int status;
        const char* logged;
    };
    for (const auto& [typed, status, logged] : {Case{"j\n", 0, "==>  Verwerking vervolgd als SUF2 bestand\n"},
                                                Case{"Ja\n", 0, "==>  Verwerking vervolgd als SUF2 bestand\n"},
                                                Case{"n\n", 0, "==>  Verwerking vervolgd als NEN1878 bestand\n"},
                                                Case{"NEE\n", 0, "==>  Verwerking vervolgd als NEN1878 bestand\n"},
                                                Case{"a\n", 3, "==>  NEN1878 import afgebroken door gebruiker.\n"},
                                                Case{"\x04", 3, "==>  NEN1878 import afgebroken door gebruiker.\n"}}) {
        const ProgramResult result = Answered(typed);
        EXPECT_EQ(result.status, status) << typed;
        EXPECT_TRUE(Has(result.error, std::string(question) + " [j]a / [n]ee / [a]nnuleren\n")) << result.error;
        EXPECT_TRUE(Has(Log("uit.LOG"), logged)) << typed;
    }
}

TEST_F(OnATerminal, AnAnswerThatIsNoneIsAskedForAgain) {
    const ProgramResult result = Answered("weet niet\n\nquoi?\nn\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(Has(Log("uit.LOG"), "==>  Verwerking vervolgd als NEN1878 bestand\n"));
    std::size_t asked = 0;
    for (std::size_t at = 0; (at = result.error.find("[j]a", at)) != std::string::npos; ++at) ++asked;
    EXPECT_EQ(asked, 4U);
}

TEST_F(OnATerminal, AnAnswerGivenBeforehandIsNotAskedFor) {
    const ProgramResult result = Translate("nen1878-idex", {"--antwoord", "nee", "a.suf", "uit.idx"},
                                           {.input = "j\n", .terminal = Terminal::InputAndError});
    EXPECT_EQ(result.status, 0);
    EXPECT_FALSE(Has(result.error, "[j]a"));
    EXPECT_TRUE(Has(Log("uit.LOG"), "==>  Verwerking vervolgd als NEN1878 bestand\n"));
}

TEST_F(OnATerminal, EscapeCodesOfInputsDoNotReachIt) {
    const std::string evil = "\x1B[2J\x07\x9D\x7F";
    folder.Write("t.nst", "[NEN1878]\r\nNameLong = " + evil + "\r\n[Points]\r\n" + evil + " = " + evil + ", PUNT, " +
                              evil + ", 0, 0, 0\r\n[End]\r\n");
    const ProgramResult shown = Run({"project", "toon", "t.nst"});
    EXPECT_EQ(shown.status, 0);
    EXPECT_TRUE(Has(shown.output, "?[2J???")) << shown.output;
    EXPECT_TRUE(IsHarmless(shown.output)) << shown.output;

    std::string drawing = smallIdex;
    drawing.replace(drawing.find("VREEMD"), 6, evil);
    folder.Write("b.idx", drawing);
    const ProgramResult checked = Run({"controleer", "b.idx"});
    EXPECT_EQ(checked.status, 1);
    EXPECT_TRUE(Has(checked.output, "Puntcode '?[2J")) << checked.output;
    EXPECT_TRUE(IsHarmless(checked.output)) << checked.output;
    EXPECT_TRUE(IsHarmless(checked.error)) << checked.error;

    const ProgramResult named = Translate("idex-nen1878", {"--" + evil});
    EXPECT_EQ(named.status, 2);
    EXPECT_TRUE(IsHarmless(named.error)) << named.error;
    const ProgramResult missing = Translate("idex-nen1878", {"weg" + evil, "uit.sfn"});
    EXPECT_EQ(missing.status, 3);
    EXPECT_TRUE(IsHarmless(missing.error)) << missing.error;
}

}  // namespace

}  // namespace korvande::testing
