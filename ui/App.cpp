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
    form = std::make_unique<FormKORVANDE>(*screen);
    hasWindow = OpenMainWindow(*screen, *form, arguments) != nullptr;
    return true;
}

int App::OnRun() { return hasWindow ? wxApp::OnRun() : 0; }

bool App::OnExceptionInMainLoop() {
    try {
        throw;
    } catch (const std::exception&) {
        const RuntimeError error = CurrentError();
        ShowMessage(*screen, Concat(u"Foutcode: ", error.Number(), u"\n", error.Description()), Icon::Critical);
    }
    return true;
}

}  // namespace korvande
