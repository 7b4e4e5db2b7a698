// What the window does to files when it closes, without the window: loads a control table, takes a town as if it had
// been typed, saves the project and the per-user settings.
//
//     saver TABLE.nst TOWN
#include "app/UserSettings.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"

int main(int count, char** words) {
    if (count != 3) return 2;
    const korvande::Text table = korvande::FromUtf8(words[1]);
    const korvande::Text town = korvande::FromUtf8(words[2]);
    korvande::SilentScreen screen;
    korvande::FormKORVANDE form(screen);
    if (!LoadProjectFile(form, table)) return 3;
    form.project.options.txtCity = form.CurrentProject = form.project.options.txtMinX = town;
    const bool isSaved = SaveProjectFile(form, table);
    SaveUserSettings(form);
    return isSaved ? 0 : 3;
}
