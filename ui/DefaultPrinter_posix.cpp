#include <wx/log.h>
#include <wx/utils.h>

#include <algorithm>

#include "ui/DefaultPrinter.h"

namespace korvande {

namespace {

// What the printing system's own command says, in its untranslated form; nothing when it fails.
wxArrayString Ask(const wxString& command) {
    const wxLogNull noMessages;
    wxExecuteEnv environment;
    wxGetEnvMap(&environment.env);
    environment.env["LC_ALL"] = "C";
    wxArrayString output;
    wxArrayString errors;
    if (wxExecute(command, output, errors, wxEXEC_SYNC | wxEXEC_NODISABLE, &environment) != 0) output.clear();
    return output;
}

// From "system default destination: <name>", or, chosen by the user for themselves, "user default destination: <name>",
// where "/" and an instance of the printer may follow; empty without a default printer.
wxString DefaultPrinter() {
    const wxString answer = "default destination: ";
    for (const wxString& line : Ask("lpstat -d")) {
        if (const int place = line.Find(answer); place != wxNOT_FOUND) {
            return line.Mid(static_cast<std::size_t>(place) + answer.length()).BeforeFirst('/').Trim();
        }
    }
    return {};
}

}  // namespace

// Of a queue that takes no jobs the answer is "<name> not accepting requests since <moment> - <reason>".
bool DefaultPrinterTakesJobs() {
    const wxString name = DefaultPrinter();
    if (name.empty()) return false;
    const wxArrayString answers = Ask("lpstat -a '" + name + "'");
    return std::none_of(answers.begin(), answers.end(),
                        [&name](const wxString& line) { return line.StartsWith(name + " not accepting requests"); });
}

}  // namespace korvande
