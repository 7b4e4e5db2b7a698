#include "ui/RunWindows.h"

#include <wx/dialog.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "app/CheckInput.h"
#include "app/GivenFile.h"
#include "app/Projects.h"
#include "app/RunBatch.h"
#include "app/frmKORVANDE.h"
#include "ui/BatchDialog.h"
#include "ui/BatchWindow.h"
#include "ui/CheckWindow.h"
#include "ui/DropTarget.h"
#include "ui/PreviewWindow.h"

namespace korvande {

namespace {

bool HasDialog() {
    return std::any_of(wxTopLevelWindows.begin(), wxTopLevelWindows.end(), [](const wxWindow* window) {
        const auto* const dialog = dynamic_cast<const wxDialog*>(window);
        return dialog != nullptr && dialog->IsModal();
    });
}

}  // namespace

RunWindows::RunWindows(wxFrame& itsFrame, FormKORVANDE& itsForm, Work itsWork)
    : frame(itsFrame), form(itsForm), work(std::move(itsWork)) {
    const auto take = [this](const std::vector<Text>& names) {
        frame.CallAfter([this, names] {
            // Something else may have begun meanwhile.
            if (MayBegin()) work([this, names] { TakeFiles(names); });
        });
    };
    TakeDroppedFiles(frame, {[this] { return MayBegin(); }, take});
    frame.Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        if ((key != WXK_F7 && key != WXK_F8) || event.HasAnyModifiers() || !MayBegin()) return event.Skip();
        work([this, key] { key == WXK_F7 ? Check() : ShowPreview(); });
    });
}

template <class Window>
void RunWindows::Replace(wxWeakRef<Window>& old, Window* window) {
    if (old != nullptr) old->Destroy();
    old = window;
    // What was asked for stays before the main window, which would come to the front a while after a project changed.
    form.Timer1Enabled = false;
    TellChanged(form);
    window->Show();
}

void RunWindows::Check() {
    std::optional<CheckReport> report = CheckInput(form);
    if (report) Replace(check, new CheckWindow(&frame, std::move(*report)));
}

void RunWindows::Open(PreviewOrder order) {
    auto* const window = new PreviewWindow(&frame, form, std::move(order));
    window->onUnknownCodes = [this, window](const UnknownCodes& unknown, const PreviewWindow::Look& look) {
        return onUnknownCodes(unknown, window, look);
    };
    Replace(preview, window);
    // As soon as whoever asked for it has done with the focus.
    window->CallAfter([window] {
        window->Raise();
        window->View().SetFocus();
    });
}

void RunWindows::ShowPreview() {
    std::optional<PreviewOrder> order = PreviewOfInput(form);
    if (order) Open(std::move(*order));
}

void RunWindows::ShowComparison() {
    std::optional<PreviewOrder> order = PreviewOfRun(form);
    if (order) Open(std::move(*order));
}

// Nothing is going on, and the names in the window count.
bool RunWindows::MayBegin() const { return form.project.options.StartedInteractively && !IsBusy(form) && !HasDialog(); }

// One file goes into its box; for more of them, or a folder, a dialog offers to translate them all.
void RunWindows::TakeFiles(const std::vector<Text>& names) {
    if (AreBatch(names)) return TranslateBatch(names);
    TakeGivenFile(form, names.front());
}

void RunWindows::TranslateBatch(const std::vector<Text>& names) {
    BatchDialog dialog(&frame, form, BatchOf(form, names));
    if (dialog.ShowModal() != wxID_OK) return;
    std::optional<std::vector<BatchOutcome>> outcomes = korvande::TranslateBatch(form, dialog.Chosen());
    if (outcomes) Replace(batch, new BatchWindow(&frame, form.screen, std::move(*outcomes)));
}

}  // namespace korvande
