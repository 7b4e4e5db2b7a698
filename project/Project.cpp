#include "project/Project.h"

#include "project/Grid.h"
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

void LoadProjectWithoutTable(Project& project) {
    LoadEmptyProject(project);
    project.options.chkExportUnknowns = project.options.chkImportUnknowns = true;
}

CodeTables FreshTables(const Project& project) {
    CodeTables codes = project.codes;
    PassThroughGrids(codes);
    return codes;
}

void FinishLoad(Project& project) {
    FillSource(project.owner);
    ShowOwner(project.owner, project.options);
}

}  // namespace korvande
