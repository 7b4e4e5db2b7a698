#pragma once

#include "project/CodeTables.h"
#include "project/Options.h"
#include "project/OwnerRecord.h"

namespace korvande {

// A project: what a control table holds.
struct Project {
    Options options;
    OwnerRec owner{};
    CodeTables codes;
};

// Puts the built-in defaults in place: one unknown row in each code table, the sample file names, the options. The
// owner record gets its default only when it was never filled. The owner boxes are not shown anew.
void ResetProject(Project& project);

// The project as after loading a control table without any key.
void LoadEmptyProject(Project& project);

// The same for who has none: objects whose codes nobody knows are to be taken along.
void LoadProjectWithoutTable(Project& project);

// The code tables of a project, as grids would give them back: what a translation begins with.
CodeTables FreshTables(const Project& project);

// The last steps of every load: a source for an owner without one, and the owner in its boxes.
void FinishLoad(Project& project);

}  // namespace korvande
