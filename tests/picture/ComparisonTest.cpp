#include "picture/Comparison.h"

#include <algorithm>
#include <map>
#include <sstream>

#include "core/Picture.h"
#include "tests/picture/PictureTest.h"
#include "tests/run/RandomDrawing.h"
#include "tests/run/SampleRun.h"

namespace korvande::testing {

namespace {

constexpr const char* kindNames[] = {"point", "segment", "arc", "circle", "text", "line", "vertex"};

// "changed point BOOM 1.000 2.000: richting 0.0 > 50.0 [reason]".
std::string Told(const Difference& difference) {
    constexpr const char* kinds[] = {"changed ", "missing ", "added "};
    std::string text = kinds[static_cast<int>(difference.kind)];
    text += kindNames[static_cast<int>(difference.object)];
    text += " " + ToUtf8(difference.code);
    if (difference.object != ComparedKind::LineString) {
        text +=
            " " + FormatPicture(difference.place.east, "0.000") + " " + FormatPicture(difference.place.north, "0.000");
    }
    if (!difference.what.empty()) text += ": " + ToUtf8(difference.what);
    return text + (difference.reason.empty() ? "" : " [" + ToUtf8(difference.reason) + "]") + "\n";
}

class Comparisons : public PictureTest {
 protected:
    // Reads a drawing of one of the formats into a translation that stays.
    std::unique_ptr<Translation> Read(Mode mode, const std::string& bytes) {
        auto translation = std::make_unique<Translation>(screen, project);
        translation->mode = mode;
        translation->inputBytes = bytes;
        ReadDrawing(*translation);
        EXPECT_FALSE(translation->outcome.Failed());
        translation->inputBytes.reset();
        return translation;
    }

    Comparison Compared(Mode mode1, const std::string& bytes1, Mode mode2, const std::string& bytes2) {
        const auto first = Read(mode1, bytes1);
        const auto second = Read(mode2, bytes2);
        return Compare(*first, *second);
    }

    std::string Differences(const Rows& first, const Rows& second) {
        return AllTold(Compared(idexToNen, Idex(first), idexToNen, Idex(second)));
    }

    static std::string AllTold(const Comparison& comparison) {
        std::string all;
        for (const Difference& difference : comparison.differences) all += Told(difference);
        return all;
    }

    // What a drawing becomes in another format.
    std::string Translated(Mode mode, const std::string& bytes) {
        EXPECT_TRUE(TranslateFiles(BeginInMemory(mode, bytes)));
        return last->outputBytes;
    }

    static std::string CountsOf(const Comparison& comparison, ComparedKind kind) {
        const ComparisonCount& count = comparison.counts[static_cast<std::size_t>(kind)];
        return std::to_string(count.equal) + " " + std::to_string(count.changed) + " " + std::to_string(count.missing) +
               " " + std::to_string(count.added);
    }

    Rows drawing{.points =
                     "1,\"101\",0,0,\"BOOM\",10,\"\"\n2,\"102\",10,0,\"HULP\",0,\"\"\n3,\"\",10,5,\"HULP\",0,\"\"\n"
                     "4,\"104\",15,5,\"HULP\",0,\"\"\n5,\"105\",50,50,\"HULP\",0,\"\"\n",
                 .lines = "1,\"MUUR\",0\n2,\"GEVEL\",0\n",
                 .edges =
                     "1,1,2,STRAIGHT\n1,2,4,STRAIGHT\n2,2,3,ARC_CENT\n2,3,4,ARC_CENT\n2,2,3,CIRCLE_CENT\n"
                     "2,3,2,CIRCLE_CENT\n",
                 .texts = "5,1,100,\"Kerk\"\n"};
};

TEST_F(Comparisons, ADrawingEqualsItself) {
    const Comparison comparison = Compared(idexToNen, Idex(drawing), idexToNen, Idex(drawing));
    EXPECT_TRUE(comparison.AreEqual());
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Point), "1 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Segment), "2 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Arc), "1 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Circle), "1 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::TextObject), "1 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::LineString), "2 0 0 0");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Vertex), "3 0 0 0");
}

TEST_F(Comparisons, NumbersByWhichAFileRefersAndItsOrderMakeNoDifference) {
    Rows other{.points =
                   "50,\"105\",50,50,\"HULP\",0,\"\"\n20,\"102\",10,0,\"HULP\",0,\"\"\n30,\"\",10,5,\"HULP\",0,\"\"\n"
                   "40,\"104\",15,5,\"HULP\",0,\"\"\n10,\"101\",0,0,\"BOOM\",10,\"\"\n",
               .lines = "7,\"GEVEL\",0\n9,\"MUUR\",0\n",
               .edges =
                   "9,20,40,STRAIGHT\n9,10,20,STRAIGHT\n7,20,30,CIRCLE_CENT\n7,30,20,CIRCLE_CENT\n"
                   "7,20,30,ARC_CENT\n7,30,40,ARC_CENT\n",
               .texts = "50,1,100,\"Kerk\"\n"};
    EXPECT_EQ(Differences(drawing, other), "");
}

TEST_F(Comparisons, WhatAPointSaysIsCompared) {
    Rows other = drawing;
    other.points =
        "1,\"109\",0.0004,0,\"BOOM\",10.2,\"EIK\"\n2,\"102\",10,0,\"HULP\",0,\"\"\n3,\"\",10,5,\"HULP\",0,\"\"\n"
        "4,\"\",15,5,\"HULP\",0,\"\"\n5,\"105\",50,50,\"HULP\",0,\"\"\n";
    EXPECT_EQ(Differences(drawing, other),
              "changed point BOOM 0.000 0.000: puntnummer 101 > 109; richting 10.0 > 10.2; omschrijving geen > EIK\n"
              "changed vertex  15.000 5.000: puntnummer 104 > geen\n");
}

TEST_F(Comparisons, ADirectionWithinATenthOfAGradIsTheSame) {
    Rows other = drawing;
    other.texts = "5,1,100.1,\"Kerk\"\n";
    EXPECT_EQ(Differences(drawing, other), "");
    other.texts = "5,1,100.11,\"Kerk\"\n";
    EXPECT_EQ(Differences(drawing, other), "changed text NAAM 50.000 50.000: richting 100.0 > 100.11\n");
    drawing.texts = "5,1,399.97,\"Kerk\"\n";
    other.texts = "5,1,0.02,\"Kerk\"\n";
    EXPECT_EQ(Differences(drawing, other), "");
}

TEST_F(Comparisons, AMillimetreIsADifference) {
    Rows other = drawing;
    other.points =
        "1,\"101\",0.001,0,\"BOOM\",10,\"\"\n2,\"102\",10,0,\"HULP\",0,\"\"\n3,\"\",10,5,\"HULP\",0,\"\"\n"
        "4,\"104\",15,5,\"HULP\",0,\"\"\n5,\"105\",50,50,\"HULP\",0,\"\"\n";
    EXPECT_EQ(Differences(drawing, other),
              "missing point BOOM 0.000 0.000\nadded point BOOM 0.001 0.000\n"
              "missing segment MUUR 0.000 0.000\nadded segment MUUR 0.001 0.000\n");
}

TEST_F(Comparisons, LinesAreComparedWhicheverWayTheyWereDrawn) {
    Rows other = drawing;
    other.edges =
        "1,2,1,STRAIGHT\n1,2,4,CURVE_3RD\n2,4,3,ARC_CENT\n2,3,2,ARC_CENT\n2,2,3,CIRCLE_CENT\n2,3,2,CIRCLE_CENT\n";
    EXPECT_EQ(Differences(drawing, other),
              "changed segment MUUR 0.000 0.000: in omgekeerde volgorde\n"
              "changed segment MUUR 10.000 0.000: lijntype STRAIGHT > CURVE_3RD\n"
              "changed arc GEVEL 10.000 0.000: draairichting; in omgekeerde volgorde\n");
    // Backwards and turning the other way it is the same arc.
    other.edges = drawing.edges;
    other.lines = "1,\"MUUR\",0\n2,\"GEVEL\",10000\n";
    EXPECT_EQ(Differences(drawing, other),
              "changed arc GEVEL 10.000 0.000: draairichting\nchanged line GEVEL: vlaggen 1 0 > 16\n");
}

TEST_F(Comparisons, AnArcAboutAnotherCentreIsAChange) {
    Rows other = drawing;
    other.points =
        "1,\"101\",0,0,\"BOOM\",10,\"\"\n2,\"102\",10,0,\"HULP\",0,\"\"\n3,\"\",10.001,4.999,\"HULP\",0,\"\"\n"
        "4,\"104\",15,5,\"HULP\",0,\"\"\n5,\"105\",50,50,\"HULP\",0,\"\"\n";
    EXPECT_EQ(Differences(drawing, other), "");
    other.points.replace(other.points.find("10.001"), 6, "10.002");
    EXPECT_EQ(Differences(drawing, other),
              "changed arc GEVEL 10.000 0.000: middelpunt 10.000 5.000 > 10.002 4.999\n"
              "changed circle GEVEL 10.000 0.000: middelpunt 10.000 5.000 > 10.002 4.999\n");
}

TEST_F(Comparisons, AnotherCodeAtTheSamePlaceIsAChange) {
    Rows other = drawing;
    other.lines = "1,\"GEVEL\",0\n2,\"GEVEL\",0\n";
    EXPECT_EQ(
        Differences(drawing, other),
        "changed segment MUUR 0.000 0.000: code MUUR > GEVEL\nchanged segment MUUR 10.000 0.000: code MUUR > GEVEL\n");
}

TEST_F(Comparisons, AsManyObjectsAtOnePlaceAreEqualAsBothHave) {
    drawing.points += "6,\"\",70,70,\"MV\",0,\"\"\n7,\"\",70,70,\"MV\",0,\"\"\n8,\"\",70,70,\"GP\",0,\"\"\n";
    Rows other = drawing;
    other.points += "9,\"\",70,70,\"MV\",0,\"\"\n";
    EXPECT_EQ(Differences(drawing, other), "added point MV 70.000 70.000\n");
    EXPECT_EQ(Differences(other, drawing), "missing point MV 70.000 70.000\n");
}

TEST_F(Comparisons, LineStringsThatWereCutUpOrJoinedAreTold) {
    Rows other = drawing;
    other.lines = "1,\"MUUR\",0\n2,\"GEVEL\",0\n3,\"MUUR\",0\n4,\"GEVEL\",0\n";
    other.edges =
        "1,1,2,STRAIGHT\n3,2,4,STRAIGHT\n2,2,3,ARC_CENT\n2,3,4,ARC_CENT\n2,2,3,CIRCLE_CENT\n2,3,2,CIRCLE_CENT\n";
    EXPECT_EQ(Differences(drawing, other),
              "added line GEVEL [lijnstring zonder segmenten]\n"
              "changed line MUUR: in 2 lijnstrings [elk segment wordt een eigen object]\n");
    EXPECT_EQ(Differences(other, drawing),
              "missing line GEVEL\nchanged line MUUR: samengevoegd met een andere lijnstring\n"
              "changed line MUUR: samengevoegd met een andere lijnstring\n");
}

TEST_F(Comparisons, WhatRefersToNothingIsComparedToo) {
    drawing.points += "9,\"\",1,1,\"MV\",0,\"\"\n";
    drawing.edges += "1,2,7,STRAIGHT\n9,1,2,STRAIGHT\n";
    drawing.texts += "8,1,0,\"Weg\"\n";
    EXPECT_EQ(Differences(drawing, drawing), "");
    Rows other = drawing;
    other.edges =
        "1,1,2,STRAIGHT\n1,2,4,STRAIGHT\n2,2,3,ARC_CENT\n2,3,4,ARC_CENT\n2,2,3,CIRCLE_CENT\n2,3,2,CIRCLE_CENT\n";
    other.texts = "5,1,100,\"Kerk\"\n";
    EXPECT_EQ(
        Differences(drawing, other),
        "missing segment MUUR 10.000 0.000 [verwijst naar niets]\nmissing segment  0.000 0.000 [verwijst naar niets]\n"
        "missing text NAAM 0.000 0.000: \"Weg\" [verwijst naar niets]\n");
}

TEST_F(Comparisons, ExchangeFilesWithoutAControlTableAreComparedByTheirOwnCodes) {
    const std::string nen = Translated(idexToNen, Idex(drawing));
    LoadEmptyProject(project);
    std::string other = nen;
    EXPECT_TRUE(Compared(nenToIdex, nen, nenToIdex, other).AreEqual());
    const std::size_t code = other.find("03MB05");
    ASSERT_NE(code, std::string::npos);
    other.replace(code, 6, "03MB06");
    EXPECT_EQ(AllTold(Compared(nenToIdex, nen, nenToIdex, other)),
              "changed segment B05 0.000 0.000: code B05 > B06 [de code staat niet in de controletabel]\n");
}

TEST_F(Comparisons, ATextMadeOfAPointIsItselfInTheExchangeFile) {
    options.chkExportPointnoAsText = options.chkExportPointnoAsField = true;
    options.txtPnoTxtLKI = u"Z04";
    const std::string idex = Idex({.points = "1,\"101\",0,0,\"BOOM\",0,\"\"\n"});
    EXPECT_EQ(AllTold(Compared(idexToNen, idex, nenToIdex, Translated(idexToNen, idex))), "");
}

TEST_F(Comparisons, TheReasonIsToldWhereTheDrawingsAndTheTablesKnowIt) {
    options.chkExportPointnoAsField = true;
    Rows rows{.points =
                  "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",10,0,\"VREEMD\",0,\"\"\n3,\"\",1234567,0,\"MV\",0,\"\"\n"
                  "4,\"\",20,0,\"LAMP\",50,\"\"\n",
              .lines = "1,\"PERC\",0\n2,\"MUUR\",0\n",
              .edges = "1,2,4,STRAIGHT\n2,2,4,SPIRAAL\n2,4,2,CURVE_3RD\n",
              .texts = "4,1,0,\"" + std::string(45, 'x') + "\"\n"};
    const std::string idex = Idex(rows);
    const std::string whole = AllTold(Compared(idexToNen, idex, nenToIdex, Translated(idexToNen, idex)));
    EXPECT_EQ(whole,
              "missing point HULP 0.000 0.000 [type DUMMY in de controletabel wordt niet geschreven]\n"
              "missing point VREEMD 10.000 0.000 [de code staat niet in de controletabel]\n"
              "missing point MV 1234567.000 0.000 [de coördinaat past niet in negen posities]\n"
              "changed point LAMP 20.000 0.000: richting 50.0 > 0.0 [een 03-groep heeft geen richting]\n"
              "added point MV 234567.000 0.000\n"
              "missing segment PERC 10.000 0.000 [type DUMMY in de controletabel wordt niet geschreven]\n"
              "missing segment MUUR 10.000 0.000 [lijntype SPIRAAL wordt niet geschreven]\n"
              "changed segment MUUR 20.000 0.000: lijntype CURVE_3RD > STRAIGHT [een kromme wordt recht geschreven]\n"
              "changed text NAAM 20.000 0.000: tekst \"" +
                  std::string(45, 'x') + "\" > \"" + std::string(40, 'x') +
                  "\" [een tekst wordt op 40 tekens afgekapt]\n");
}

// What a drawing loses on its way, by the reason or what is left when there is none, with how often.
std::map<std::string, int> Losses(const Comparison& comparison) {
    std::map<std::string, int> losses;
    for (const Difference& difference : comparison.differences) {
        constexpr const char* kinds[] = {"changed ", "missing ", "added "};
        const std::string what = ToUtf8(difference.what);
        ++losses[kinds[static_cast<int>(difference.kind)] +
                 std::string(kindNames[static_cast<int>(difference.object)]) + ": " +
                 (difference.reason.empty() ? what.substr(0, what.find(' ')) : ToUtf8(difference.reason))];
    }
    return losses;
}

// docs/heen-en-terug.md tells what the formats do not keep; this is all of it, and nothing else.
TEST_F(Comparisons, TheSampleLosesInAnExchangeFileWhatTheFormatsDoNotKeep) {
    ASSERT_TRUE(LoadProjectFile(screen, project, FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    const std::string idex = SampleBytes("straat.idx");
    const std::map<std::string, int> expected = {
        {"changed point: een 03-groep heeft geen richting", 42},
        {"changed point: de code staat niet in de controletabel", 5},
        {"added point: punt van een lijn of boog", 48},
        {"missing segment: type DUMMY in de controletabel wordt niet geschreven", 3},
        {"changed segment: een kromme wordt recht geschreven", 58},
        {"changed segment: de code staat niet in de controletabel", 7},
        {"missing arc: een boog wordt segment voor segment geschreven", 7},
        {"missing circle: een boog wordt segment voor segment geschreven", 5},
        {"changed text: een tekst wordt op 40 tekens afgekapt", 2},
        {"changed text: de code staat niet in de controletabel", 2},
        {"changed line: elk segment wordt een eigen object", 104},
        {"added line: lijnstring zonder segmenten", 24},
        {"changed vertex: puntnummer", 5}};
    for (const SampleCase& sample : sampleCases) {
        if (sample.mode.direction != Direction::FromIdex) continue;
        const Mode back{Direction::ToIdex, sample.mode.variant};
        const Comparison comparison = Compared(idexToNen, idex, back, GoldenResult(sample).output);
        EXPECT_EQ(Losses(comparison), expected);
        EXPECT_EQ(CountsOf(comparison, ComparedKind::Point), "130 47 0 48");
    }
}

TEST_F(Comparisons, ArcsOfThreePointsComeBackAsArcs) {
    ASSERT_TRUE(LoadProjectFile(screen, project, FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    options.chkThreePointArcs = true;
    const std::string idex = SampleBytes("straat.idx");
    const Comparison comparison = Compared(idexToNen, idex, nenToIdex, Translated(idexToNen, idex));
    // Of six the ends were not measured equally far from the centre.
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Arc), "1 6 0 10");
    EXPECT_EQ(CountsOf(comparison, ComparedKind::Circle), "0 0 5 0");
    const auto losses = Losses(comparison);
    EXPECT_EQ(losses.at("changed arc: drie punten op de millimeter geven een ander middelpunt"), 6);
    EXPECT_EQ(losses.at("missing circle: een cirkel wordt als twee halve cirkels geschreven"), 5);
    EXPECT_FALSE(losses.contains("added point: punt van een lijn of boog"));
}

TEST_F(Comparisons, TheSampleThereAndBackLosesAlsoWhatOnlyIdexKnows) {
    ASSERT_TRUE(LoadProjectFile(screen, project, FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    const std::string idex = SampleBytes("straat.idx");
    const std::string back = Translated(nenToIdex, GoldenResult(sampleCases[0]).output);
    const std::map<std::string, int> expected = {
        {"changed point: omschrijving", 130},
        {"changed point: een 03-groep heeft geen richting", 42},
        {"changed point: de code staat niet in de controletabel", 5},
        {"added point: punt van een lijn of boog", 1018},
        {"added point: plaats van een tekst", 80},
        {"missing segment: type DUMMY in de controletabel wordt niet geschreven", 3},
        {"changed segment: een kromme wordt recht geschreven", 58},
        {"changed segment: de code staat niet in de controletabel", 7},
        {"added segment: lijn tussen de plaatsen van een tekst", 40},
        {"missing arc: een boog wordt segment voor segment geschreven", 7},
        {"missing circle: een boog wordt segment voor segment geschreven", 5},
        {"changed text: een tekst wordt op 40 tekens afgekapt", 2},
        {"changed text: de code staat niet in de controletabel", 2},
        {"changed text: IDEX wordt op een laag geschreven", 35},
        {"changed text: ankerpositie", 1},
        {"changed line: elk segment wordt een eigen object", 104},
        {"changed line: omschrijving", 4},
        {"added line: lijnstring zonder segmenten", 24},
        {"changed vertex: puntnummer", 5}};
    EXPECT_EQ(Losses(Compared(idexToNen, idex, idexToNen, back)), expected);
}

// One difference, planted in a drawing; empty when this drawing has no place for it.
class Planter {
 public:
    Planter(RandomDrawing& itsDrawing, unsigned seed) : drawing(itsDrawing), chance(seed) {}

    // What is to be told of it: the beginning of the only line, or of both.
    std::vector<std::string> Plant(int kind) {
        switch (kind) {
            case 0:
                return OfPoint("changed ", [](RandomDrawing::Point& point) { point.name = "ANDERS"; });
            case 1:
                return OfPoint("changed ", [](RandomDrawing::Point& point) { point.height += 10; });
            case 2:
                return OfPoint(
                    "changed point ", [](RandomDrawing::Point& point) { point.code = "ANDERE"; }, true);
            case 3:
                return WithoutEdge();
            case 4:
                return OfEdge("changed segment ", [](RandomDrawing::Edge& edge) { edge.type = "ZIGZAG"; });
            case 5:
                return OfLabel("changed text ", [](RandomDrawing::Label& label) { label.text += "!"; });
            case 6:
                return OfLabel("changed text ", [](RandomDrawing::Label& label) {
                    label.direction = (label.direction + 150) % 400'000;
                });
            default:
                return MovedPoint();
        }
    }

 private:
    bool IsUsed(std::size_t place) const {
        const auto isEnd = [place](const auto& edge) { return edge.start == place || edge.end == place; };
        const auto hangs = [place](const auto& label) { return label.anchor == place; };
        return std::any_of(drawing.edges.begin(), drawing.edges.end(), isEnd) ||
               std::any_of(drawing.labels.begin(), drawing.labels.end(), hangs);
    }

    // Whether it is an object whatever refers to it.
    bool IsWritten(std::size_t place) const {
        for (const RandomCode& code : PointCodesOfTable()) {
            if (code.liscad == drawing.points[place].code) return code.type != "DUMMY" && code.type != "GRENS";
        }
        return true;
    }

    template <class Change>
    std::vector<std::string> OfPoint(const std::string& told, Change change, bool isWritten = false) {
        const std::size_t place = chance.Below(drawing.points.size());
        if (isWritten && !IsWritten(place)) return {};
        change(drawing.points[place]);
        return {told};
    }

    std::vector<std::string> MovedPoint() {
        const std::size_t place = chance.Below(drawing.points.size());
        if (IsUsed(place)) return {};
        drawing.points[place].east += drawing.points[place].east < 0 ? 10 : -10;
        return {"missing point ", "added point "};
    }

    template <class Change>
    std::vector<std::string> OfEdge(const std::string& told, Change change) {
        if (drawing.edges.empty()) return {};
        change(drawing.edges[chance.Below(drawing.edges.size())]);
        return {told};
    }

    std::vector<std::string> WithoutEdge() {
        if (drawing.edges.empty()) return {};
        const std::size_t place = chance.Below(drawing.edges.size());
        const auto edge = drawing.edges[place];
        const auto isSibling = [&edge](const auto& other) { return other.line == edge.line; };
        const auto siblings = std::count_if(drawing.edges.begin(), drawing.edges.end(), isSibling);
        if (siblings < 2 || !IsWritten(edge.start) || !IsWritten(edge.end)) return {};
        drawing.edges.erase(drawing.edges.begin() + static_cast<std::ptrdiff_t>(place));
        return {"missing segment "};
    }

    template <class Change>
    std::vector<std::string> OfLabel(const std::string& told, Change change) {
        if (drawing.labels.empty()) return {};
        RandomDrawing::Label& label = drawing.labels[chance.Below(drawing.labels.size())];
        if (label.text.size() >= 47) return {};
        change(label);
        return {told};
    }

    RandomDrawing& drawing;
    Chance chance;
};

TEST_F(Comparisons, OnePlantedDifferenceIsFoundAndNothingElse) {
    LoadProjectBytes(screen, project, RandomTable());
    options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Windows1252)];
    int planted = 0;
    for (unsigned seed = 1; seed <= 400; ++seed) {
        const RandomDrawing original(seed);
        RandomDrawing changed = original;
        const std::vector<std::string> expected = Planter(changed, seed).Plant(static_cast<int>(seed % 8));
        const std::string before = original.AsIdex();
        const std::string after = changed.AsIdex();
        if (expected.empty()) continue;
        ++planted;
        const std::string found = AllTold(Compared(idexToNen, before, idexToNen, after));
        std::istringstream in(found);
        std::string line;
        std::size_t count = 0;
        while (std::getline(in, line)) {
            ASSERT_LT(count, expected.size()) << "seed " << seed << "\n" << found;
            EXPECT_TRUE(line.starts_with(expected[count++])) << "seed " << seed << "\n" << found;
        }
        EXPECT_EQ(count, expected.size()) << "seed " << seed << "\n" << found;
        EXPECT_TRUE(Compared(idexToNen, after, idexToNen, after).AreEqual()) << "seed " << seed;
    }
    EXPECT_GT(planted, 250);
}

}  // namespace

}  // namespace korvande::testing
