#include "library/Calls.h"

#include <exception>
#include <memory>
#include <utility>
#include <vector>

#include "library/CallbackScreen.h"
#include "project/ControlTable.h"
#include "project/Project.h"
#include "report/CheckJson.h"
#include "report/TranslationJson.h"
#include "run/Check.h"
#include "run/InputDrawing.h"
#include "run/TranslateFiles.h"
#include "translation/ClosingSentence.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

void RequireOpen(const korvande_handle& handle) {
    if (!handle.isOpen) throw WrongUse{u"De controletabel is niet geopend."};
}

// What a translation takes of the control table, with the options of the call.
Project SettingsOf(const korvande_handle& handle, const korvande_options& options) {
    Project settings;
    settings.options = handle.project.options;
    settings.owner = handle.project.owner;
    TakeOptions(options, settings.options);
    return settings;
}

CodeTables TakeCodes(korvande_handle& handle) {
    if (handle.codes) {
        CodeTables codes = std::move(*handle.codes);
        handle.codes.reset();
        return codes;
    }
    return FreshTables(handle.project);
}

// The messages of a call that did not go well, and the sentence that closes it.
Text ErrorText(const CallbackScreen& screen, TextView closingSentence) {
    const Text& messages = screen.Messages();
    return messages.empty() ? Text(closingSentence) : Concat(messages, u"\n", closingSentence);
}

int StatusOf(const Translation& translation) {
    if (translation.outcome.Failed()) return KORVANDE_FAILED;
    return translation.problems.HasFaults() ? KORVANDE_WITH_ERRORS : KORVANDE_DONE;
}

// The account of a call as JSON. What was done stays done when there is no memory to tell of it. The library of JSON
// asks for memory while it gives memory back, where its lack would end the program: so it is made only where there is
// plenty.
template <class MakeJson>
void TellResult(korvande_handle& handle, std::size_t problems, MakeJson makeJson) noexcept {
    constexpr std::size_t mostOfTheRest = std::size_t{1} << 20;
    constexpr std::size_t mostOfAProblem = std::size_t{1} << 11;
    try {
        std::make_unique<char[]>(mostOfTheRest + problems * mostOfAProblem).reset();
        handle.result = makeJson();
    } catch (const std::exception&) {
        handle.result.reset();
    }
}

// Gathers what is wrong with a file that is checked.
void Listen(Translation& translation, CallbackScreen& screen, std::vector<CheckFinding>& findings) {
    translation.problems.onError = [&findings](const Problem& problem) { findings.push_back(FindingOf(problem)); };
    screen.answerQuestion = [&findings, &translation](const MessageBox& box) {
        findings.push_back(FindingOfQuestion(box.text, translation.inputLine));
        return Answer::Yes;
    };
}

// Of a check that went through the whole file. A code that the control table does not know is a problem too.
int StatusOf(const Translation& translation, const std::vector<CheckFinding>& findings) {
    if (translation.outcome.inputUnreadable || translation.outcome.wrongFormat) return KORVANDE_FAILED;
    const bool isGood = findings.empty() && translation.unknowns.Entries().empty() && !translation.problems.HasLoss();
    return isGood ? KORVANDE_DONE : KORVANDE_WITH_ERRORS;
}

}  // namespace

int OpenTable(korvande_handle& handle, const std::optional<Text>& name) {
    CallbackScreen screen({});
    if (name) {
        handle.tableName = *name;
        handle.isOpen = LoadProjectFile(screen, handle.project, *name);
    } else {
        LoadProjectWithoutTable(handle.project);
        handle.isOpen = true;
    }
    TellError(handle, screen.Messages());
    if (!handle.isOpen) return KORVANDE_FAILED;
    return screen.Messages().empty() ? KORVANDE_DONE : KORVANDE_WITH_ERRORS;
}

int TranslateDrawing(korvande_handle& handle, const TranslateCall& call) {
    RequireOpen(handle);
    if (const std::optional<Text> clash = FindClash(call.names, handle.tableName)) throw WrongUse{*clash};
    CallbackScreen screen(call.callbacks);
    Translation translation(screen, SettingsOf(handle, call.options), TakeCodes(handle));
    TakeNames(call.names, call.mode, translation);
    translation.readsWithoutLayers = call.options.from_instrument != 0;
    // Nobody asked for those; they say nothing that the outcome does not.
    translation.withDiagnosticFiles = false;
    std::vector<Problem> errors;
    translation.problems.onError = [&errors](const Problem& problem) { errors.push_back(problem); };
    TranslateFiles(translation);
    const int status = StatusOf(translation);
    if (status != KORVANDE_FAILED) screen.FinishStep();
    if (status != KORVANDE_DONE) TellError(handle, ErrorText(screen, ClosingSentence(translation)));
    TellResult(handle, errors.size(), [&] { return TranslationJson(translation, status, errors); });
    handle.codes = std::move(translation.codes);
    return status;
}

int CheckDrawing(korvande_handle& handle, const CheckCall& call) {
    RequireOpen(handle);
    CallbackScreen screen(call.callbacks);
    const FoundInput found = LookAtInput(screen, call.input);
    if (!found.input) {
        TellError(handle, found.whyNot);
        TellResult(handle, 0, [&call] { return FailedCheckJson(call.input, KORVANDE_FAILED); });
        return KORVANDE_FAILED;
    }
    Translation translation(screen, SettingsOf(handle, call.options), TakeCodes(handle));
    TakeInput(*found.input, call.input, translation);
    translation.readsWithoutLayers = call.options.from_instrument != 0;
    std::vector<CheckFinding> findings;
    Listen(translation, screen, findings);
    CheckDrawing(translation);
    if (translation.outcome.cancelled) throw TranslationAborted();
    const int status = StatusOf(translation, findings);
    if (status == KORVANDE_FAILED) {
        TellError(handle, ErrorText(screen, Concat(call.input, u" kan niet worden gelezen.")));
    } else {
        screen.FinishStep();
        if (status != KORVANDE_DONE) TellError(handle, Concat(call.input, u": er zijn problemen gevonden."));
    }
    TellResult(handle, findings.size(),
               [&] { return CheckJson(translation, call.input, found.input->format, status, findings); });
    handle.codes = std::move(translation.codes);
    return status;
}

}  // namespace korvande
