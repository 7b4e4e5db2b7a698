#include "translation/Translation.h"

#include <utility>

#include "project/Grid.h"

namespace korvande {

Translation::Translation(Screen& itsScreen, const Project& project)
    : screen(itsScreen), options(project.options), owner(project.owner), codes(project.codes) {
    PassThroughGrids(codes);
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
    return translation.options.chkExportUnknowns ? &translation.unknowns : nullptr;
}

void Report(Translation& translation, Problem problem) {
    if (problem.line == 0) problem.line = translation.inputLine;
    ++translation.problems.errors;
    translation.log.WriteError(Sentence(problem));
    if (translation.problems.onProblem) translation.problems.onProblem(problem);
}

}  // namespace korvande
