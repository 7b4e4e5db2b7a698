#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/EditedGrid.h"
#include "app/ProjectSaving.h"
#include "app/UnknownCodes.h"
#include "core/Text.h"
#include "project/Grid.h"
#include "project/Project.h"
#include "translation/Mode.h"

// The main window without its pixels: the value of every control under the control's name, the cells of the three code
// table grids, and what the program knows between two clicks. A window shows these values and writes every change back;
// the front end owns the one form and hands it to every procedure of this room.
namespace korvande {

class Screen;

// A list of texts of which one is selected (-1: none).
struct ListControl {
    std::vector<Text> items;
    int index = -1;

    TextView SelectedText() const;
};

// LISCAD's installation as start-up found it.
struct LiscadInstallation {
    Text version;
    Text language;
    Text dataPath;
};

// What a start of the translation translates: as a command line fixed it, or as the controls said at the last start.
struct Conversion {
    Direction direction = Direction::None;
    Text IdexFileName;
    Text SufNenFileName;
    Text LogFileName;
};

// What became of a translation that came to its end.
struct RunReport {
    int number = 0;  // of the runs of this window, from 1
    bool wentWell = true;
    bool wroteOutput = false;
    Text outcome;  // in a line; empty: nothing was translated yet
    Text input;
    Mode mode;
    Text output;
    Text logBook;
    Text sentence;              // what a person is told of it
    std::vector<Text> lists;    // what did not come across as it was read, and what the settings left out
    std::vector<Text> account;  // of the objects
    UnknownCodes unknownCodes;
};

// What the form is busy with, and what is to happen when that is done.
struct Activity {
    bool isRunning = false;    // a translation, several of them, or a check
    bool isChecking = false;   // the last run is or was a check
    bool endIsAsked = false;   // of the run, and of the window after it
    bool stopIsAsked = false;  // of the run
    bool isLoading = false;    // a project
    bool closesAfterLoad = false;
};

// As it is when the program starts: its lists, the reset's defaults in tables, grids and owner boxes, no callbacks. It
// stays where it was made, for a window holds on to its parts.
struct FormKORVANDE {
    explicit FormKORVANDE(Screen& itsScreen);
    FormKORVANDE(const FormKORVANDE&) = delete;
    FormKORVANDE& operator=(const FormKORVANDE&) = delete;
    ~FormKORVANDE() = default;

    Screen& screen;

    // The project on the screen: options under their control names, the owner record, and the code tables, which the
    // grids go into whenever the project is saved.
    Project project;

    // The current project's file name (with ".nst"; empty: there is none), and the folder of the project files with its
    // trailing separator.
    Text CurrentProject;
    Text ProjectFolder;
    ProjectFile projectFile;

    // Project files
    ListControl File1;
    bool Timer1Enabled = false;
    Text txtProject;

    // Files and mode. No control table changes the conversion that a command line fixed.
    ListControl cboXlateMode;
    bool StartedByCommandLine = false;
    Conversion conversion;
    std::set<std::string> outputs;  // that may be replaced without a question, by FileIdentity; see MayReplace
    Text chosenInput;               // when the output's name was last derived
    Text lblVersion;
    Text runMark;  // "XLATE RUNNING" while a translation runs
    Activity activity;
    RunReport lastRun;

    // Code tables and their editing: txtEditPointCell and cboEditPointCell, txtEditLineCell and cboEditLineCell,
    // txtEditTextCell
    Grid gridPoints{gridHeader};
    Grid gridLines{gridHeader};
    Grid gridTexts{textGridHeader};
    EditedGrid editedPoints{gridPoints, {u"Punt", u"Rot.Pnt", u"Symbool", u"Grondslag", u"Dummy"}};
    EditedGrid editedLines{gridLines, {u"Lijn", u"Grens", u"Grondslag", u"Dummy"}};
    EditedGrid editedTexts{gridTexts};

    LiscadInstallation liscad;

    // Called when values have changed by other hands than the window's.
    std::function<void()> changed;

    // Closes the window, which ends the program.
    std::function<void()> unload;

    // Shows the project dialog with these texts and a name to begin with; what was typed, or nothing after Cancel.
    std::function<std::optional<Text>(TextView caption, TextView explanation, TextView prompt, TextView name)>
        askProjectName;

    // Shows a dialog with this title in which a folder is chosen or made; nothing after Cancel. Set before start-up.
    std::function<std::optional<Text>(TextView title)> askFolder;
};

// Whether a file may be written: nothing is there yet, or a person agrees that it is replaced.
bool MayReplace(const FormKORVANDE& form, TextView name);

// Calls the form's `changed` or `unload`, if there is one.
void TellChanged(const FormKORVANDE& form);
void Unload(const FormKORVANDE& form);

// Resets, then reads a control table file into the project, the grids and the owner boxes. When it cannot be opened or
// read a Retry/Cancel message tells so; after Cancel, or when it is no control table, the reset state stays, in the
// grids too, and the result is false. Malformed lines never stop a load.
bool LoadProjectFile(FormKORVANDE& form, TextView fileName);

// The form as after loading a control table without any key.
void LoadEmptyProject(FormKORVANDE& form);

// Takes the grids and the owner boxes into the project and writes the control table file anew. False when it could not
// be written and a person cancelled.
bool SaveProjectFile(FormKORVANDE& form, TextView fileName);

// The code tables into the grids, after which the form's `changed` is called; and the grids into the code tables, made
// anew with all counts 0.
void LoadGridData(FormKORVANDE& form);
void SaveGridData(FormKORVANDE& form);

}  // namespace korvande
