#include "project/Project.h"

#include "project/OwnerBoxes.h"

namespace korvande {

void ResetProject(Project& project) {
    ResetCodeTables(project.codes);
    FillOwner(project.owner);
    ResetOptions(project.options);
}

void LoadEmptyProject(Project& project) {
    ResetProject(project);
    FinishLoad(project);
}

void FinishLoad(Project& project) {
    FillSource(project.owner);
    ShowOwner(project.owner, project.options);
}

}  // namespace korvande
