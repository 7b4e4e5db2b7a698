#pragma once

#include "tests/project/ProjectTest.h"

namespace korvande::testing {

// Loads control tables made of a few lines.
class ControlTable : public ProjectTest {
 protected:
    // Loads a control table of these bytes, or of these Windows-1252 lines.
    void LoadBytes(std::string_view bytes) { LoadProjectBytes(screen, project, bytes); }
    void Load(std::string_view linesWithLf) { LoadBytes(WithCrLf(linesWithLf)); }

    // What a control table changes in the state that one without any key leaves.
    std::string Changes(std::string_view lines) {
        BeginAnew();
        Load("[End]\n");
        const std::vector<std::string> before = State();
        BeginAnew();
        Load(lines);
        return Differences(before, State());
    }

    // The rows that lines in a section add to its table, or the unknown row that they leave.
    std::string Rows(char table, const std::string& rowLines) {
        const std::string text = LoadRows(table, rowLines);
        return text.substr(text.find('\n') + 1);
    }
    std::string UnknownRow(char table, const std::string& rowLines) {
        const std::string text = LoadRows(table, rowLines);
        return text.substr(0, text.find('\n'));
    }

    std::string StateText() const {
        std::string text;
        for (const std::string& line : State()) text += line + "\n";
        return text;
    }

 private:
    std::string LoadRows(char table, const std::string& rowLines) {
        const char* const section = table == 'P' ? "[Points]\n" : table == 'L' ? "[Lines]\n" : "[Texts]\n";
        Load(section + rowLines);
        return TableText(table == 'P' ? pointTable : table == 'L' ? lineTable : textTable);
    }
};

}  // namespace korvande::testing
