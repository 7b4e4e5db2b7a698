#include <algorithm>
#include <array>
#include <filesystem>

#include "core/modStrings.h"
#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

class TranslateOptions : public CliTest {
 protected:
    TranslateOptions() {
        folder.Write("a.idx", smallIdex);
        folder.Write("a.nen", smallNen1878);
        folder.Write("a.suf", smallSuf2);
        folder.Write("t.nst", smallTable);
    }

    static std::string ReplaceInTable(std::string_view part, std::string_view replacement) {
        return ReplaceAll(smallTable, part, replacement);
    }

    // The counts in the line on standard output.
    static std::string Counts(const ProgramResult& result) {
        return result.output.substr(std::min(result.output.find(": ") + 2, result.output.size()));
    }
};

TEST_F(TranslateOptions, EveryModeHasTwoNames) {
    struct Case {
        const char* shortName;
        const char* text;
        const char* input;
        const char* beginning;
    };
    constexpr std::array<Case, 4> cases = {{{"idex-nen1878", "IDEX >> NEN1878", "a.idx", "010NEN1878    V"},
                                            {"idex-suf2", "IDEX >> SUF2", "a.idx", "010           V      "},
                                            {"nen1878-idex", "NEN1878 >> IDEX", "a.nen", "HEADER\r\n"},
                                            {"suf2-idex", "SUF2 >> IDEX", "a.suf", "HEADER\r\n"}}};
    for (const Case& mode : cases) {
        for (const char* const name : {mode.shortName, mode.text}) {
            const ProgramResult result = Translate(name, {mode.input, "uit"});
            EXPECT_EQ(result.status, 0) << name << result.error;
            EXPECT_TRUE(Bytes("uit").starts_with(mode.beginning)) << name;
            EXPECT_TRUE(Has(Log("LOG"), std::string("     Bewerking:  ") + mode.text + "\n")) << name;
        }
    }
}

TEST_F(TranslateOptions, AModeThatDoesNotExistIsRefused) {
    ExpectRefused({"vertaal", "--modus", "idex-dxf", "a.idx"},
                  "Ongeldige waarde bij --modus: idex-dxf (idex-nen1878, idex-suf2, nen1878-idex of suf2-idex)");
    ExpectRefused({"vertaal", "--modus", "IDEX", "a.idx"},
                  "Ongeldige waarde bij --modus: IDEX (idex-nen1878, idex-suf2, nen1878-idex of suf2-idex)");
    ExpectRefused({"vertaal", "a.idx"}, "Er ontbreekt een optie: --modus");
}

TEST_F(TranslateOptions, WhatIsNoArgumentOfTheCommandIsRefusedInOneLine) {
    const std::string mode = "idex-nen1878";
    ExpectRefused({"vertaal", "--modus", mode, "--snel", "a.idx"}, "Onbekend argument: --snel");
    ExpectRefused({"vertaal", "--modus", mode, "-q", "a.idx"}, "Onbekend argument: -q");
    ExpectRefused({"vertaal", "--modus", mode}, "Er ontbreekt een invoerbestand.");
    ExpectRefused({"vertaal", "--modus", mode, "a.idx", "b", "c"},
                  "Te veel bestanden; gebruik --uitvoermap om er meer te vertalen.");
    ExpectRefused({"vertaal", "--modus", mode, "--modus", mode, "a.idx"}, "Een optie staat er meer dan eens: --modus");
    ExpectRefused({"vertaal", "--stil=ja", "a.idx", "--modus", mode},
                  "Er hoort geen waarde bij een optie: --stil = ja");
}

TEST_F(TranslateOptions, AMissingOrEmptyValueIsRefused) {
    for (const char* const option : {"--modus", "--project", "--logboek", "--antwoord", "--selectie",
                                     "--bronvermelding", "--onbekend", "--uitvoermap"}) {
        const std::string message = std::string("Er ontbreekt een waarde bij ") + option;
        ExpectRefused({"vertaal", "a.idx", option}, message);
        ExpectRefused({"vertaal", "a.idx", option, ""}, message);
    }
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "a.idx", ""}, "Er ontbreekt een waarde bij bestanden");
}

TEST_F(TranslateOptions, AControlTableNamesTheCodes) {
    ASSERT_EQ(Translate("idex-nen1878", {"--project", "t.nst", "a.idx", "uit.sfn"}).status, 0);
    const std::string output = Bytes("uit.sfn");
    EXPECT_TRUE(Has(output, "03MQ22      G0101"));
    EXPECT_TRUE(Has(output, "06A20TMAAIVELD"));
    EXPECT_TRUE(Has(output, "BZAND  0"));
    EXPECT_FALSE(Has(output, "Q20"));
}

TEST_F(TranslateOptions, WithoutAControlTableEverythingIsUnknownAndTakenAlong) {
    const ProgramResult result = Translate("idex-nen1878", {"a.idx", "uit.sfn"});
    EXPECT_EQ(Counts(result), "3 punten, 1 lijnstrings, 1 lijnsegmenten, 1 teksten, 5 onbekende objecten, 0 fouten\n");
    const std::string output = Bytes("uit.sfn");
    EXPECT_TRUE(Has(output, "03MQ20      G0101"));
    EXPECT_TRUE(Has(output, "03MQ00      G1201"));
    EXPECT_TRUE(Has(output, "KZ19"));
    EXPECT_TRUE(Has(output, "BVOSAI 0"));  // the source follows from the short name, as after any load

    ASSERT_EQ(Translate("nen1878-idex", {"a.nen", "uit.idx"}).status, 0);
    EXPECT_TRUE(Has(Bytes("uit.idx"), "\"STANDRD\",\"ONBEKEND PUNTOBJECT\""));
}

TEST_F(TranslateOptions, AControlTableThatCannotBeReadEndsTheProgram) {
    const std::string before = folder.Listing();
    const ProgramResult missing = Translate("idex-nen1878", {"--project", "nergens.nst", "a.idx"});
    EXPECT_EQ(missing.status, 3);
    EXPECT_EQ(missing.error, "Kon bestand: 'nergens.nst' niet openen;\nFoutcode: 53\nBestand niet gevonden\n");
    const ProgramResult aFolder = Translate("idex-nen1878", {"--project", ".", "a.idx"});
    EXPECT_EQ(aFolder.status, 3);
    EXPECT_EQ(aFolder.error, "Kon bestand: '.' niet openen;\nFoutcode: 75\nFout bij toegang tot pad of bestand\n");
    EXPECT_EQ(folder.Listing(), before);
}

TEST_F(TranslateOptions, TheAnswerToUnknownObjectsGoesBeforeTheControlTable) {
    const auto pointsWritten = [this](const std::string& answer) {
        std::vector<std::string> arguments = {"--project", "t.nst", "a.idx", "uit.sfn"};
        if (!answer.empty()) arguments.insert(arguments.end(), {"--onbekend", answer});
        EXPECT_EQ(Translate("idex-nen1878", arguments).status, 0);
        return Has(Bytes("uit.sfn"), "03MQ20      G0101");
    };
    EXPECT_FALSE(pointsWritten(""));
    EXPECT_TRUE(pointsWritten("ja"));
    EXPECT_FALSE(pointsWritten("nee"));
    folder.Write("t.nst", ReplaceInTable("IncludeUnknown = 0", "IncludeUnknown = 1"));
    EXPECT_TRUE(pointsWritten(""));
    EXPECT_FALSE(pointsWritten("nee"));
    ExpectRefused({"vertaal", "--modus", "idex-suf2", "--onbekend", "Ja", "a.idx"},
                  "Ongeldige waarde bij --onbekend: Ja (ja of nee)");
}

TEST_F(TranslateOptions, TheAnswerToUnknownObjectsAlsoGoesForImports) {
    const std::vector<std::string> arguments = {"--project", "t.nst", "a.nen", "uit.idx"};
    ASSERT_EQ(Translate("nen1878-idex", arguments).status, 0);
    EXPECT_FALSE(Has(Bytes("uit.idx"), "9000.0000"));
    std::vector<std::string> withUnknowns = arguments;
    withUnknowns.insert(withUnknowns.begin(), {"--onbekend", "ja"});
    ASSERT_EQ(Translate("nen1878-idex", withUnknowns).status, 0);
    EXPECT_TRUE(Has(Bytes("uit.idx"), "9000.0000"));
}

TEST_F(TranslateOptions, TheSourceKindStandsInEveryCodeRecord) {
    for (const char kind : {'0', '1', '2', '3', '4', '5'}) {
        ASSERT_EQ(Translate("idex-nen1878", {"--bronvermelding", std::string(1, kind), "a.idx", "uit.sfn"}).status, 0);
        EXPECT_TRUE(Has(Bytes("uit.sfn"), std::string("03MQ20      G0101") + kind + "1   D 20240514")) << kind;
    }
    for (const char* const wrong : {"6", "-1", "12", "a", "1.0"}) {
        ExpectRefused({"vertaal", "--modus", "idex-nen1878", std::string("--bronvermelding=") + wrong, "a.idx"},
                      std::string("Ongeldige waarde bij --bronvermelding: ") + wrong + " (0 tot en met 5)");
    }
}

TEST_F(TranslateOptions, TheSelectionLimitsAnImport) {
    const auto countsWith = [this](const std::string& rectangle) {
        return Counts(Translate("nen1878-idex", {"--selectie", rectangle, "a.nen", "uit.idx"}));
    };
    // The edges of the rectangle belong to it.
    EXPECT_TRUE(countsWith("0,0,10000,10000").starts_with("4 punten, 1 lijnstrings"));
    EXPECT_TRUE(countsWith("1000,2000,1000,2000").starts_with("3 punten, 1 lijnstrings"));
    EXPECT_TRUE(countsWith("1000.001,0,1e4,10000.").starts_with("1 punten, 0 lijnstrings"));
    EXPECT_TRUE(countsWith(" -5 , -5 , 5 , 5 ").starts_with("0 punten, 0 lijnstrings"));
    for (const std::string wrong :
         {"1,2,3", "1,2,3,4,5", "1,2,3,", "a,2,3,4", "1;2;3;4", "1,2,3,4x", "5,0,1,9", "0,5,9,1", "0,0,1e999,1"}) {
        ExpectRefused({"vertaal", "--modus", "nen1878-idex", "--selectie", wrong, "a.nen"},
                      "Ongeldige waarde bij --selectie: " + wrong + " (MINX,MINY,MAXX,MAXY in meters)");
    }
}

TEST_F(TranslateOptions, ASelectionOfAnExportIsToldToDoNothing) {
    const ProgramResult result = Translate("idex-nen1878", {"--selectie", "0,0,1,1", "a.idx", "uit.sfn"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.error.starts_with("--selectie geldt alleen voor een vertaling naar IDEX.\n")) << result.error;
    EXPECT_TRUE(Counts(result).starts_with("3 punten"));
}

TEST_F(TranslateOptions, TheRectangleOfTheUserIsNotUsed) {
    folder.Write("register.reg", WithCrLf("Windows Registry Editor Version 5.00\n\n"
                                          "[HKEY_CURRENT_USER\\Software\\TERAMUND\\KORVANDE]\n"
                                          "\"ClipXY\"=\"1\"\n\"MaxX\"=\"1\"\n"));
    EXPECT_TRUE(Counts(Translate("nen1878-idex", {"a.nen", "uit.idx"})).starts_with("4 punten"));
}

TEST_F(TranslateOptions, AnAnswerGivenBeforehandIsUsedAndTold) {
    const std::string question =
        "De NEN1878 file lijkt een oud formaat SUF2 bestand te zijn.\nAls SUF2 verder verwerken ?";
    const ProgramResult yes = Translate("nen1878-idex", {"--antwoord", "ja", "a.suf", "uit.idx"});
    EXPECT_EQ(yes.status, 0);
    EXPECT_TRUE(yes.error.starts_with(question + " ja\n")) << yes.error;
    EXPECT_TRUE(Has(Log("uit.LOG"), question + "\n==>  Verwerking vervolgd als SUF2 bestand\n"));
    const ProgramResult no = Translate("nen1878-idex", {"--antwoord", "nee", "a.suf", "uit.idx"});
    EXPECT_EQ(no.status, 0);
    EXPECT_TRUE(Has(no.error, question + " nee\n"));
    EXPECT_TRUE(Has(Log("uit.LOG"), "==>  Verwerking vervolgd als NEN1878 bestand\n"));
    ExpectRefused({"vertaal", "--modus", "nen1878-idex", "--antwoord", "misschien", "a.suf"},
                  "Ongeldige waarde bij --antwoord: misschien (ja, nee of annuleren)");
}

TEST_F(TranslateOptions, WithoutATerminalQuestionsAreAnsweredYes) {
    const ProgramResult result = Translate("nen1878-idex", {"a.suf", "uit.idx"}, {.input = "n\n"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(Has(result.error, "Als SUF2 verder verwerken ? ja\n"));
}

TEST_F(TranslateOptions, CancellingAtAQuestionKeepsAnEarlierOutput) {
    folder.Write("uit.idx", "van gisteren");
    const ProgramResult result = Translate("nen1878-idex", {"--antwoord", "annuleren", "a.suf", "uit.idx"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "NEN1878 import afgebroken door gebruiker.\n"));
    EXPECT_TRUE(Has(result.error, "a.suf is niet vertaald: afgebroken. Zie het logboek: uit.LOG\n"));
    EXPECT_EQ(Bytes("uit.idx"), "van gisteren");
    EXPECT_TRUE(Has(Log("uit.LOG"), "==>  NEN1878 import afgebroken door gebruiker.\n"));
    EXPECT_EQ(folder.Listing(), "a.idx a.nen a.suf t.nst uit.LOG uit.idx");
}

TEST_F(TranslateOptions, QuietMeansNoAccountButStillTroubles) {
    EXPECT_EQ(Translate("idex-nen1878", {"--stil", "a.idx", "uit.sfn"}).error, "");
    EXPECT_EQ(Translate("idex-nen1878", {"--stil", "a.nen", "uit.sfn"}).error,
              "a.nen is niet vertaald: het is geen IDEX bestand. Zie het logboek: uit.LOG\n");
}

TEST_F(TranslateOptions, TheAccountTellsWhatWasLeftOut) {
    const ProgramResult result = Translate("idex-nen1878", {"--project", "t.nst", "a.idx", "uit.sfn"});
    EXPECT_EQ(result.error,
              "Volgens de controletabel en de instellingen:\n"
              "  het bestand is gelezen als UTF-8 (op regel 33)\n"
              "  1 punt met een onbekende code (op regel 18)\n"
              "Punten: 3 gelezen, 2 geschreven, 1 weggelaten (1 onbekende code)\n"
              "Lijnsegmenten: 1 gelezen, 1 geschreven, 0 weggelaten\n"
              "Teksten: 1 gelezen, 1 geschreven, 0 weggelaten\n");
}

TEST_F(TranslateOptions, TheLogBookStaysWhateverTheControlTableSays) {
    for (const char* const destination : {"None", "Printer", "File", "Screen"}) {
        folder.Write("t.nst", ReplaceInTable("Reporting = None", std::string("Reporting = ") + destination));
        ASSERT_EQ(Translate("idex-nen1878", {"--project", "t.nst", "a.idx", "uit.sfn"}).status, 0) << destination;
        EXPECT_TRUE(Has(Log("uit.LOG"), " Statistiek:\n")) << destination;
        std::filesystem::remove(folder.Path() + "/uit.LOG");
    }
}

TEST_F(TranslateOptions, TheLogBookGoesWhereAsked) {
    ASSERT_EQ(Translate("idex-nen1878", {"--logboek", "Mijn één.txt", "a.idx", "uit.sfn"}).status, 0);
    EXPECT_EQ(folder.Listing(), "Mijn één.txt a.idx a.nen a.suf t.nst uit.sfn");
    EXPECT_TRUE(Has(Log("Mijn één.txt"), "IDEX bestand:    \"a.idx\"\nSUF/NEN bestand: \"uit.sfn\"\n"));
}

TEST_F(TranslateOptions, WithoutALogBookTheErrorsAreTold) {
    folder.Write("b.nen", smallNen1878.substr(0, 3 * recordBytes) + smallNen1878.substr(8 * recordBytes));
    const ProgramResult result = Translate("nen1878-idex", {"--geen-logboek", "b.nen", "uit.idx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.error, "FOUT:  Punt, 04 record ontbreekt\n")) << result.error;
    EXPECT_TRUE(Has(result.error, "b.nen is vertaald, met 1 fout en 1 verloren object.\n")) << result.error;
    EXPECT_EQ(folder.Listing(), "a.idx a.nen a.suf b.nen t.nst uit.idx");
    ExpectRefused({"vertaal", "--modus", "idex-suf2", "--geen-logboek", "--logboek", "x", "a.idx"},
                  "--logboek en --geen-logboek gaan niet samen.");
}

TEST_F(TranslateOptions, NamesThatAreLeftOutFollowFromTheOthers) {
    const auto translated = [this](const std::string& mode, const std::string& input, const std::string& bytes) {
        const TestFolder own;
        own.Write(input, bytes);
        const ProgramResult result = Translate(mode, {own.Path() + "/" + input});
        EXPECT_EQ(result.status, 0) << result.error;
        return own.Listing();
    };
    EXPECT_EQ(translated("idex-nen1878", "KAART.idx", smallIdex), "KAART.LOG KAART.SFN KAART.idx");
    EXPECT_EQ(translated("idex-suf2", "KAART.IDEX", smallIdex), "KAART.IDEX KAART.ILOG KAART.ISFN");
    EXPECT_EQ(translated("nen1878-idex", "X.NEN", smallNen1878), "X.IDX X.LOG X.NEN");
    EXPECT_EQ(translated("suf2-idex", "X.suf", smallSuf2), "X.IDX X.LOG X.suf");
}

TEST_F(TranslateOptions, AnInputBehindTwoDashesMayBeginWithADash) {
    folder.Write("-a.idx", smallIdex);
    const ProgramResult result = Run({"vertaal", "--modus", "idex-nen1878", "--", "-a.idx", "--uit.sfn"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(IsThere("--uit.sfn"));
}

}  // namespace

}  // namespace korvande::testing
