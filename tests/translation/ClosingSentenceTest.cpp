#include "translation/ClosingSentence.h"

#include "tests/support/TranslationState.h"

namespace korvande::testing {
namespace {

class ClosingSentenceTest : public TranslationTest {
 protected:
    ClosingSentenceTest() {
        translation.mode = {Direction::FromIdex, Variant::Nen1878};
        translation.IdexFileName = u"straat.idx";
    }
    std::string Said() const { return ToUtf8(ClosingSentence(translation)); }
};

TEST_F(ClosingSentenceTest, ARunWithoutTroubleWentWell) {
    EXPECT_TRUE(WentWell(translation));
    EXPECT_EQ(Said(), "straat.idx is vertaald.");
}

TEST_F(ClosingSentenceTest, ErrorsAndLostObjectsAreCounted) {
    Report(translation, {.kind = ProblemKind::InvalidArc});
    EXPECT_FALSE(WentWell(translation));
    EXPECT_EQ(Said(), "straat.idx is vertaald, met 1 fout.");
    Report(translation, {.kind = ProblemKind::InvalidArc});
    LeaveOut(translation, ObjectKind::Arc, LeftOut::InvalidArc);
    EXPECT_EQ(Said(), "straat.idx is vertaald, met 2 fouten en 1 verloren object.");
    LeaveOut(translation, ObjectKind::LineSegment, LeftOut::NoReference);
    EXPECT_EQ(Said(), "straat.idx is vertaald, met 2 fouten en 2 verloren objecten.");
    EXPECT_EQ(ObjectsLost(translation), 2);
}

TEST_F(ClosingSentenceTest, WhatCameAcrossOtherwiseIsToldWhenNoObjectIsLost) {
    Tell(translation, {.kind = ProblemKind::CodeCut});
    EXPECT_FALSE(WentWell(translation));
    EXPECT_EQ(Said(), "straat.idx is vertaald, met gegevens die niet of anders zijn overgekomen.");
}

TEST_F(ClosingSentenceTest, ObjectsThatTheSettingsLeftOutAreNotLost) {
    LeaveOut(translation, ObjectKind::Point, LeftOut::UnknownCode);
    LeaveOut(translation, ObjectKind::Point, LeftOut::Dummy);
    LeaveOut(translation, ObjectKind::Polygon, LeftOut::NotTranslated);
    EXPECT_EQ(ObjectsLost(translation), 0);
    EXPECT_TRUE(WentWell(translation));
}

TEST_F(ClosingSentenceTest, APointThatIsLostCountsAsAnyOther) {
    LeaveOut(translation, ObjectKind::Point, LeftOut::NoReference);
    EXPECT_EQ(ObjectsLost(translation), 1);
}

TEST_F(ClosingSentenceTest, TheLineOfAnOutputAddsUpTheObjectsOfAllKinds) {
    translation.SufNenFileName = u"/kaarten/straat.sfn";
    translation.account[ObjectKind::Point] = {.read = 400, .written = 398};
    translation.account[ObjectKind::TextObject] = {.read = 14, .written = 13};
    translation.account[ObjectKind::Other] = {.read = 1, .written = 1};
    EXPECT_EQ(ToUtf8(OutcomeLine(translation)), "412 van 415 objecten vertaald, 3 weggelaten, 0 fouten — straat.sfn");
}

TEST_F(ClosingSentenceTest, TheLineOfAnOutputTellsOneInTheSingular) {
    translation.SufNenFileName = u"straat.sfn";
    translation.account[ObjectKind::Arc].read = 1;
    Report(translation, {.kind = ProblemKind::InvalidArc});
    EXPECT_EQ(ToUtf8(OutcomeLine(translation)), "0 van 1 object vertaald, 1 weggelaten, 1 fout — straat.sfn");
}

TEST_F(ClosingSentenceTest, TheLineOfAnOutputThatWasNotMadeSaysWhy) {
    translation.outcome.cancelled = true;
    EXPECT_EQ(OutcomeLine(translation), ClosingSentence(translation));
}

TEST_F(ClosingSentenceTest, ARunThatFailedSaysWhy) {
    const auto said = [this](bool RunOutcome::*what) {
        translation.outcome = {};
        translation.outcome.*what = true;
        EXPECT_FALSE(WentWell(translation));
        return Said();
    };
    EXPECT_EQ(said(&RunOutcome::cancelled), "straat.idx is niet vertaald: afgebroken.");
    EXPECT_EQ(said(&RunOutcome::importCancelled), "straat.idx is niet vertaald: afgebroken.");
    EXPECT_EQ(said(&RunOutcome::logBookFailed), "straat.idx is niet vertaald: het logboek kan niet worden geschreven.");
    EXPECT_EQ(said(&RunOutcome::inputUnreadable), "straat.idx is niet vertaald: het bestand kan niet worden gelezen.");
    EXPECT_EQ(said(&RunOutcome::outputFailed), "straat.idx is niet vertaald: de uitvoer kan niet worden geschreven.");
    EXPECT_EQ(said(&RunOutcome::wrongFormat), "straat.idx is niet vertaald: het is geen IDEX bestand.");
    translation.mode.direction = Direction::ToIdex;
    translation.SufNenFileName = u"straat.sf2";
    EXPECT_EQ(Said(), "straat.sf2 is niet vertaald: het is geen NEN1878 of SUF2 bestand.");
}

}  // namespace
}  // namespace korvande::testing
