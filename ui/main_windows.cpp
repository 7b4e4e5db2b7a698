#include <wx/msw/wrapwin.h>
// Behind the header above.
#include <wx/app.h>
#include <wx/init.h>
#include <wx/sysopt.h>

#include <clocale>

#include "app/CommandLine.h"
#include "core/WideText_windows.h"
#include "ui/App.h"

namespace {

// What stands behind the program's name, which stands between quotes when it holds blanks, in the command line as the
// caller wrote it.
korvande::TextView BehindProgramName(korvande::TextView commandLine) {
    const bool isQuoted = commandLine.starts_with(u'"');
    const std::size_t end = isQuoted ? commandLine.find(u'"', 1) : commandLine.find_first_of(u" \t");
    return end == korvande::TextView::npos ? korvande::TextView() : korvande::Trim(commandLine.substr(end + 1));
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int howToShow) {
    std::setlocale(LC_ALL, "");
    const korvande::Text commandLine(BehindProgramName(korvande::FromWide(::GetCommandLineW())));
    // The system paints the frames: where the library does, some stay away after their window was disabled.
    wxSystemOptions::SetOption("msw.staticbox.optimized-paint", 0);
    wxApp::SetInstance(new korvande::App({commandLine, korvande::HasRegistrationSwitch(commandLine)}));
    return wxEntry(instance, nullptr, nullptr, howToShow);
}
