#include <vector>

#include <nlohmann/json.hpp>

#include "report/CheckJson.h"
#include "report/ComparisonJson.h"
#include "report/ProjectJson.h"
#include "report/TranslationJson.h"
#include "run/Check.h"
#include "run/TranslateFiles.h"
#include "tests/run/RunTest.h"

namespace korvande::testing {

namespace {

using nlohmann::ordered_json;

constexpr std::string_view drawing =
    "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"NAAM\";\nEND LAYERS\nDATABASE\n"
    "POINTS (PointNo,PointID,East,North,Elevation,Code)\n1,\"A\",121000.5,487000.25,3,\"BOOM\";\n"
    "2,\"B\",121004,487005,6,\"PAAL\";\nEND POINTS\n"
    "LINES (LineNo,Code)\n1,\"MUUR\";\nEDGES (LineNo,StartPt,EndPt,LINETYPE)\n1,1,2,STRAIGHT;\n1,2,9,STRAIGHT;\n"
    "END EDGES\nEND LINES\nEND DATABASE\n";

class ReportJsonTest : public RunTest {
 protected:
    ReportJsonTest() {
        LoadProjectBytes(screen, project,
                         "[NEN1878]\nNameLong = Gemeente \xC9lst\n[Export]\nIncludeUnknown = 0\nIncludeZ = 1\n"
                         "[Points]\nBOOM = S01, PUNT, Boom, 1, 2, 3\n[End]\n");
    }

    Translation& Prepared() {
        input = WithCrLf(drawing);
        Translation& translation = Begin(idexToNen);
        translation.inputBytes = input;
        translation.IdexFileName = u"straat é.idx";
        translation.outputTo = OutputTo::Memory;
        translation.problems.onError = [this](const Problem& problem) { errors.push_back(problem); };
        return translation;
    }

    ordered_json Translated() {
        Translation& translation = Prepared();
        TranslateFiles(translation);
        return ordered_json::parse(TranslationJson(translation, 1, errors));
    }

    std::vector<Problem> errors;
};

TEST_F(ReportJsonTest, ATranslationTellsItsFilesAndHowItEnded) {
    const ordered_json json = Translated();
    EXPECT_EQ(json["invoer"], "straat é.idx");
    EXPECT_EQ(json["logboek"].is_null(), last->LogFileName.empty());
    EXPECT_EQ(json["modus"], "idex-nen1878");
    EXPECT_EQ(json["afloop"], "vertaald");
    EXPECT_EQ(json["status"], 1);
    EXPECT_EQ(json["aantallen"]["punten"], 2);
    EXPECT_EQ(json["aantallen"]["lijnsegmenten"], 1);
}

TEST_F(ReportJsonTest, ItsAccountBalancesAndNamesTheReasons) {
    const ordered_json json = Translated();
    std::int64_t read = 0;
    for (const ordered_json& kind : json["balans"]) {
        read += kind["gelezen"].get<std::int64_t>();
        std::int64_t leftOut = 0;
        for (const ordered_json& reason : kind["redenen"]) leftOut += reason["aantal"].get<std::int64_t>();
        EXPECT_EQ(kind["weggelaten"], leftOut);
        EXPECT_EQ(kind["gelezen"].get<std::int64_t>(), kind["geschreven"].get<std::int64_t>() + leftOut);
    }
    EXPECT_GT(read, 0);
    EXPECT_EQ(json["gelezen"], read);
    EXPECT_EQ(json["balans"][0]["object"], "punt");
    EXPECT_EQ(json["balans"][0]["redenen"][0], ordered_json({{"soort", "UnknownCode"}, {"aantal", 1}}));
}

TEST_F(ReportJsonTest, ErrorsAndWhatDidNotComeAcrossHaveTheSentencesOfTheLogBook) {
    const ordered_json json = Translated();
    ASSERT_FALSE(errors.empty());
    EXPECT_EQ(json["fouten"].size(), errors.size());
    EXPECT_EQ(json["fouten"][0]["tekst"], ToUtf8(Sentence(errors[0])));
    std::vector<std::string> texts;
    for (const ordered_json& remark : json["meldingen"]) texts.push_back(remark["tekst"]);
    std::vector<std::string> lines;
    for (const ProblemList list : {ProblemList::Loss, ProblemList::Wanted}) {
        for (const Text& line : last->problems.Lines(list)) lines.push_back(ToUtf8(line));
    }
    EXPECT_FALSE(lines.empty());
    EXPECT_EQ(texts, lines);
}

TEST_F(ReportJsonTest, UnknownCodesAreThereWhetherTheLogBookListsThemOrNot) {
    for (const bool isListed : {false, true}) {
        options.chkExportUnknowns = isListed;
        const ordered_json json = Translated();
        const ordered_json expected = {{{"tabel", "lijn"}, {"code", "MUUR"}, {"aantal", 1}},
                                       {{"tabel", "punt"}, {"code", "PAAL"}, {"aantal", 1}}};
        EXPECT_EQ(json["onbekendeCodes"], expected);
    }
}

TEST_F(ReportJsonTest, AMissingInputIsTold) {
    Translation& translation = Begin(idexToNen);
    translation.IdexFileName = folder / "is er niet.idx";
    translation.SufNenFileName = folder / "uit.sfn";
    TranslateFiles(translation);
    EXPECT_EQ(ordered_json::parse(TranslationJson(translation, 3, {}))["afloop"], "invoer onleesbaar");
}

TEST_F(ReportJsonTest, BytesOfANameThatAreNoUtf8MakeNoJsonThatIsNone) {
    Translation& translation = Begin(idexToNen);
    translation.IdexFileName = FromUtf8("a\xFF.idx");
    EXPECT_EQ(ordered_json::parse(TranslationJson(translation, 3, {}))["invoer"], "a\uFFFD.idx");
}

TEST_F(ReportJsonTest, ACheckTellsWhatTheDrawingCoversAndItsCodes) {
    Translation& translation = Prepared();
    CheckDrawing(translation);
    const std::vector<CheckFinding> findings = {{"Question", 7, u"Doorgaan?"}};
    const ordered_json json = ordered_json::parse(CheckJson(translation, u"straat.idx", Format::Idex, 1, findings));
    EXPECT_EQ(json["formaat"], "IDEX");
    EXPECT_EQ(json["problemen"][0], ordered_json({{"soort", "Question"}, {"regel", 7}, {"tekst", "Doorgaan?"}}));
    EXPECT_EQ(json["omvang"],
              ordered_json({{"minX", 121000.5}, {"minY", 487000.25}, {"maxX", 121004.0}, {"maxY", 487005.0}}));
    EXPECT_TRUE(json["ligging"].is_null());
    EXPECT_EQ(
        json["codes"][0],
        ordered_json({{"tabel", "punt"}, {"liscad", "BOOM"}, {"lki", "S01"}, {"omschrijving", "BOOM"}, {"aantal", 1}}));
}

TEST_F(ReportJsonTest, ADifferenceTellsItsPlaceInMetresAndItsReason) {
    const Difference difference{.object = ComparedKind::Point,
                                .kind = DifferenceKind::Missing,
                                .code = u"S01",
                                .place = {121000.5, 487000.25},
                                .firstLine = 12};
    const ordered_json json = ordered_json::parse(DifferenceJson(difference));
    EXPECT_EQ(json["soort"], "ontbreekt");
    EXPECT_EQ(json["plaats"], ordered_json({{"x", 121000.5}, {"y", 487000.25}}));
    EXPECT_TRUE(json["einde"].is_null());
    EXPECT_EQ(json["eersteRegel"], 12);
    EXPECT_TRUE(json["tweedeRegel"].is_null());
}

TEST_F(ReportJsonTest, OnlyKindsThatOccurAreCounted) {
    Comparison comparison;
    comparison.counts[static_cast<std::size_t>(ComparedKind::Arc)].added = 3;
    const ordered_json expected = {
        {{"object", "boog"}, {"gelijk", 0}, {"gewijzigd", 0}, {"ontbreekt", 0}, {"toegevoegd", 3}}};
    EXPECT_EQ(ordered_json::parse(ComparisonCountsJson(comparison)), expected);
}

TEST_F(ReportJsonTest, AControlTableTellsItsSettingsUnderTheirKeysAndItsRows) {
    std::map<std::string, ordered_json> values;
    for (const ordered_json& setting : ordered_json::parse(SettingsJson(project))) {
        values[setting["sectie"].get<std::string>() + "/" + setting["sleutel"].get<std::string>()] = setting["waarde"];
    }
    EXPECT_EQ(values["NEN1878/NameLong"], "GEMEENTE ÉLST");
    EXPECT_EQ(values["Export/IncludeZ"], true);
    EXPECT_EQ(values["Export/IncludeUnknown"], false);
    const ordered_json points = ordered_json::parse(CodeTablesJson(project))["punten"];
    ASSERT_EQ(points.size(), 2U);
    const ordered_json row = {{"liscad", "BOOM"}, {"lki", "S01"}, {"type", "PUNT"}, {"omschrijving", "BOOM"},
                              {"p", 1},           {"i", 2},       {"b", 3}};
    EXPECT_EQ(points[1], row);
}

}  // namespace

}  // namespace korvande::testing
