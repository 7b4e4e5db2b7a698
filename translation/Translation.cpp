#include "translation/Translation.h"

#include <utility>

namespace korvande {

Translation::Translation(Screen& itsScreen, const Project& project)
    : screen(itsScreen), options(project.options), owner(project.owner), codes(FreshTables(project)) {}

Translation::Translation(Screen& itsScreen, const Project& project, CodeTables tablesOfProject)
    : screen(itsScreen), options(project.options), owner(project.owner), codes(std::move(tablesOfProject)) {
    ForgetUses(codes);
}

Translation::Translation(Screen& itsScreen) : screen(itsScreen) {
    ResetCodeTables(codes);
    FillOwner(owner);
    ResetOptions(options);
}

const Text& InputName(const Translation& translation) noexcept {
    return translation.mode.direction == Direction::FromIdex ? translation.IdexFileName : translation.SufNenFileName;
}

const Text& OutputName(const Translation& translation) noexcept {
    return translation.mode.direction == Direction::FromIdex ? translation.SufNenFileName : translation.IdexFileName;
}

UnknownCodeTally* TallyOf(Translation& translation) noexcept {
    return translation.options.chkExportUnknowns ? &translation.unknowns : &translation.unlistedUnknowns;
}

void ForgetUnknowns(Translation& translation) {
    translation.unknowns.Reset();
    translation.unlistedUnknowns.Reset();
}

void Report(Translation& translation, Problem problem) {
    if (problem.line == 0) problem.line = translation.inputLine;
    ++translation.problems.errors;
    translation.log.WriteError(Sentence(problem));
    if (translation.problems.onError) translation.problems.onError(problem);
    if (translation.problems.onProblem) translation.problems.onProblem(problem);
}

void Tell(Translation& translation, Problem problem, std::int64_t count) {
    if (problem.line == 0) problem.line = translation.inputLine;
    translation.problems.Add(problem, count);
}

void LeaveOut(Translation& translation, ObjectKind kind, LeftOut reason, std::int64_t line, TextView words) {
    translation.account.Leave(kind, reason);
    const std::int64_t itsLine = line != 0 ? line : translation.inputLine;
    if (words.empty() && translation.problems.Count(KindOf(reason, kind), kind, itsLine)) return;
    Tell(translation, {.kind = KindOf(reason, kind), .object = kind, .words = Text(words), .line = line});
}

void LeaveUnfinished(Translation& translation, ObjectKind kind, std::int64_t count) {
    if (count <= 0) return;
    translation.account.Leave(kind, LeftOut::Unfinished, count);
    translation.problems.Add({.kind = ProblemKind::Unfinished, .object = kind}, count);
}

}  // namespace korvande
