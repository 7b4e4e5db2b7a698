#include "app/RunSaving.h"

#include "app/ProjectSaving.h"
#include "app/Projects.h"
#include "app/UserSettings.h"
#include "app/frmKORVANDE.h"

namespace korvande {

namespace {

// The project as another program wrote it, with the files of this run. False when it cannot be loaded.
bool ReloadForRun(FormKORVANDE& form) {
    Options& options = form.project.options;
    const Text idexFile = options.txtFileIDEX;
    const Text sufNenFile = options.txtFileSUFNEN;
    if (!LoadProject(form, form.CurrentProject)) return false;
    options.txtFileIDEX = idexFile;
    options.txtFileSUFNEN = sufNenFile;
    TellChanged(form);
    return true;
}

}  // namespace

RunEnd SaveForRun(FormKORVANDE& form) {
    Edits edits = AskAboutEdits(form);
    if (edits == Edits::Drop) {
        if (!ReloadForRun(form)) return RunEnd::Stopped;
        edits = AskAboutEdits(form);
    }
    if (edits == Edits::Keep) return RunEnd::Kept;
    SaveUserSettings(form);
    if (edits == Edits::Save) SaveEdits(form);
    return RunEnd::Finished;
}

}  // namespace korvande
