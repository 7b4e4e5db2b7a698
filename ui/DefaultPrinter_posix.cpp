#include <wx/log.h>
#include <wx/utils.h>

#include <algorithm>
#include <optional>

#include "ui/DefaultPrinter.h"

namespace korvande {

namespace {

// What the printing system's own command says, in its untranslated form; nothing when it fails.
std::optional<wxArrayString> TryToAsk(const wxString& command) {
    const wxLogNull noMessages;
    wxExecuteEnv environment;
    wxGetEnvMap(&environment.env);
    environment.env["LC_ALL"] = "C";
    wxArrayString output;
    wxArrayString errors;
    if (wxExecute(command, output, errors, wxEXEC_SYNC | wxEXEC_NODISABLE, &environment) != 0) return {};
    return output;
}

wxArrayString Ask(const wxString& command) { return TryToAsk(command).value_or(wxArrayString()); }

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

wxString CommandForJobs() { return "lpstat -W all -o '" + DefaultPrinter() + "'"; }

}  // namespace

// Of a queue that takes no jobs the answer is "<name> not accepting requests since <moment> - <reason>".
bool DefaultPrinterTakesJobs() {
    const wxString name = DefaultPrinter();
    if (name.empty()) return false;
    const wxArrayString answers = Ask("lpstat -a '" + name + "'");
    return std::none_of(answers.begin(), answers.end(),
                        [&name](const wxString& line) { return line.StartsWith(name + " not accepting requests"); });
}

wxArrayString JobsOfDefaultPrinter() { return Ask(CommandForJobs()); }

// A document of a kind that the printer does not take makes no job. One that it takes is there at once, or nearly.
bool DefaultPrinterGotJob(const wxArrayString& jobsBefore) {
    constexpr int questions = 20;
    constexpr int pause = 100;  // milliseconds
    const wxString command = CommandForJobs();
    for (int i = 0; i < questions; ++i) {
        const std::optional<wxArrayString> jobs = TryToAsk(command);
        // A system that does not tell its jobs has not refused this one either.
        if (!jobs || *jobs != jobsBefore) return true;
        wxMilliSleep(pause);
    }
    return false;
}

bool EndDocument(wxDC& printer) {
    printer.EndDoc();
    return true;
}

}  // namespace korvande
