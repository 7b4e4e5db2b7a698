#include "run/InputFile.h"

#include "core/modScreen.h"
#include "run/LogBook.h"

namespace korvande {

void ReportOpenFailure(TextView name, const RuntimeError& error) {
    const Text message = Concat(u"Error:", error.Number(), u" - ", error.Description(), u"\n", name);
    LogFile().WriteError(message);
    ShowMessage(message);
}

bool OpenInput(LineReader& file, TextView name) {
    try {
        file.Open(name);
    } catch (const RuntimeError& error) {
        TheRun().outcome.inputUnreadable = true;
        ReportOpenFailure(name, error);
        return false;
    }
    BeginProgress(file.Length() / 128 + 1);
    return true;
}

}  // namespace korvande
