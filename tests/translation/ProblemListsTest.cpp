#include "tests/support/TranslationState.h"
#include "translation/Problem.h"
#include "translation/ProblemBlock.h"
#include "translation/ProblemSentences.h"

// What a run tells at its end: what did not come across as it was read, and what its settings left out.
namespace korvande::testing {
namespace {

using Lines = std::vector<std::string>;

Lines InUtf8(const std::vector<Text>& texts) {
    Lines lines;
    for (const Text& text : texts) lines.push_back(ToUtf8(text));
    return lines;
}

class ProblemLists : public TranslationTest {
 protected:
    Lines Loss() const { return InUtf8(translation.problems.Lines(ProblemList::Loss)); }
    Lines Wanted() const { return InUtf8(translation.problems.Lines(ProblemList::Wanted)); }

    // The lines of the log book, from its first one on.
    std::string Block() {
        OpenLog();
        WriteProblemBlock(translation);
        return LogText();
    }
};

TEST_F(ProblemLists, ARunThatNothingHappenedToHasEmptyLists) {
    EXPECT_EQ(Loss(), Lines{});
    EXPECT_EQ(Wanted(), Lines{});
    EXPECT_FALSE(translation.problems.HasLoss());
    EXPECT_FALSE(translation.problems.HasDamage());
}

TEST_F(ProblemLists, ProblemsOfOneKindAreALineWithTheirCountAndTheirFirstLine) {
    for (const std::int64_t line : {20, 17, 31}) {
        Tell(translation, {.kind = ProblemKind::NoCoordinates, .object = ObjectKind::Point, .line = line});
    }
    EXPECT_EQ(Loss(), (Lines{"3 punten zonder coördinaten (de eerste op regel 17)"}));
}

TEST_F(ProblemLists, TheFirstLineOfAllIsALineToo) {
    Tell(translation, {.kind = ProblemKind::ShortLine, .line = 1});
    Tell(translation, {.kind = ProblemKind::RestNotRead, .line = 1});
    EXPECT_EQ(Loss(), (Lines{"1 te korte regel overgeslagen (op regel 1)",
                             "de rest van het bestand is niet gelezen, vanaf regel 1"}));
}

TEST_F(ProblemLists, AProblemWithoutALineChangesNothingOfTheFirst) {
    for (const std::int64_t line : {0, 5, 0, 1, 0}) {
        Tell(translation, {.kind = ProblemKind::NoCoordinates, .object = ObjectKind::Point, .line = line});
        if (line == 5) {
            EXPECT_EQ(Loss(), Lines{"2 punten zonder coördinaten (de eerste op regel 5)"});
        }
    }
    EXPECT_EQ(Loss(), Lines{"5 punten zonder coördinaten (de eerste op regel 1)"});
}

TEST_F(ProblemLists, AnObjectWithoutALineChangesNothingOfTheFirst) {
    for (const std::int64_t line : {0, 0, 5, 0, 1, 0}) {
        LeaveOut(translation, ObjectKind::Point, LeftOut::Dummy, line);
        if (line == 5) {
            EXPECT_EQ(Wanted(), Lines{"3 punten van het type DUMMY (de eerste op regel 5)"});
        }
    }
    EXPECT_EQ(Wanted(), Lines{"6 punten van het type DUMMY (de eerste op regel 1)"});
}

TEST_F(ProblemLists, AnObjectIsOfTheLineBeingReadUnlessItHasOne) {
    const auto leaveOutAt = [this](std::int64_t inputLine, std::int64_t line) {
        translation.inputLine = inputLine;
        LeaveOut(translation, ObjectKind::Point, LeftOut::Dummy, line);
        return Wanted().front();
    };
    EXPECT_EQ(leaveOutAt(8, 0), "1 punt van het type DUMMY (op regel 8)");
    EXPECT_EQ(leaveOutAt(3, 0), "2 punten van het type DUMMY (de eerste op regel 3)");
    EXPECT_EQ(leaveOutAt(9, 1), "3 punten van het type DUMMY (de eerste op regel 1)");
}

TEST_F(ProblemLists, ASingleProblemIsToldInTheSingular) {
    Tell(translation, {.kind = ProblemKind::NoCoordinates, .object = ObjectKind::Point, .line = 17});
    Tell(translation, {.kind = ProblemKind::NumberTwice});
    EXPECT_EQ(Loss(), (Lines{"1 punt zonder coördinaten (op regel 17)", "1 puntnummer dat al voorkwam"}));
}

TEST_F(ProblemLists, AProblemIsOfTheLineBeingReadUnlessItHasOne) {
    translation.inputLine = 8;
    Tell(translation, {.kind = ProblemKind::ShortLine});
    Tell(translation, {.kind = ProblemKind::LongLine, .line = 3});
    EXPECT_EQ(Loss(), (Lines{"1 te korte regel overgeslagen (op regel 8)",
                             "1 regel van meer dan 64 tekens, waarvan de laatste 64 zijn gelezen (op regel 3)"}));
}

TEST_F(ProblemLists, ObjectsOfDifferentKindsAndDifferentWordsAreLinesOfTheirOwn) {
    LeaveOut(translation, ObjectKind::LineSegment, LeftOut::LineType, 5, u"CURVE_4TH");
    LeaveOut(translation, ObjectKind::LineSegment, LeftOut::LineType, 6, u"SPLINE");
    LeaveOut(translation, ObjectKind::LineSegment, LeftOut::LineType, 7, u"CURVE_4TH");
    LeaveOut(translation, ObjectKind::Point, LeftOut::UnknownCode, 8);
    LeaveOut(translation, ObjectKind::TextObject, LeftOut::UnknownCode, 9);
    EXPECT_EQ(Loss(), (Lines{"2 lijnsegmenten van lijntype CURVE_4TH, dat niet wordt geschreven (de eerste op regel 5)",
                             "1 lijnsegment van lijntype SPLINE, dat niet wordt geschreven (op regel 6)"}));
    EXPECT_EQ(Wanted(),
              (Lines{"1 punt met een onbekende code (op regel 8)", "1 tekst met een onbekende code (op regel 9)"}));
}

TEST_F(ProblemLists, WhatIsLeftOutIsAccountedForAndToldTogether) {
    translation.account[ObjectKind::Arc].read = 2;
    LeaveOut(translation, ObjectKind::Arc, LeftOut::InvalidArc, 4);
    LeaveOut(translation, ObjectKind::Arc, LeftOut::OutsideRectangle, 6);
    EXPECT_TRUE(translation.account.Balances());
    EXPECT_EQ(Loss(), (Lines{"1 onvolledige boog (op regel 4)"}));
    EXPECT_EQ(Wanted(), (Lines{"1 boog buiten de rechthoek (op regel 6)"}));
}

TEST_F(ProblemLists, ManyObjectsOfSeveralKindsAreCountedEachWithItsOwn) {
    for (int i = 0; i < 1000; ++i) {
        LeaveOut(translation, ObjectKind::Point, LeftOut::Dummy, 2000 - i);
        LeaveOut(translation, i % 2 == 0 ? ObjectKind::Point : ObjectKind::TextObject, LeftOut::UnknownCode, 5000 + i);
        if (i % 10 == 0) LeaveOut(translation, ObjectKind::LineSegment, LeftOut::LineType, 7000 + i, u"SPLINE");
        if (i % 10 == 0) LeaveOut(translation, ObjectKind::LineSegment, LeftOut::LineType, 8000 + i, u"");
    }
    EXPECT_EQ(Wanted(), (Lines{"1000 punten van het type DUMMY (de eerste op regel 1001)",
                               "500 punten met een onbekende code (de eerste op regel 5000)",
                               "500 teksten met een onbekende code (de eerste op regel 5001)"}));
    EXPECT_EQ(Loss(),
              (Lines{"100 lijnsegmenten van lijntype SPLINE, dat niet wordt geschreven (de eerste op regel 7000)",
                     "100 lijnsegmenten van lijntype , dat niet wordt geschreven (de eerste op regel 8000)"}));
}

TEST_F(ProblemLists, EveryReasonToLeaveAnObjectOutHasAKindOfProblem) {
    for (std::size_t reason = 0; reason < leftOutReasons; ++reason) {
        for (std::size_t object = 0; object < objectKinds; ++object) {
            const ProblemKind kind = KindOf(static_cast<LeftOut>(reason), static_cast<ObjectKind>(object));
            EXPECT_NE(ListOf(kind), ProblemList::Errors) << reason << " " << object;
            EXPECT_EQ(kind == ProblemKind::Unfinished, static_cast<LeftOut>(reason) == LeftOut::Unfinished);
        }
    }
}

TEST_F(ProblemLists, OnlyAPolygonIsAKindThatIsNeverTranslated) {
    EXPECT_EQ(KindOf(LeftOut::NotTranslated, ObjectKind::Polygon), ProblemKind::PolygonNotTranslated);
    EXPECT_EQ(KindOf(LeftOut::NotTranslated, ObjectKind::Other), ProblemKind::KindNotTranslated);
}

TEST_F(ProblemLists, AnErrorOrDamageMustBeLookedIntoAndOtherLossNot) {
    EXPECT_FALSE(translation.problems.HasFaults());
    Tell(translation, {.kind = ProblemKind::NumberTwice});
    EXPECT_FALSE(translation.problems.HasFaults());
    Problems damaged;
    damaged.Add({.kind = ProblemKind::RestNotRead});
    EXPECT_TRUE(damaged.HasFaults());
    Report(translation, {.kind = ProblemKind::InvalidArc});
    EXPECT_TRUE(translation.problems.HasFaults());
}

TEST_F(ProblemLists, DamageOfTheInputStandsFirst) {
    Tell(translation, {.kind = ProblemKind::NumberTwice, .line = 3});
    EXPECT_TRUE(translation.problems.HasLoss());
    EXPECT_FALSE(translation.problems.HasDamage());
    Tell(translation, {.kind = ProblemKind::CutOff, .words = u"END DATABASE", .line = 40});
    EXPECT_TRUE(translation.problems.HasDamage());
    EXPECT_EQ(Loss(), (Lines{"het bestand is afgebroken: END DATABASE ontbreekt (op regel 40)",
                             "1 puntnummer dat al voorkwam (op regel 3)"}));
}

TEST_F(ProblemLists, WhatIsWantedIsNoLoss) {
    LeaveOut(translation, ObjectKind::Point, LeftOut::Dummy, 3);
    EXPECT_FALSE(translation.problems.HasLoss());
    EXPECT_EQ(Wanted(), (Lines{"1 punt van het type DUMMY (op regel 3)"}));
}

TEST_F(ProblemLists, ASentenceThatNamesItsLineDoesNotNameItTwice) {
    Tell(translation, {.kind = ProblemKind::RestNotRead, .line = 12});
    EXPECT_EQ(Loss(), (Lines{"de rest van het bestand is niet gelezen, vanaf regel 12"}));
}

TEST_F(ProblemLists, ThoseOfSeveralTranslationsAddUpWithoutTheirLines) {
    Problems all;
    for (const std::int64_t line : {20, 17}) {
        Problems some;
        some.errors = 2;
        some.Add({.kind = ProblemKind::RestNotRead, .line = line});
        some.Add({.kind = ProblemKind::NoCoordinates, .object = ObjectKind::Point, .line = line}, 3);
        some.Add({.kind = ProblemKind::ReadAsUtf8, .line = line});
        all.AddAll(some);
    }
    EXPECT_EQ(all.errors, 4);
    EXPECT_TRUE(all.HasDamage());
    EXPECT_EQ(InUtf8(all.Lines(ProblemList::Loss)),
              (Lines{"de rest van het bestand is niet gelezen (2 maal)", "6 punten zonder coördinaten"}));
    EXPECT_EQ(InUtf8(all.Lines(ProblemList::Wanted)), (Lines{"het bestand is gelezen als UTF-8 (2 maal)"}));
}

TEST_F(ProblemLists, WhatATranslationHasOnceIsToldWithoutACount) {
    const Problem problem{.kind = ProblemKind::RestNotRead, .line = 12};
    for (int i = 0; i < 2; ++i) translation.problems.Add(problem);
    EXPECT_EQ(Loss(), Lines{"de rest van het bestand is niet gelezen, vanaf regel 12"});
    Problems one;
    one.Add(problem);
    Problems sum;
    sum.AddAll(one);
    EXPECT_EQ(InUtf8(sum.Lines(ProblemList::Loss)), Lines{"de rest van het bestand is niet gelezen"});
}

TEST_F(ProblemLists, BehindTwentyDifferentWordsTheOthersAreToldTogether) {
    for (int i = 0; i < 100; ++i) {
        Tell(translation, {.kind = ProblemKind::RecordPassedOver, .words = Concat(10 + i), .line = i + 1});
    }
    const Lines lines = Loss();
    ASSERT_EQ(lines.size(), 21U);
    EXPECT_EQ(lines[19], "1 record van type 29 overgeslagen (op regel 20)");
    EXPECT_EQ(lines[20], "80 records van type … overgeslagen (de eerste op regel 21)");
}

TEST_F(ProblemLists, WhoListensHearsEachOfThem) {
    std::vector<std::string> told;
    translation.problems.onProblem = [&told](const Problem& problem) {
        told.push_back(ToUtf8(SentenceWithLine(problem)));
    };
    for (const std::int64_t line : {4, 9}) {
        Tell(translation, {.kind = ProblemKind::ShortLine, .line = line});
    }
    EXPECT_EQ(told, (Lines{"1 te korte regel overgeslagen (regel 4)", "1 te korte regel overgeslagen (regel 9)"}));
    EXPECT_EQ(translation.problems.errors, 0);
}

TEST_F(ProblemLists, WhoListensHearsOfEachObjectThatIsLeftOut) {
    int told = 0;
    translation.problems.onProblem = [&told](const Problem&) { ++told; };
    for (int i = 0; i < 3; ++i) LeaveOut(translation, ObjectKind::Point, LeftOut::Dummy, 4);
    EXPECT_EQ(told, 3);
    EXPECT_EQ(Wanted(), Lines{"3 punten van het type DUMMY (de eerste op regel 4)"});
}

TEST_F(ProblemLists, ObjectsThatTheEndOfTheRunLeftAreToldByTheirNumber) {
    translation.account[ObjectKind::LineSegment].read = 12;
    translation.account[ObjectKind::Arc].read = 1;
    LeaveUnfinished(translation, ObjectKind::LineSegment, 12);
    LeaveUnfinished(translation, ObjectKind::Arc, 1);
    LeaveUnfinished(translation, ObjectKind::Point, 0);
    EXPECT_EQ(Loss(), (Lines{"12 lijnsegmenten niet voltooid", "1 boog niet voltooid"}));
    EXPECT_TRUE(translation.account.Balances());
}

TEST_F(ProblemLists, ARunWithoutLossGetsNoBlock) {
    LeaveOut(translation, ObjectKind::Point, LeftOut::Dummy, 3);
    EXPECT_EQ(Block(), "");
}

TEST_F(ProblemLists, TheBlockHoldsTheListsAndTheAccountBehindEmptyLines) {
    translation.account[ObjectKind::Point] = {.read = 5, .written = 4};
    translation.account[ObjectKind::Arc] = {.read = 2, .written = 2};
    LeaveOut(translation, ObjectKind::Point, LeftOut::Dummy, 3);
    Tell(translation, {.kind = ProblemKind::NoCoordinates, .object = ObjectKind::Point, .line = 17}, 3);
    EXPECT_EQ(Block(),
              "\n"
              "Niet of anders overgekomen:\n"
              "  3 punten zonder coördinaten (de eerste op regel 17)\n"
              "\n"
              "Volgens de controletabel en de instellingen:\n"
              "  1 punt van het type DUMMY (op regel 3)\n"
              "\n"
              "Objectbalans:\n"
              "Punten: 5 gelezen, 4 geschreven, 1 weggelaten (1 type DUMMY)\n"
              "Bogen: 2 gelezen, 2 geschreven, 0 weggelaten\n");
}

TEST_F(ProblemLists, AnEmptySecondListHasNoTitle) {
    Tell(translation, {.kind = ProblemKind::ShortLine, .line = 2});
    EXPECT_EQ(Block(),
              "\n"
              "Niet of anders overgekomen:\n"
              "  1 te korte regel overgeslagen (op regel 2)\n"
              "\n"
              "Objectbalans:\n");
}

TEST_F(ProblemLists, TheConsoleGetsTheSecondListAlsoWithoutTheFirst) {
    LeaveOut(translation, ObjectKind::Point, LeftOut::Dummy, 3);
    EXPECT_EQ(InUtf8(LossLines(translation)), Lines{});
    EXPECT_EQ(InUtf8(ProblemLines(translation)),
              (Lines{"Volgens de controletabel en de instellingen:", "  1 punt van het type DUMMY (op regel 3)"}));
}

// The table of sentences

std::string PlaceholdersOf(TextView sentence) {
    std::string places;
    for (std::size_t at = sentence.find(u'{'); at != TextView::npos; at = sentence.find(u'{', at + 1)) {
        places += ToUtf8(sentence.substr(at, sentence.find(u'}', at) + 1 - at));
    }
    return places;
}

TEST(ProblemSentences, OneAndManySayTheSameThings) {
    for (int kind = 0; kind < problemKinds; ++kind) {
        const KindSentence& entry = SentenceOf(static_cast<ProblemKind>(kind));
        EXPECT_FALSE(entry.one.empty()) << kind;
        const TextView many = entry.many.empty() ? entry.one : entry.many;
        EXPECT_EQ(PlaceholdersOf(entry.one), PlaceholdersOf(many)) << kind;
        // What is counted has a sentence for many, and what is not has none.
        EXPECT_EQ(entry.one.starts_with(u"{n} "), !entry.many.empty()) << kind;
    }
}

TEST(ProblemSentences, DamageIsAlwaysLossAndErrorsAreTellingThemselves) {
    for (int kind = 0; kind < problemKinds; ++kind) {
        const KindSentence& entry = SentenceOf(static_cast<ProblemKind>(kind));
        EXPECT_TRUE(!entry.isDamage || entry.list == ProblemList::Loss) << kind;
        EXPECT_TRUE(entry.list != ProblemList::Errors || entry.many.empty()) << kind;
    }
}

}  // namespace
}  // namespace korvande::testing
