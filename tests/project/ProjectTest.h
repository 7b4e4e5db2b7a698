#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "project/ControlTable.h"
#include "project/ControlTableReader.h"
#include "project/ControlTableWriter.h"
#include "project/Grid.h"
#include "project/OwnerBoxes.h"
#include "project/Project.h"
#include "tests/project/ProjectState.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

// Puts these cells into a grid's row, which may be one behind its last, and takes the grid into the table.
inline void Edit(CodeTable& table, int row, const Grid::Row& cells) {
    Grid grid(gridHeader);
    LoadGrid(grid, table);
    grid.SetRowCount(std::max(grid.RowCount(), row + 1));
    grid[row] = cells;
    SaveGrid(grid, table);
}

// A test with a project of its own, which begins as a reset leaves it.
class ProjectTest : public ::testing::Test {
 protected:
    ProjectTest() { BeginAnew(); }

    // The project as when the program starts: no owner was ever filled in.
    void BeginAnew() {
        project = Project();
        ResetProject(project);
        ShowOwner(project.owner, project.options);
    }

    bool LoadFile(TextView name) { return LoadProjectFile(screen, project, name); }
    bool SaveFile(TextView name) { return SaveProjectFile(screen, project, name); }

    std::vector<std::string> State() const { return ProjectState(project); }

    TestFolder folder;
    RecordingScreen screen;
    Project project;
    Options& options = project.options;
    OwnerRec& owner = project.owner;
    CodeTable& pointTable = project.codes.points;
    CodeTable& lineTable = project.codes.lines;
    CodeTable& textTable = project.codes.texts;
};

}  // namespace korvande::testing
