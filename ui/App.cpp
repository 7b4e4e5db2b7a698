#include "ui/App.h"

#include <vector>

#include "app/CommandLine.h"
#include "core/RuntimeError.h"
#include "ui/DutchTexts.h"
#include "ui/MainWindow.h"

namespace korvande {

bool App::OnInit() {
    // The base class would refuse arguments that it does not know; ours are read by the start-up.
    SpeakDutch();
    SetAppName("KORVANDE");
    screen = std::make_unique<WindowScreen>();
    screenInUse = std::make_unique<ScreenInUse>(*screen);
    hasWindow = OpenMainWindow(*screen, arguments) != nullptr;
    return true;
}

int App::OnRun() { return hasWindow ? wxApp::OnRun() : 0; }

int App::OnExit() {
    screenInUse.reset();
    screen.reset();
    return wxApp::OnExit();
}

bool App::OnExceptionInMainLoop() {
    try {
        throw;
    } catch (const std::exception&) {
        const RuntimeError error = CurrentError();
        ShowMessage(Concat(u"Foutcode: ", error.Number(), u"\n", error.Description()), Icon::Critical);
    }
    return true;
}

}  // namespace korvande
