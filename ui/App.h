#pragma once

#include <wx/app.h>

#include <memory>

#include "app/StartUp.h"
#include "ui/WindowScreen.h"

namespace korvande {

// The program: start-up, and then the window, unless start-up ends it.
class App : public wxApp {
 public:
    explicit App(StartUpArguments startUpArguments) : arguments(std::move(startUpArguments)) {}

    bool OnInit() override;
    int OnRun() override;
    int OnExit() override;

    // An error that nothing else has handled is shown, and the program goes on.
    bool OnExceptionInMainLoop() override;

 private:
    StartUpArguments arguments;
    std::unique_ptr<WindowScreen> screen;
    std::unique_ptr<ScreenInUse> screenInUse;
    bool hasWindow = false;
};

}  // namespace korvande
