#include <wx/log.h>
#include <wx/utils.h>

#include <algorithm>

#include "ui/DefaultPrinter.h"

namespace korvande {

// Asks the printing system's own command, in its untranslated form: "system default destination: <name>", or, chosen by
// the user for themselves, "user default destination: <name>".
bool HasDefaultPrinter() {
    constexpr const char* answer = "default destination: ";
    const wxLogNull noMessages;
    wxExecuteEnv environment;
    wxGetEnvMap(&environment.env);
    environment.env["LC_ALL"] = "C";
    wxArrayString output;
    wxArrayString errors;
    if (wxExecute("lpstat -d", output, errors, wxEXEC_SYNC | wxEXEC_NODISABLE, &environment) != 0) return false;
    return std::any_of(output.begin(), output.end(), [](const wxString& line) { return line.Contains(answer); });
}

}  // namespace korvande
