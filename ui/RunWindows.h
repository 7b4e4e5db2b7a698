#pragma once

#include <wx/frame.h>
#include <wx/weakref.h>

#include <functional>
#include <vector>

#include "app/UnknownCodes.h"
#include "core/Text.h"

namespace korvande {

class BatchWindow;
class CheckWindow;
class PreviewWindow;
struct FormKORVANDE;
struct PreviewOrder;

// Runs that end in a window of their own, which the next one of its kind replaces: the check, also by F7, and the
// translation of several files that are dropped on the window, and what a drawing looks like, also by F8.
class RunWindows {
 public:
    // Runs an action as the window runs whatever a person asks for.
    using Work = std::function<void(const std::function<void()>& action)>;

    // For a window that has all its controls.
    RunWindows(wxFrame& itsFrame, FormKORVANDE& itsForm, Work itsWork);

    // Asks which of the unknown codes of a preview are to be added, and adds them; whether the tables have some of them
    // now.
    std::function<bool(const UnknownCodes& unknown, wxWindow* parent, const std::function<void(const UnknownCode&)>&)>
        onUnknownCodes;

    // Checks the input and shows what was found.
    void Check();

    // Shows the input, or what became of it in the last run.
    void ShowPreview();
    void ShowComparison();

 private:
    bool MayBegin() const;
    void Open(PreviewOrder order);
    void TakeFiles(const std::vector<Text>& names);
    void TranslateBatch(const std::vector<Text>& names);
    // Shows a window in the place of the one of its kind that was shown before, if any.
    template <class Window>
    void Replace(wxWeakRef<Window>& old, Window* window);

    wxFrame& frame;
    FormKORVANDE& form;
    Work work;
    wxWeakRef<CheckWindow> check;
    wxWeakRef<BatchWindow> batch;
    wxWeakRef<PreviewWindow> preview;
};

}  // namespace korvande
