#pragma once

#include <wx/app.h>

#include <memory>

#include "app/StartUp.h"
#include "app/frmKORVANDE.h"
#include "ui/WindowScreen.h"

namespace korvande {

// The program, which owns the form: start-up, and then the window, unless start-up ends it.
class App : public wxApp {
 public:
    explicit App(StartUpArguments startUpArguments) : arguments(std::move(startUpArguments)) {}

    bool OnInit() override;
    int OnRun() override;

    // An error that nothing else has handled is shown, and the program goes on.
    bool OnExceptionInMainLoop() override;

 private:
    StartUpArguments arguments;

    // They live as long as the program, which outlives its window.
    std::unique_ptr<WindowScreen> screen;
    std::unique_ptr<FormKORVANDE> form;
    bool hasWindow = false;
};

}  // namespace korvande
