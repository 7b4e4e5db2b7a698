#include "translation/Problem.h"

#include "tests/support/TranslationState.h"

namespace korvande::testing {
namespace {

// A problem, its sentence, and its sentence with the line where it occurred.
struct ProblemCase {
    Problem problem;
    const char* sentence = nullptr;
    const char* withLine = nullptr;
};

const ProblemCase cases[] = {
    {{.kind = ProblemKind::EscapedError, .words = u"Schijf vol"}, "Schijf vol", "Schijf vol"},
    {{.kind = ProblemKind::EscapedError, .words = u"Overloop", .line = 12},
     "Overloop (regel 12)",
     "Overloop (regel 12)"},
    {{.kind = ProblemKind::FileNotOpened, .words = u"Pad niet gevonden", .number = 76, .name = u"C:\\A.IDX", .line = 3},
     "Error:76 - Pad niet gevonden\nC:\\A.IDX",
     "Error:76 - Pad niet gevonden\nC:\\A.IDX (regel 3)"},
    {{.kind = ProblemKind::ExportNotOpened, .number = 75, .name = u"C:\\É.SFN"},
     "Kon bestand: 'C:\\É.SFN' niet opslaan;\nFoutcode: 75",
     "Kon bestand: 'C:\\É.SFN' niet opslaan;\nFoutcode: 75"},
    {{.kind = ProblemKind::OutputNotPutInPlace, .number = 61, .name = u"A.SFN"},
     "Kon bestand: 'A.SFN' niet opslaan;\nFoutcode: 61",
     "Kon bestand: 'A.SFN' niet opslaan;\nFoutcode: 61"},
    {{.kind = ProblemKind::NoHeader, .line = 9},
     "Geen HEADER gevonden in het IDEX bestand",
     "Geen HEADER gevonden in het IDEX bestand (regel 9)"},
    {{.kind = ProblemKind::NoLayers, .line = 9},
     "Geen LAYERS gevonden in het IDEX bestand",
     "Geen LAYERS gevonden in het IDEX bestand (regel 9)"},
    {{.kind = ProblemKind::NoDatabase},
     "Geen DATABASE gevonden in het IDEX bestand",
     "Geen DATABASE gevonden in het IDEX bestand"},
    {{.kind = ProblemKind::InputIsUtf16},
     "Het bestand is UTF-16; sla het op als Windows-1252 of UTF-8",
     "Het bestand is UTF-16; sla het op als Windows-1252 of UTF-8"},
    {{.kind = ProblemKind::ContinuationWithoutText, .line = 31},
     "Tekstregel zonder tekst (regel 31)",
     "Tekstregel zonder tekst (regel 31)"},
    {{.kind = ProblemKind::NoProjectRecord, .line = 1},
     "NEN1878 bestand bevat geen '01' (KOP) record.",
     "NEN1878 bestand bevat geen '01' (KOP) record. (regel 1)"},
    {{.kind = ProblemKind::NoFrameRecord, .line = 2},
     "NEN1878 bestand bevat geen '02' (KOP) record.",
     "NEN1878 bestand bevat geen '02' (KOP) record. (regel 2)"},
    {{.kind = ProblemKind::NoCoordinatesRecord, .words = u"Punt,", .line = 5},
     "Punt, 04 record ontbreekt",
     "Punt, 04 record ontbreekt (regel 5)"},
    {{.kind = ProblemKind::NoTextRecord, .line = 6},
     "Tekst, 06 record ontbreekt",
     "Tekst, 06 record ontbreekt (regel 6)"},
    {{.kind = ProblemKind::InvalidArc, .line = 7}, "Ongeldige boog", "Ongeldige boog (regel 7)"},
    {{.kind = ProblemKind::ArcInLineString, .line = 8},
     "Boog in lijnstring wordt niet ondersteund",
     "Boog in lijnstring wordt niet ondersteund (regel 8)"},
    {{.kind = ProblemKind::UnknownPoint, .words = u"Tekst", .number = 3},
     "Tekst 3 verwijst naar een onbekend punt",
     "Tekst 3 verwijst naar een onbekend punt"},
    {{.kind = ProblemKind::UnknownLine, .words = u"Lijnsegment", .number = 4, .line = 1'000'000'000'000},
     "Lijnsegment 4 verwijst naar een onbekende lijn",
     "Lijnsegment 4 verwijst naar een onbekende lijn (regel 1000000000000)"},
};

TEST(Problem, EveryKindHasItsSentence) {
    for (const ProblemCase& entry : cases) EXPECT_EQ(ToUtf8(Sentence(entry.problem)), entry.sentence);
}

TEST(Problem, TheLineStandsOnceBehindTheSentenceWhenThereIsOne) {
    for (const ProblemCase& entry : cases) EXPECT_EQ(ToUtf8(SentenceWithLine(entry.problem)), entry.withLine);
}

TEST(Problem, NoErrorIsForgotten) {
    int errors = 0;
    for (int kind = 0; kind < problemKinds; ++kind) {
        if (ListOf(static_cast<ProblemKind>(kind)) != ProblemList::Errors) continue;
        ++errors;
        const bool isThere = std::any_of(std::begin(cases), std::end(cases), [kind](const ProblemCase& entry) {
            return entry.problem.kind == static_cast<ProblemKind>(kind);
        });
        EXPECT_TRUE(isThere) << kind;
    }
    EXPECT_EQ(errors, 17);
}

TEST(Problem, WhatVariesIsTakenAsItIsWhateverItsCharacters) {
    const Problem problem{.kind = ProblemKind::FileNotOpened, .words = u"{naam}", .number = -1, .name = u"{getal}.idx"};
    EXPECT_EQ(Sentence(problem), u"Error:-1 - {naam}\n{getal}.idx");
}

TEST(Problem, ANumberThatNobodyGaveIsNought) {
    EXPECT_EQ(Sentence({.kind = ProblemKind::ExportNotOpened, .name = u"A"}),
              u"Kon bestand: 'A' niet opslaan;\nFoutcode: 0");
}

TEST(Problem, AnErrorThatEscapesIsToldByItsDescription) {
    const Problem problem = EscapedError(RuntimeError(errors::subscriptOutOfRange));
    EXPECT_EQ(problem.kind, ProblemKind::EscapedError);
    EXPECT_EQ(Sentence(problem), u"Index buiten bereik");
}

class ReportTest : public TranslationTest {};

TEST_F(ReportTest, AProblemIsCountedAndALineOfTheLogBook) {
    OpenLog();
    EXPECT_EQ(translation.problems.errors, 0);
    Report(translation, {.kind = ProblemKind::InvalidArc});
    Report(translation, {.kind = ProblemKind::ExportNotOpened, .number = 75, .name = u"A.SFN"});
    EXPECT_EQ(translation.problems.errors, 2);
    EXPECT_EQ(LogText(), "FOUT:  Ongeldige boog\nFOUT:  Kon bestand: 'A.SFN' niet opslaan; Foutcode: 75\n");
}

TEST_F(ReportTest, ItGetsTheLineThatIsBeingReadUnlessItHasOne) {
    OpenLog();
    translation.inputLine = 17;
    Report(translation, EscapedError(RuntimeError(errors::subscriptOutOfRange)));
    Report(translation, {.kind = ProblemKind::EscapedError, .words = u"Overloop", .line = 5});
    translation.inputLine = 0;
    Report(translation, EscapedError(RuntimeError(errors::diskFull)));
    EXPECT_EQ(LogText(), "FOUT:  Index buiten bereik (regel 17)\nFOUT:  Overloop (regel 5)\nFOUT:  Schijf vol\n");
}

TEST_F(ReportTest, WhoListensForErrorsHearsOfNothingElse) {
    std::vector<ProblemKind> told;
    translation.problems.onError = [&told](const Problem& problem) { told.push_back(problem.kind); };
    Report(translation, {.kind = ProblemKind::InvalidArc});
    Tell(translation, {.kind = ProblemKind::ShortLine});
    EXPECT_EQ(told, std::vector{ProblemKind::InvalidArc});
}

TEST_F(ReportTest, WhoListensGetsItWhetherALogBookIsKeptOrNot) {
    std::vector<Problem> told;
    translation.problems.onProblem = [&told](const Problem& problem) { told.push_back(problem); };
    translation.inputLine = 8;
    Report(translation, {.kind = ProblemKind::UnknownPoint, .words = u"Tekst", .number = 2});
    OpenLog();
    Report(translation, {.kind = ProblemKind::NoTextRecord});
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(SentenceWithLine(told[0]), u"Tekst 2 verwijst naar een onbekend punt (regel 8)");
    EXPECT_EQ(told[1].kind, ProblemKind::NoTextRecord);
    EXPECT_EQ(translation.problems.errors, 2);
    EXPECT_EQ(LogText(), "FOUT:  Tekst, 06 record ontbreekt\n");
}

}  // namespace
}  // namespace korvande::testing
