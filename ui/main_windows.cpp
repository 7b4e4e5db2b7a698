#include <wx/msw/wrapwin.h>
// Behind the header above.
#include <wx/app.h>
#include <wx/init.h>

#include <clocale>

#include "app/CommandLine.h"
#include "core/WideText_windows.h"
#include "host/ProgramPlace.h"
#include "ui/App.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int howToShow) {
    std::setlocale(LC_ALL, "");
    const korvande::ProgramPlace program = korvande::RunningProgram();
    const korvande::Text commandLine = korvande::BehindProgramName(
        korvande::FromWide(::GetCommandLineW()), korvande::Concat(program.folder, u"\\", program.name));
    wxApp::SetInstance(new korvande::App({commandLine, korvande::HasRegistrationSwitch(commandLine)}));
    return wxEntry(instance, nullptr, nullptr, howToShow);
}
