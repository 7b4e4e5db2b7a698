#pragma once

#include <wx/frame.h>

#include <cstddef>
#include <memory>
#include <optional>

#include "app/LogBookView.h"
#include "core/Text.h"
#include "ui/KeptPlace.h"

class wxTextCtrl;

namespace korvande {

struct FormKORVANDE;
class LogBookList;

// A log book in a window beside the main one: what needs attention is coloured and found by keys, and any text can be
// looked for. It keeps what it read, whatever becomes of the file.
class LogBookWindow : public wxFrame {
 public:
    LogBookWindow(wxWindow* parent, const FormKORVANDE& form);
    LogBookWindow(const LogBookWindow&) = delete;
    LogBookWindow& operator=(const LogBookWindow&) = delete;
    ~LogBookWindow() override;

    // Shows a log book; false, and everything as it was, when it cannot be read.
    bool Open(const Text& name);

    // As soon as whoever asked for the log book has done with the focus.
    void BringToFront();

    // After a run: shows its log book, or tells in the title that the one shown is of an earlier run.
    void FollowRuns();

 private:
    wxSizer* MakeSearch();
    wxSizer* MakeButtons();
    void OnKey(wxKeyEvent& event);
    bool OnCommandKey(int key);
    void GoTo(std::optional<std::size_t> line, TextView missing);
    void GoToMark(Towards towards);
    void Search(Towards towards);
    void ShowPlace();
    void SaveAs();
    void Print();
    void Copy() const;

    const FormKORVANDE& form;
    Text name;
    LogBookView view;
    LogBookList* list;
    wxTextCtrl* searched;
    int followedRun;
    std::unique_ptr<KeptPlace> place;
};

}  // namespace korvande
