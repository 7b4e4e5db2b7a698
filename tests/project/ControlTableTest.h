#pragma once

#include "tests/project/ProjectState.h"
#include "tests/support/ProgramState.h"

namespace korvande::testing {

// Loads control tables made of a few lines.
class ControlTable : public ProgramTest {
 protected:
    // Loads a control table of these Windows-1252 lines.
    void Load(std::string_view linesWithLf) {
        ASSERT_TRUE(LoadProjectFile(folder.Write("project.nst", WithCrLf(linesWithLf))));
    }

    // What a control table changes in the state that one without any key leaves.
    std::string Changes(std::string_view lines) {
        InitialiseForm();
        Load("[End]\n");
        const std::vector<std::string> before = ProjectState();
        InitialiseForm();
        Load(lines);
        return Differences(before, ProjectState());
    }

    // The rows that lines in a section add to its table, or the unknown row that they leave.
    std::string Rows(char table, const std::string& lines) {
        const char* const section = table == 'P' ? "[Points]\n" : table == 'L' ? "[Lines]\n" : "[Texts]\n";
        Load(section + lines);
        const std::string text = TableText(table);
        return text.substr(text.find('\n') + 1);
    }
    std::string UnknownRow(char table, const std::string& lines) {
        Rows(table, lines);
        const std::string text = TableText(table);
        return text.substr(0, text.find('\n'));
    }
};

}  // namespace korvande::testing
