#include "tests/reliability/FaultTest.h"

// Names that mean harm: to a terminal, or to files that the run has nothing to do with.
namespace korvande::testing {

namespace {

class HostileNames : public FaultTest {
 protected:
    // Whether nothing but texts and line ends is shown.
    static bool IsHarmless(const std::string& shown) {
        return std::none_of(shown.begin(), shown.end(), [](char c) {
            const auto byte = static_cast<unsigned char>(c);
            return (byte < 0x20 && c != '\n') || byte == 0x7F;
        });
    }
};

TEST_F(HostileNames, AFileNameWithControlCharactersIsTranslatedAndShownHarmlessly) {
    const std::string name = "kaart\x1B[2J\x07\t\x7F";
    folder.Write(name + ".idx", smallIdex);
    const ProgramResult result = Translate("idex-nen1878", {"--project", "t.nst", name + ".idx", name + ".sfn"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(Bytes(name + ".sfn").starts_with("010NEN1878"));
    EXPECT_TRUE(result.output.starts_with("kaart?[2J???.sfn: ")) << result.output;
    EXPECT_TRUE(IsHarmless(result.output)) << result.output;
    EXPECT_TRUE(IsHarmless(result.error)) << result.error;
    const ProgramResult missing = Translate("idex-nen1878", {"weg" + name, "uit.sfn"});
    EXPECT_EQ(missing.status, 3);
    EXPECT_TRUE(IsHarmless(missing.error)) << missing.error;
}

TEST_F(HostileNames, ALineEndInAFileNameMakesNoErrorInTheLogBook) {
    const std::string name = "kaart\nFOUT:  verzonnen.idx";
    folder.Write(name, smallIdex);
    const ProgramResult result = Translate("idex-nen1878", {"--project", "t.nst", "--logboek", "l.log", name, "u.sfn"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(Has(result.output, ", 0 fouten\n")) << result.output;
}

TEST_F(HostileNames, AnInputThatLeavesTheFolderIsStillTranslatedIntoTheOutputFolder) {
    fs::create_directories(Path("diep/werk/uit"));
    fs::copy_file(Path("a.idx"), Path("diep/..dubbel.idx"));
    Start start;
    start.program = "sh";
    start.arguments = {"-c", "cd diep/werk && exec \"$@\"", "sh", KORVANDE_CLI};
    const ProgramResult result =
        Translate("idex-nen1878", {"--uitvoermap", "uit", "../../a.idx", "..\\..dubbel.idx"}, start);
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(IsThere("diep/werk/uit/a.sfn"));
    EXPECT_TRUE(IsThere("diep/werk/uit/..dubbel.sfn"));
    EXPECT_EQ(folder.Listing(), "a.idx a.nen diep t.nst");
    EXPECT_EQ(std::distance(fs::directory_iterator(Path("diep")), fs::directory_iterator()), 2);
}

TEST_F(HostileNames, AControlTableThatNamesOtherFilesGetsNoneOfThemTouched) {
    folder.Write("bewaren.idx", "bewaren");
    folder.Write("bewaren.sfn", "bewaren");
    folder.Write("kwaad.nst", "[NEN1878]\r\nSTANDALONEALLOWED = YES\r\nIDEXFile = " + folder.Path() +
                                  "/bewaren.idx\r\nSUFNENFile = " + folder.Path() +
                                  "/bewaren.sfn\r\nSUF2Path = /\r\nReporting = Printer\r\n[End]\r\n");
    const std::string before = Bytes("kwaad.nst");
    for (const auto& [mode, input] : {std::pair("idex-nen1878", "a.idx"), std::pair("nen1878-idex", "a.nen")}) {
        const ProgramResult result = Translate(mode, {"--project", "kwaad.nst", input, "uit"});
        EXPECT_EQ(result.status, 0) << result.error;
        EXPECT_TRUE(IsThere("uit"));
    }
    EXPECT_EQ(Bytes("bewaren.idx"), "bewaren");
    EXPECT_EQ(Bytes("bewaren.sfn"), "bewaren");
    EXPECT_EQ(Bytes("kwaad.nst"), before);
    EXPECT_EQ(folder.Listing(), "LOG a.idx a.nen bewaren.idx bewaren.sfn kwaad.nst t.nst uit");
}

TEST_F(HostileNames, ATextWithEscapeCodesReachesTheFileButNotTheTerminal) {
    std::string drawing = smallIdex;
    drawing.replace(drawing.find("Caf"), 4, "\x1B[31mrood");
    drawing.replace(drawing.find("1, 1 , 1 , 0,"), 13, "1, 9 , 1 , 0,");
    folder.Write("b.idx", drawing);
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"vertaal", "--modus", "idex-nen1878", "--project", "t.nst", "--geen-logboek",
                                   "b.idx", "uit.sfn"},
          std::vector<std::string>{"controleer", "--project", "t.nst", "b.idx"}}) {
        const ProgramResult result = Run(words);
        EXPECT_TRUE(Has(result.error + result.output, "Tekst 1 verwijst naar een onbekend punt")) << result.error;
        EXPECT_TRUE(IsHarmless(result.output)) << result.output;
        EXPECT_TRUE(IsHarmless(result.error)) << result.error;
    }
}

}  // namespace

}  // namespace korvande::testing
