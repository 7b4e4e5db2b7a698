#include <chrono>
#include <filesystem>

#include <nlohmann/json.hpp>

#include "tests/cli/CliTest.h"
#include "tests/cli/JsonSchema.h"

// What commands print with --json, each document held against the schema.
namespace korvande::testing {

namespace {

using nlohmann::ordered_json;

class JsonOutput : public CliTest {
 protected:
    JsonOutput() {
        folder.Write("klein.idx", smallIdex);
        folder.Write("klein.sfn", smallNen1878);
        folder.Write("klein.nst", smallTable);
    }

    // The document that a command prints, and the exit status in it, which is the program's.
    ordered_json Document(const std::vector<std::string>& arguments) {
        last = Run(arguments);
        ExpectToFitSchema(last.output);
        const ordered_json document = ordered_json::parse(last.output);
        EXPECT_EQ(document["afsluitstatus"], last.status);
        EXPECT_EQ(document["versie"], 1);
        return document;
    }

    ProgramResult last;
};

TEST_F(JsonOutput, ATranslationIsToldInsteadOfItsLineAndTheRestStaysOnStandardError) {
    const std::vector<std::string> plain = {"vertaal", "--modus", "idex-nen1878", "klein.idx", "a.sfn"};
    const ProgramResult expected = Run(plain);
    const std::string bytes = Bytes("a.sfn");
    const ordered_json document = Document({"vertaal", "--json", "--modus", "idex-nen1878", "klein.idx", "a.sfn"});
    EXPECT_EQ(last.status, 0);
    EXPECT_EQ(last.error, expected.error);
    EXPECT_EQ(Bytes("a.sfn"), bytes);
    ASSERT_EQ(document["bestanden"].size(), 1U);
    const ordered_json& file = document["bestanden"][0];
    EXPECT_EQ(file["uitvoer"], "a.sfn");
    EXPECT_EQ(file["logboek"], "a.LOG");
    EXPECT_EQ(file["aantallen"]["punten"], 3);
    EXPECT_EQ(file["onbekendeCodes"].size(), 4U);
}

TEST_F(JsonOutput, WithoutALogBookItsNameIsNull) {
    const ordered_json document =
        Document({"vertaal", "--json", "--geen-logboek", "--modus", "idex-nen1878", "klein.idx", "a.sfn"});
    EXPECT_TRUE(document["bestanden"][0]["logboek"].is_null());
}

TEST_F(JsonOutput, EachInputHasItsElementInTheirOrderWhateverTheNumberOfWorkers) {
    std::filesystem::create_directory(folder.Path() + "/uit");
    std::vector<std::string> arguments = {"vertaal", "--json", "--modus", "idex-nen1878", "--uitvoermap", "uit"};
    for (const char* const name : {"a.idx", "b.idx", "c.idx", "d.idx"}) {
        folder.Write(name, smallIdex);
        arguments.emplace_back(name);
    }
    folder.Write("c.idx", "geen tekening");
    std::vector<std::string> outputs;
    for (const char* const workers : {"1", "4"}) {
        std::vector<std::string> all = arguments;
        all.insert(all.end(), {"--taken", workers});
        const ordered_json document = Document(all);
        EXPECT_EQ(last.status, 1);
        std::string statuses;
        for (const ordered_json& file : document["bestanden"])
            statuses += file["invoer"].get<std::string>() + file["status"].dump() + " ";
        EXPECT_EQ(statuses, "a.idx0 b.idx0 c.idx3 d.idx0 ");
        EXPECT_EQ(document["bestanden"][2]["afloop"], "ander formaat");
        outputs.push_back(last.output);
    }
    EXPECT_EQ(outputs[0], outputs[1]);
}

TEST_F(JsonOutput, WhatAnEarlierBatchDidIsMarkedAsSkipped) {
    std::filesystem::create_directory(folder.Path() + "/uit");
    // Times of files may be whole seconds.
    std::filesystem::last_write_time(folder.Path() + "/klein.idx",
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    const std::vector<std::string> arguments = {"vertaal", "--json",    "--modus", "idex-nen1878", "--uitvoermap",
                                                "uit",     "--verslag", "v.csv",   "--hervat",     "klein.idx"};
    EXPECT_FALSE(Document(arguments)["bestanden"][0].contains("hervat"));
    EXPECT_EQ(Document(arguments)["bestanden"][0]["hervat"], true);
}

TEST_F(JsonOutput, AControlTableThatIsNotThereLeavesAWholeDocument) {
    const ordered_json document =
        Document({"vertaal", "--json", "--modus", "idex-nen1878", "--project", "weg.nst", "klein.idx", "a.sfn"});
    EXPECT_EQ(last.status, 3);
    EXPECT_TRUE(document["bestanden"].empty());
}

TEST_F(JsonOutput, AComparisonTellsItsCountsAndDifferences) {
    const ordered_json document = Document({"vergelijk", "--json", "--project", "klein.nst", "klein.idx", "klein.sfn"});
    EXPECT_EQ(last.status, 1);
    EXPECT_EQ(document["gelijk"], false);
    EXPECT_EQ(document["eerste"], ordered_json({{"bestand", "klein.idx"}, {"formaat", "IDEX"}, {"heel", true}}));
    EXPECT_EQ(document["tweede"]["formaat"], "NEN1878");
    std::int64_t told = 0;
    for (const ordered_json& count : document["tellingen"]) {
        told += count["gewijzigd"].get<std::int64_t>() + count["ontbreekt"].get<std::int64_t>() +
                count["toegevoegd"].get<std::int64_t>();
    }
    EXPECT_EQ(static_cast<std::int64_t>(document["verschillen"].size()), told);
    EXPECT_EQ(document["verschillen"][0]["plaats"], ordered_json({{"x", 1000.0}, {"y", 2000.0}}));
}

TEST_F(JsonOutput, EqualDrawingsHaveNoDifferences) {
    const ordered_json document = Document({"vergelijk", "--json", "klein.idx", "klein.idx"});
    EXPECT_EQ(last.status, 0);
    EXPECT_EQ(document["gelijk"], true);
    EXPECT_TRUE(document["verschillen"].empty());
}

TEST_F(JsonOutput, ADrawingThatIsNotThereLeavesAWholeDocument) {
    const ordered_json document = Document({"vergelijk", "--json", "klein.idx", "weg.idx"});
    EXPECT_EQ(last.status, 3);
    EXPECT_FALSE(document.contains("verschillen"));
}

TEST_F(JsonOutput, AControlTableIsToldWithItsSettingsAndRows) {
    const ordered_json document = Document({"project", "toon", "--json", "klein.nst"});
    EXPECT_EQ(last.status, 0);
    EXPECT_EQ(document["bestand"], "klein.nst");
    EXPECT_EQ(document["instellingen"][0]["sleutel"], "SUFNENFile");
    EXPECT_GT(document["codetabellen"]["punten"].size(), 1U);
}

TEST_F(JsonOutput, ACheckTellsWhatIsWrongWithTheLinesOfItsPlainWords) {
    std::string broken = smallIdex;
    const std::string end = "2, \"A2\",STRAIGHT";
    broken.replace(broken.find(end), end.size(), "9, \"A9\",STRAIGHT");
    folder.Write("stuk.idx", broken);
    const ProgramResult plain = Run({"controleer", "--alles", "stuk.idx"});
    const ordered_json document = Document({"controleer", "--json", "--alles", "stuk.idx"});
    EXPECT_EQ(last.status, plain.status);
    const ordered_json& file = document["bestanden"][0];
    EXPECT_EQ(file["formaat"], "IDEX");
    EXPECT_EQ(file["aantallen"]["punten"], 3);
    EXPECT_FALSE(file["problemen"].empty());
    for (const ordered_json& problem : file["problemen"]) {
        EXPECT_TRUE(Has(plain.output, "\n  " + problem["tekst"].get<std::string>())) << problem;
    }
    EXPECT_EQ(file["ligging"], "buiten RD");
    ASSERT_FALSE(file["onbekendeCodes"].empty());
    for (const ordered_json& code : file["onbekendeCodes"]) {
        EXPECT_TRUE(Has(plain.output, code["code"].get<std::string>())) << code;
    }
}

TEST_F(JsonOutput, AFileThatCannotBeCheckedHasAnElementToo) {
    folder.Write("geen.txt", "geen tekening");
    const ordered_json document = Document({"controleer", "--json", "klein.idx", "geen.txt", "klein.sfn"});
    EXPECT_EQ(last.status, 3);
    ASSERT_EQ(document["bestanden"].size(), 3U);
    const ordered_json failed = {{"invoer", "geen.txt"}, {"formaat", nullptr}, {"status", 3}};
    EXPECT_EQ(document["bestanden"][1], failed);
    EXPECT_EQ(document["bestanden"][2]["formaat"], "NEN1878");
}

TEST_F(JsonOutput, AWrongUsageIsNoDocument) {
    const ProgramResult result = Run({"vertaal", "--json", "--modus", "x", "klein.idx"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
}

TEST_F(JsonOutput, EveryKindOfProblemIsToldInIt) {
    std::filesystem::create_directory(folder.Path() + "/uit");
    const std::string problems = std::string(KORVANDE_SOURCE_DIR) + "/tests/problems";
    std::size_t files = 0;
    std::string kinds;
    for (const char* const mode : {"idex-nen1878", "nen1878-idex", "suf2-idex"}) {
        const ordered_json document =
            Document({"vertaal", "--json", "--antwoord", "ja", "--modus", mode, "--uitvoermap", "uit", problems});
        files += document["bestanden"].size();
        kinds += document.dump();
    }
    EXPECT_GT(files, 30U);
    for (const char* const kind : {"NoReference", "CutOff", "TextCut", "GroupNotClosed"}) {
        EXPECT_TRUE(Has(kinds, "\"soort\":\"" + std::string(kind) + "\"")) << kind;
    }
}

}  // namespace

}  // namespace korvande::testing
