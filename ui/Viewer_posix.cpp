#include <wx/filename.h>
#include <wx/log.h>
#include <wx/utils.h>

#include <array>
#include <cstdlib>
#include <string>

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "ui/Viewer.h"

namespace korvande {

namespace {

// The program that KORVANDE_VIEWER names, or the desktop's opener of documents; empty when it cannot be run.
wxString FindViewer() {
    const char* const named = std::getenv("KORVANDE_VIEWER");
    const wxString program = wxString::FromUTF8(named != nullptr && *named != '\0' ? named : "xdg-open");
    wxString found = program;
    if (program.find('/') == wxString::npos) {
        wxPathList folders;
        folders.AddEnvList("PATH");
        found = folders.FindAbsoluteValidPath(program);
    }
    return wxFileName::IsFileExecutable(found) ? found : wxString();
}

}  // namespace

TextView ViewerPlace() noexcept { return u"In de teksteditor"; }

bool StartViewer(TextView fileName) {
    const std::string viewer = FindViewer().utf8_string();
    if (viewer.empty()) return false;
    const wxLogNull noMessages;
    try {
        const std::string path = NativePath(fileName);
        const std::array<const char*, 3> arguments = {viewer.c_str(), path.c_str(), nullptr};
        return wxExecute(arguments.data(), wxEXEC_ASYNC) != 0;
    } catch (const RuntimeError&) {
        return false;
    }
}

}  // namespace korvande
