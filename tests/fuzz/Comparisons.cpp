#include "tests/fuzz/Runs.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"
#include "tests/reference/Comparison.h"

namespace korvande::fuzz {

// A run, and the reference translator beside it.
void TryComparison(std::string_view input) {
    const Choice choice = TakeChoice(input);
    const std::string_view table = TakeTable(input);
    AnsweringScreen screen(choice.answer);
    Project project = ProjectOf(screen, table);
    ApplyChoice(choice, project.options);
    // Bytes that look like UTF-8 without saying so, and arcs of three points, are no part of the reference.
    project.options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Windows1252)];
    project.options.chkThreePointArcs = false;
    Translation translation(screen, project);
    translation.mode = choice.mode;
    translation.modeText = NamesOf(choice.mode).text;
    translation.inputBytes = input;
    translation.outputTo = OutputTo::Memory;
    translation.LogFileName = NameOf("logboek");
    translation.withDiagnosticFiles = false;
    const reference::Settings settings = reference::SettingsOf(project, translation, choice.answer);
    Require(TranslateFiles(translation), "the run did not begin");
    const std::string difference = reference::DifferenceFrom(translation, FileBytes("logboek"), settings);
    Require(difference.empty(), difference);
}

}  // namespace korvande::fuzz
