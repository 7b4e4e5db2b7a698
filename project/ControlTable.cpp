#include "project/ControlTable.h"

#include "core/LineReader.h"
#include "core/modScreen.h"
#include "host/FileReplacement.h"
#include "project/ControlTableReader.h"
#include "project/ControlTableWriter.h"
#include "project/OwnerBoxes.h"
#include "project/Project.h"

namespace korvande {

namespace {

// Reads the file; false, with a message, when it cannot be read or is no control table.
bool ReadProjectFile(Screen& screen, Project& project, TextView fileName) {
    ControlTableSigns signs;
    const bool isRead = TryWithRetry(screen, fileName, u"openen", [&] {
        ResetProject(project);
        LineReader file(fileName, &screen);
        signs = ReadControlTable(screen, file, project);
    });
    if (!isRead) return false;
    if (!signs.hasKnownSection) {
        ShowMessage(screen, Concat(u"Dit bestand is geen controletabel:\n", fileName));
        return false;
    }
    if (!signs.hasEnd) {
        ShowMessage(screen, Concat(u"De controletabel lijkt afgebroken: er is geen [End]:\n", fileName));
    }
    return true;
}

}  // namespace

bool LoadProjectFile(Screen& screen, Project& project, TextView fileName) {
    const BusyPointer busy(screen);
    const bool isRead = ReadProjectFile(screen, project, fileName);
    if (isRead) {
        FinishLoad(project);
    } else {
        ResetProject(project);
    }
    return isRead;
}

void LoadProjectBytes(Screen& screen, Project& project, std::string_view bytes) {
    ResetProject(project);
    LineReader file;
    file.OpenBytes(bytes);
    ReadControlTable(screen, file, project);
    FinishLoad(project);
}

bool SaveProjectFile(Screen& screen, Project& project, TextView fileName) {
    TakeOwner(project.options, project.owner);
    const std::string text = ControlTableText(project.options, project.codes);
    return TryWithRetry(screen, fileName, u"opslaan", [fileName, &text] { ReplaceFile(fileName, text); });
}

}  // namespace korvande
