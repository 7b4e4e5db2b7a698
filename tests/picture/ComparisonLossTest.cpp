#include <map>

#include "tests/picture/ComparisonTest.h"
#include "tests/run/SampleRun.h"

namespace korvande::testing {

namespace {

// What a drawing loses on its way, by the reason or what is left when there is none, with how often.
std::map<std::string, int> Losses(const Comparison& comparison) {
    std::map<std::string, int> losses;
    for (const Difference& difference : comparison.differences) {
        const std::string what = ToUtf8(difference.what);
        ++losses[KindTold(difference) + ": " +
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

TEST_F(Comparisons, TheCrossingAsIdexAndBackLosesWhatTheFormatsDoNotKeep) {
    ASSERT_TRUE(LoadProjectFile(screen, project, FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    const std::string nen = SampleBytes("kruispunt.sfn");
    const std::string idex = Translated(nenToIdex, nen);
    std::map<std::string, int> expected = {{"added point: ", 496},
                                           {"added point: punt van een lijn of boog", 120},
                                           {"changed point: een 03-groep heeft geen richting", 25},
                                           {"changed point: code", 1},
                                           {"added segment: ", 20},
                                           {"missing arc: een boog wordt segment voor segment geschreven", 30},
                                           {"changed text: IDEX wordt op een laag geschreven", 21},
                                           {"changed line: elk segment wordt een eigen object", 61},
                                           {"added line: lijnstring zonder segmenten", 60}};
    EXPECT_EQ(Losses(Compared(nenToIdex, nen, nenToIdex, Translated(idexToNen, idex))), expected);
    // As arcs of three points all arcs come back.
    for (const char* const lost :
         {"missing arc: een boog wordt segment voor segment geschreven", "added point: punt van een lijn of boog",
          "added line: lijnstring zonder segmenten"}) {
        expected.erase(lost);
    }
    options.chkThreePointArcs = true;
    EXPECT_EQ(Losses(Compared(nenToIdex, nen, nenToIdex, Translated(idexToNen, idex))), expected);
}

}  // namespace

}  // namespace korvande::testing
