#include "project/ControlTable.h"

#include "core/LineWriter.h"
#include "core/modScreen.h"
#include "project/ControlTableReader.h"
#include "project/ControlTableWriter.h"
#include "project/OwnerBoxes.h"
#include "project/Project.h"

namespace korvande {

bool LoadProjectFile(Screen& screen, Project& project, TextView fileName) {
    const BusyPointer busy(screen);
    const bool isRead = TryWithRetry(screen, fileName, u"openen", [&] {
        ResetProject(project);
        LineReader file(fileName, &screen);
        ReadControlTable(screen, file, project);
    });
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
    return TryWithRetry(screen, fileName, u"opslaan", [fileName, &text] {
        LineWriter file;
        file.Open(fileName);
        file.Put(text);
        file.Close();
    });
}

}  // namespace korvande
