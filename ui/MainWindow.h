#pragma once

#include <wx/frame.h>
#include <wx/gauge.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/timer.h>

#include <functional>
#include <memory>
#include <vector>

#include "app/StartUp.h"
#include "app/UnknownCodes.h"
#include "translation/Mode.h"
#include "ui/Binding.h"
#include "ui/KeptPlace.h"
#include "ui/StartRow.h"
#include "ui/WindowScreen.h"

namespace korvande {

class GridTab;
class OutcomeLine;
class RunWindows;
class StopButton;
struct FormKORVANDE;

// The window frmKORVANDE: six tabs that show the form's values and write every change back.
class MainWindow : public wxFrame {
 public:
    MainWindow(WindowScreen& itsScreen, FormKORVANDE& itsForm);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

    // Shows the form's values as they are now.
    void ShowForm();

 private:
    void MakeTabs();
    void MakeStatusBar();
    void PlaceGauge();
    void FitContent();
    void KeepContentUntilShown();
    void BindControls();
    void BindForm();

    // Runs what a person asked for, with the options disabled meanwhile, and shows what it has come to.
    void Work(const std::function<void()>& action);
    void WorkOn(const char* button, std::function<void()> action);
    void OfferRecent(const char* button, Direction direction);
    void EnableOptions(bool enable);
    void EnableShownPage();
    // Of those found, whether the tables have some now.
    bool AddUnknownCodes(const UnknownCodes& found, wxWindow* parent,
                         const std::function<void(const UnknownCode&)>& look);
    void ShowStandalone();
    void ShowStop();
    void ShowTimer();
    void OnTimer(wxTimerEvent& event);
    void OnClose(wxCloseEvent& event);
    void Unload(MayStay mayStay);

    WindowScreen& screen;
    FormKORVANDE& form;
    wxNotebook* tabs = nullptr;
    wxListBox* projects = nullptr;
    wxGauge* gauge = nullptr;
    StopButton* stop = nullptr;
    OutcomeLine* outcome = nullptr;
    std::vector<GridTab*> gridTabs;
    std::unique_ptr<StartRow> startRow;
    std::unique_ptr<KeptPlace> keptPlace;
    std::unique_ptr<Binding> binding;
    std::unique_ptr<RunWindows> runWindows;
    wxTimer timer;
    bool isFitted = false;
    bool optionsEnabled = true;
    bool isClosing = false;
};

// Start-up, and the window when it leads to one; nothing when the program is to end. The form and its screen must
// outlive the window.
MainWindow* OpenMainWindow(WindowScreen& screen, FormKORVANDE& form, const StartUpArguments& arguments);

}  // namespace korvande
