#pragma once

#include "core/Text.h"

namespace korvande {

struct FormKORVANDE;

// The project operations behind the list File1 and the buttons cmdNewJob, cmdCopyJob and cmdDelJob. Each stops Timer1
// and starts it again when it ends. A name is asked for through the form's askProjectName.
//
// A project that is left is saved, whichever operation leaves it. Without a current project (its name is empty, as
// after a load that failed) nothing is saved, so that no control table is overwritten by what it does not hold.

// Stops Timer1 as long as this object lives.
class StoppedTimer {
 public:
    explicit StoppedTimer(FormKORVANDE& itsForm);
    StoppedTimer(const StoppedTimer&) = delete;
    StoppedTimer& operator=(const StoppedTimer&) = delete;
    ~StoppedTimer();

 private:
    FormKORVANDE& form;
};

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
void RefreshProjects(FormKORVANDE& form);

// The place in File1 of a project, matched without regard to case when no name is spelled like it; -1 when there is
// none.
int FindProject(const FormKORVANDE& form, TextView name);

// Makes a control table of the project folder the current project and loads it. When it cannot be read and a person
// gives up, there is no current project and the result is false. A control table cannot turn the fixed conversion of a
// command line into interactive use.
bool LoadProject(FormKORVANDE& form, TextView project);

// While a project is being loaded: remembers that the window is to be closed when that is done. False when none is.
bool CloseAfterLoad(FormKORVANDE& form) noexcept;

// Whether a project is being loaded or a translation runs: the start button, the projects, the grids and the options
// are disabled then, and the operations below do nothing.
bool IsBusy(const FormKORVANDE& form) noexcept;

void NewProject(FormKORVANDE& form);
void CopyProject(FormKORVANDE& form);
void DeleteProject(FormKORVANDE& form);

// The project at this place of File1 was picked: saves the one being left and loads it.
void PickProject(FormKORVANDE& form, int index);

}  // namespace korvande
