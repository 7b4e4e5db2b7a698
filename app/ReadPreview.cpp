#include "app/ReadPreview.h"

#include <algorithm>
#include <utility>

#include "app/OutputName.h"
#include "app/RunActivity.h"
#include "app/RunFiles.h"
#include "app/RunTranslation.h"
#include "app/frmKORVANDE.h"
#include "core/RuntimeError.h"
#include "host/modFileHandling.h"
#include "project/OwnerBoxes.h"
#include "run/Steps.h"

namespace korvande {

namespace {

// The mode by which the output of a translation is read back.
Mode BackOf(Mode mode) noexcept {
    return {mode.direction == Direction::FromIdex ? Direction::ToIdex : Direction::FromIdex, mode.variant};
}

// Why a file was not read: the reader's message, when that names the file, or its first error.
Text WhyUnread(const Text& name, const Text& message, const Text& error) {
    if (message.find(name) != Text::npos) return message;
    const Text& reason = error.empty() ? message : error;
    return Concat(u"Het bestand kan niet worden gelezen:\n", name, reason.empty() ? u"" : u"\n", reason);
}

}  // namespace

bool TakeSettings(FormKORVANDE& form, PreviewOrder& order) {
    if (IsRunning(form)) return false;
    SaveGridData(form);
    TakeOwner(form.project.options, form.project.owner);
    order.options = form.project.options;
    order.owner = form.project.owner;
    order.codes = form.project.codes;
    return true;
}

std::optional<PreviewOrder> PreviewOfInput(FormKORVANDE& form) {
    if (IsRunning(form)) return {};
    TakeQuotesAway(form);
    PreviewOrder order;
    order.input = InputInForm(form);
    order.mode = SelectedMode(form);
    if (!InputIsThere(form, order.input)) return {};
    TakeSettings(form, order);
    return order;
}

std::optional<PreviewOrder> PreviewOfRun(FormKORVANDE& form) {
    const RunReport& run = form.lastRun;
    if (IsRunning(form) || !run.wroteOutput) return {};
    if (!InputIsThere(form, run.input)) return {};
    if (!FileExistsAt(run.output)) {
        ShowMessage(form.screen, Concat(u"Uitvoerbestand niet gevonden:\n'", run.output, u"'"));
        return {};
    }
    PreviewOrder order;
    order.input = run.input;
    order.mode = run.mode;
    order.output = run.output;
    TakeSettings(form, order);
    return order;
}

Text PreviewScreen::Status() const {
    const std::lock_guard guard(lock);
    return status;
}

void PreviewScreen::ShowStatus(TextView text) {
    const std::lock_guard guard(lock);
    status = text;
}

void PreviewScreen::ShowProgressMaximum(std::int64_t newMaximum) {
    maximum = std::max<std::int64_t>(newMaximum, 1);
    part = 0;
}

void PreviewScreen::ShowProgressValue(std::int64_t value) {
    part = static_cast<double>(std::clamp<std::int64_t>(value, 0, maximum)) / static_cast<double>(maximum);
}

void PreviewScreen::PumpEvents() {
    if (isStopped) throw TranslationAborted();
}

Answer PreviewScreen::ShowMessage(const MessageBox& box) {
    message = box.text;
    const bool isQuestion = box.buttons == Buttons::YesNo || box.buttons == Buttons::YesNoCancel;
    if (isQuestion) return Answer::Yes;
    return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
}

PreviewReading::PreviewReading(PreviewOrder order) : preview(std::make_unique<Preview>()) {
    thread = std::thread([this, order = std::move(order)] {
        try {
            Read(order);
        } catch (const TranslationAborted&) {
            end = PreviewEnd::Stopped;
        } catch (const std::exception&) {
            end = PreviewEnd::Failed;
            failure = Concat(u"De tekening kan niet worden getoond: ", CurrentError().Description());
        }
        isOver = true;
    });
}

PreviewReading::~PreviewReading() {
    if (preview) Stop();
    thread.join();
}

void PreviewReading::Read(const PreviewOrder& order) {
    if (!ReadOne(preview->drawing, order.mode, order.input, order)) return;
    if (!order.output.empty()) {
        preview->output = std::make_unique<ShownDrawing>(preview->screen);
        if (!ReadOne(*preview->output, BackOf(order.mode), order.output, order)) return;
        preview->screen.ShowStatus(u"Bezig met vergelijken...");
        preview->comparison = Compare(preview->drawing.translation, preview->output->translation);
    }
    end = PreviewEnd::Read;
}

bool PreviewReading::ReadOne(ShownDrawing& drawing, Mode mode, const Text& name, const PreviewOrder& order) {
    Translation& translation = drawing.translation;
    drawing.name = name;
    translation.options = order.options;
    translation.owner = order.owner;
    translation.codes = order.codes;
    translation.mode = mode;
    (mode.direction == Direction::FromIdex ? translation.IdexFileName : translation.SufNenFileName) = name;
    Text reason;
    translation.problems.onError = [&reason](const Problem& problem) {
        if (reason.empty()) reason = SentenceWithLine(problem);
    };
    ReadDrawing(translation);
    translation.problems.onError = {};
    preview->screen.PumpEvents();
    const RunOutcome& outcome = translation.outcome;
    if (outcome.cancelled) throw TranslationAborted();
    if (outcome.inputUnreadable || outcome.wrongFormat) {
        failure = WhyUnread(name, preview->screen.message, reason);
        return false;
    }
    preview->screen.ShowStatus(u"Bezig met tekenen...");
    drawing.list = MakeDisplayList(translation);
    drawing.index = SpatialIndex(drawing.list);
    return true;
}

}  // namespace korvande
