#pragma once

#include "core/Text.h"

namespace korvande {

// The project operations behind the list File1 and the buttons cmdNewJob, cmdCopyJob and cmdDelJob. Each stops Timer1
// and starts it again when it ends. A name is asked for through frmKORVANDE().askProjectName.

// The texts of the project dialog.
struct ProjectDialogTexts {
    TextView caption;
    TextView explanation;
    TextView prompt;
};
extern const ProjectDialogTexts newProjectTexts;
extern const ProjectDialogTexts copyProjectTexts;
extern const ProjectDialogTexts deleteProjectTexts;

// The file name that OK in the dialog makes of what was typed: in capitals, trimmed, with ".NST" behind it.
Text ProjectFileName(TextView typed);

// Lists the project folder's control tables in File1, keeping the current project selected.
void RefreshProjects();

void NewProject();
void CopyProject();
void DeleteProject();

// The project at this place of File1 was picked: saves the one being left and loads it.
void PickProject(int index);

}  // namespace korvande
