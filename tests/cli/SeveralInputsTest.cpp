#include <filesystem>
#include <utility>

#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class SeveralInputs : public CliTest {
 protected:
    SeveralInputs() { folder.Write("a.idx", smallIdex); }

    fs::path Path(const std::string& name) const { return fs::path(folder.Path()) / name; }

    // Beside "a.idx" a drawing with other unknown codes, and more of them, and a table that knows neither's.
    void WriteOtherCodes() {
        folder.Write("t.nst", smallTable);
        std::string other = smallIdex;
        for (const auto& [known, unknown] :
             {std::pair("\"VREEMD\"", "\"ANDERS\""),
              {"\"A2\",1010.0000,2000.0000,0.0000,\"MV\"", "\"A2\",1010.0000,2000.0000,0.0000,\"ANDERS\""},
              {"\"MUUR\"", "\"HAAG\""}}) {
            other.replace(other.find(known), std::string(known).size(), unknown);
        }
        folder.Write("b.idx", other);
    }
};

TEST_F(SeveralInputs, AnOutputFolderTakesEachInputUnderItsNameWithItsOwnLogBook) {
    folder.Write("b.met.punten.idx", smallIdex);
    folder.Write("zonder", smallIdex);
    fs::create_directory(Path("uit"));
    const ProgramResult result =
        Translate("idex-nen1878", {"--uitvoermap", "uit/", "a.idx", "b.met.punten.idx", "zonder"});
    EXPECT_EQ(result.status, 0) << result.error;
    const std::string counts =
        ": 3 punten, 1 lijnstrings, 1 lijnsegmenten, 1 teksten, 5 onbekende objecten, 0 fouten\n";
    EXPECT_EQ(result.output, "uit/a.sfn" + counts + "uit/b.met.punten.sfn" + counts + "uit/zonder.sfn" + counts);
    EXPECT_TRUE(Has(Log("uit/a.LOG"), "SUF/NEN bestand: \"uit/a.sfn\"\n"));
    EXPECT_TRUE(IsThere("uit/b.met.punten.LOG"));
    EXPECT_TRUE(IsThere("uit/zonder.LOG"));
    EXPECT_EQ(folder.Listing(), "a.idx b.met.punten.idx uit zonder");
}

TEST_F(SeveralInputs, TheExtensionIsThatOfTheTargetFormat) {
    folder.Write("n.sfn", smallNen1878);
    folder.Write("s.sf2", smallSuf2);
    fs::create_directory(Path("uit"));
    EXPECT_EQ(Translate("idex-suf2", {"--uitvoermap", "uit/", "a.idx"}).status, 0);
    EXPECT_EQ(Translate("nen1878-idex", {"--uitvoermap", "uit/", "n.sfn"}).status, 0);
    EXPECT_EQ(Translate("suf2-idex", {"--uitvoermap", "./uit", "s.sf2"}).status, 0);
    for (const char* const name : {"uit/a.sf2", "uit/a.LOG", "uit/n.idx", "uit/n.LOG", "uit/s.idx", "uit/s.LOG"}) {
        EXPECT_TRUE(IsThere(name)) << name;
    }
}

TEST_F(SeveralInputs, EveryInputStartsAfresh) {
    fs::create_directory(Path("uit"));
    fs::create_directory(Path("een"));
    folder.Write("b.idx", smallIdex);
    ASSERT_EQ(Translate("idex-nen1878", {"--uitvoermap", "uit/", "a.idx", "b.idx"}).status, 0);
    ASSERT_EQ(Translate("idex-nen1878", {"--uitvoermap", "een", "b.idx"}).status, 0);
    EXPECT_EQ(Bytes("uit/b.sfn"), Bytes("een/b.sfn"));
    EXPECT_EQ(Bytes("uit/a.sfn"), Bytes("uit/b.sfn"));
}

TEST_F(SeveralInputs, NoInputSeesTheUnknownCodesAndCountsOfAnother) {
    WriteOtherCodes();
    Start start;
    start.environment["SOURCE_DATE_EPOCH"] = "0";
    const auto translate = [&](std::vector<std::string> inputs) {
        fs::remove_all(Path("uit"));
        fs::create_directory(Path("uit"));
        inputs.insert(inputs.begin(), {"--project", "t.nst", "--onbekend", "ja", "--uitvoermap", "uit"});
        const ProgramResult result = Translate("idex-nen1878", inputs, start);
        EXPECT_EQ(result.status, 0) << result.error;
        return result;
    };
    const ProgramResult onlyA = translate({"a.idx"});
    const std::string logOfA = Log("uit/a.LOG");
    const ProgramResult onlyB = translate({"b.idx"});
    const std::string logOfB = Log("uit/b.LOG");
    EXPECT_TRUE(Has(onlyA.output, ", 1 onbekende objecten, ")) << onlyA.output;
    EXPECT_TRUE(Has(onlyB.output, ", 3 onbekende objecten, ")) << onlyB.output;
    EXPECT_TRUE(Has(logOfA, "VREEMD") && !Has(logOfA, "ANDERS") && !Has(logOfA, "HAAG")) << logOfA;
    EXPECT_TRUE(Has(logOfB, "ANDERS") && Has(logOfB, "HAAG") && !Has(logOfB, "VREEMD")) << logOfB;

    for (const bool aFirst : {true, false}) {
        const ProgramResult both =
            translate(aFirst ? std::vector<std::string>{"a.idx", "b.idx"} : std::vector<std::string>{"b.idx", "a.idx"});
        EXPECT_EQ(both.output, aFirst ? onlyA.output + onlyB.output : onlyB.output + onlyA.output);
        const std::string errors = aFirst ? onlyA.error + onlyB.error : onlyB.error + onlyA.error;
        EXPECT_TRUE(both.error.starts_with(errors + "Alles samen: 2 bestanden, waarvan 2 vertaald\n")) << both.error;
        EXPECT_EQ(Log("uit/a.LOG"), logOfA);
        EXPECT_EQ(Log("uit/b.LOG"), logOfB);
    }
}

TEST_F(SeveralInputs, NoCheckSeesTheCodesOfAnotherFile) {
    WriteOtherCodes();
    const std::string onlyA = Run({"controleer", "--project", "t.nst", "a.idx"}).output;
    const std::string onlyB = Run({"controleer", "--project", "t.nst", "b.idx"}).output;
    EXPECT_TRUE(Has(onlyA, "  Puntcode 'VREEMD' staat niet in de controletabel: 1 maal\n")) << onlyA;
    EXPECT_TRUE(Has(onlyB, "  Puntcode 'ANDERS' staat niet in de controletabel: 2 maal\n")) << onlyB;
    EXPECT_EQ(Run({"controleer", "--project", "t.nst", "a.idx", "b.idx"}).output, onlyA + onlyB);
    EXPECT_EQ(Run({"controleer", "--project", "t.nst", "b.idx", "a.idx"}).output, onlyB + onlyA);
}

TEST_F(SeveralInputs, AFailureAmongSeveralInputsKeepsNoneOfTheOthersBack) {
    folder.Write("b.idx", "geen tekening");
    folder.Write("c.idx", smallIdex);
    fs::create_directory(Path("uit"));
    const ProgramResult result =
        Translate("idex-nen1878", {"--stil", "--uitvoermap", "uit/", "b.idx", "nergens.idx", "a.idx", "c.idx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.error, "b.idx is niet vertaald: het is geen IDEX bestand. Zie het logboek: uit/b.LOG\n"));
    EXPECT_TRUE(Has(result.error, "nergens.idx is niet vertaald: het bestand kan niet worden gelezen."));
    EXPECT_TRUE(IsThere("uit/a.sfn"));
    EXPECT_TRUE(IsThere("uit/c.sfn"));
    EXPECT_FALSE(IsThere("uit/b.sfn"));
    EXPECT_TRUE(Has(Log("uit/nergens.LOG"), "==>  Bestand: nergens.idx niet gevonden; verwerking afgebroken.\n"));

    EXPECT_EQ(Translate("idex-nen1878", {"--uitvoermap", "uit/", "b.idx"}).status, 3);
}

TEST_F(SeveralInputs, InputsThatWouldGetTheSameOutputAreRefused) {
    fs::create_directory(Path("map"));
    fs::create_directory(Path("uit"));
    folder.Write("map/a.IDX", smallIdex);
    folder.Write("A.txt", smallIdex);
    const std::string message = "Meer dan een invoerbestand krijgt deze uitvoer:\nuit/";
    const auto arguments = [](const std::string& second) {
        return std::vector<std::string>{"vertaal", "--modus", "idex-suf2", "--uitvoermap", "uit/", "a.idx", second};
    };
    ExpectRefused(arguments("map/a.IDX"), message + "a.sf2");
    ExpectRefused(arguments("A.txt"), message + "A.sf2");
    ExpectRefused(arguments("a.idx"), message + "a.sf2");
    EXPECT_TRUE(fs::is_empty(Path("uit")));
}

TEST_F(SeveralInputs, AnInputThatAnotherInputWouldOverwriteIsRefused) {
    folder.Write("a.sfn", smallIdex);
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--uitvoermap", "./", "a.idx", "a.sfn"},
                  "Invoer en uitvoer zijn hetzelfde bestand:\n./a.sfn");
    folder.Write("b.LOG", smallIdex);
    folder.Write("b.idx", smallIdex);
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--uitvoermap", "./", "b.idx", "b.LOG"},
                  "Meer dan een invoerbestand krijgt deze uitvoer:\n./b.sfn");
    folder.Write("c.idx", smallIdex);
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--uitvoermap", "./", "c.idx", "b.LOG", "B.idx"},
                  "Meer dan een invoerbestand krijgt deze uitvoer:\n./B.sfn");
}

TEST_F(SeveralInputs, OneLogBookGoesWithOneInputOnly) {
    folder.Write("b.idx", smallIdex);
    fs::create_directory(Path("uit"));
    ExpectRefused({"vertaal", "--modus", "idex-suf2", "--uitvoermap", "uit/", "--logboek", "l.txt", "a.idx", "b.idx"},
                  "--logboek gaat samen met een invoerbestand; elk bestand krijgt zijn eigen logboek.");
    EXPECT_EQ(Translate("idex-suf2", {"--uitvoermap", "uit/", "--logboek", "l.txt", "a.idx"}).status, 0);
    EXPECT_TRUE(IsThere("l.txt"));
    EXPECT_FALSE(IsThere("uit/a.LOG"));
}

TEST_F(SeveralInputs, AnOutputFolderThatIsNotThereIsAFailure) {
    const ProgramResult result = Translate("idex-suf2", {"--uitvoermap", "nergens/", "a.idx"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Kon bestand: 'nergens/a.LOG' niet opslaan;\nFoutcode: 76\nPad niet gevonden\n"));
    EXPECT_TRUE(Has(result.error, "a.idx is niet vertaald: het logboek kan niet worden geschreven.\n"));
    EXPECT_EQ(folder.Listing(), "a.idx");
}

}  // namespace

}  // namespace korvande::testing
