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
#include "picture/MakeDisplayList.h"
#include "project/OwnerBoxes.h"
#include "run/Steps.h"

namespace korvande {

namespace {

// The mode by which the output of a translation is read back.
Mode BackOf(Mode mode) noexcept {
    return {mode.direction == Direction::FromIdex ? Direction::ToIdex : Direction::FromIdex, mode.variant};
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
    if (box.buttons == Buttons::YesNo || box.buttons == Buttons::YesNoCancel) {
        questions.push_back(box.text);
        return Answer::Yes;
    }
    message = box.text;
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
    ReadingNotice notice;
    notice.Listen(translation);
    drawing.name = name;
    translation.options = order.options;
    translation.owner = order.owner;
    translation.codes = order.codes;
    translation.mode = mode;
    (mode.direction == Direction::FromIdex ? translation.IdexFileName : translation.SufNenFileName) = name;
    ReadDrawing(translation);
    translation.problems.onError = {};
    preview->screen.PumpEvents();
    const RunOutcome& outcome = translation.outcome;
    if (outcome.cancelled) throw TranslationAborted();
    if (outcome.inputUnreadable || outcome.wrongFormat) {
        failure = notice.Failure(name, preview->screen.message);
        return false;
    }
    for (const Text& question : std::exchange(preview->screen.questions, {})) notice.AddQuestion(question);
    preview->screen.ShowStatus(u"Bezig met tekenen...");
    drawing.list = MakeDisplayList(translation);
    drawing.index = SpatialIndex(drawing.list);
    drawing.notice = notice.Lines(FileNameOf(name), translation, drawing.list);
    return true;
}

}  // namespace korvande
