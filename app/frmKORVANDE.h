#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "core/LineReader.h"
#include "core/Text.h"

// The main window without its pixels: the value of every option control under the control's name, the cells of the
// three code table grids, and the project procedures. A window shows these values and writes every change back; the
// run, the readers and the writers read them directly.
namespace korvande {

// A code table grid: rows of seven cells of text. Row 0 is the header; row r shows row r - 1 of the table.
class Grid {
 public:
    static constexpr int columns = 7;
    enum Column { Liscad, Lki, Type, Description, P, I, B };
    using Row = std::array<Text, columns>;

    explicit Grid(TextView header);

    int RowCount() const noexcept { return static_cast<int>(rows.size()); }
    void SetRowCount(int count) { rows.resize(static_cast<std::size_t>(count)); }
    Row& operator[](int row) { return rows[static_cast<std::size_t>(row)]; }
    const Row& operator[](int row) const { return rows[static_cast<std::size_t>(row)]; }
    void RemoveRow(int row) { rows.erase(rows.begin() + row); }

 private:
    std::vector<Row> rows;
};

// A list of texts of which one is selected (-1: none).
struct ListControl {
    std::vector<Text> items;
    int index = -1;

    TextView SelectedText() const;
};

// There is one form, so its parts stand in the order of the window.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct FormKORVANDE {
    // Files and mode
    Text txtFileSUFNEN;
    Text txtFileIDEX;
    ListControl cboXlateMode;
    bool framStandaloneVisible = true;
    Text lblVersion;
    Text runMark;  // "XLATE RUNNING" while a translation runs

    // Project and owner
    ListControl File1;  // the project files
    bool Timer1Enabled = false;
    Text txtProject;
    Text txtNameLong;
    Text txtNameShort;
    Text txtStreet;
    Text txtNumber;
    Text txtSuffix;
    Text txtZipcode;
    Text txtCity;
    Text txtSource;

    // Listing destination: exactly one is selected
    bool optReportScreen = true;
    bool optReportDisk = false;
    bool optReportPrinter = false;
    bool optReportNone = false;

    // Import
    bool chkImportUnknowns = false;
    bool chkImportSymRotation = false;
    bool chkSelectXY = false;
    Text txtMinX = u"0";
    Text txtMaxX = u"999999";
    Text txtMinY = u"0";
    Text txtMaxY = u"999999";

    // Export
    bool chkExportUnknowns = false;
    bool chkExportPointnoAsField = false;
    bool chkExportPointnoAsText = false;
    Text txtPnoTxtLKI;
    bool chkExport3D = false;
    bool chkExportHeightAsText = false;
    Text txtEleTxtLKI;
    bool chkExportSymRotation = false;
    Text txtAltDatum;
    bool txtAltDatumEnabled = false;
    bool optDateSEE = true;  // the three date options exclude each other
    bool optDateNow = false;
    bool optDateAlt = false;
    ListControl lstSource;  // the G field's source kinds

    // Code tables
    Grid gridPoints{u"Liscad|LKI|Type|Omschrijving|P|I|B"};
    Grid gridLines{u"Liscad|LKI|Type|Omschrijving|P|I|B"};
    Grid gridTexts{u"Liscad|LKI|-|Omschrijving|P|I|B"};

    // Called when values have changed by other hands than the window's.
    std::function<void()> changed;

    // Closes the window, which ends the program.
    std::function<void()> unload;

    // Shows the project dialog with these texts and a name to begin with; what was typed, or nothing after Cancel.
    std::function<std::optional<Text>(TextView caption, TextView explanation, TextView prompt, TextView name)>
        askProjectName;

    // Select one option of a group; the others are cleared.
    void SelectReport(bool FormKORVANDE::*option) noexcept;
    void SetDateOption(bool FormKORVANDE::*option, bool value) noexcept;
};

// The form; it lives as long as the program.
FormKORVANDE& frmKORVANDE();

// The form as it is when the program starts (version label, lists, today as alternative date) with the reset's defaults
// in tables, grids and owner boxes, the owner record never filled before. Callbacks are set behind it.
void InitialiseForm();

// The program's version as it shows it: "8.01.064".
Text VersionText();

// The current project's file name (with ".nst"), and the folder of the project files with its trailing separator.
Text& CurrentProject();
Text& ProjectFolder();

// Whether file names and mode come from the window's controls rather than from a command line.
bool& StartedInteractively();

// Puts the built-in defaults in place: one unknown row in each code table, the sample file names, the options. The
// owner record gets its default only when it was never filled. The grids and owner boxes are not shown anew.
void ResetProject();

// Resets, then reads a control table file into the owner record, the controls, the code tables and the grids. When it
// cannot be opened or read a Retry/Cancel message tells so; after Cancel the reset state stays, in the grids too, and
// the result is false. Malformed lines never stop a load.
bool LoadProjectFile(TextView fileName);

// The form as after loading a control table without any key.
void LoadEmptyProject();

// Takes the grids back into the code tables and writes the control table file anew. False when it could not be written
// and a person cancelled.
bool SaveProjectFile(TextView fileName);

// Saves the current project in the project folder. Without one (its name is empty) the grids and the owner boxes are
// taken back all the same, and nothing is written.
bool SaveCurrentProject();

// The next key and value of a control table, all in capitals. `section` is kept between calls; it becomes "END" at the
// end of the data, with an empty key and value.
void ReadINI(LineReader& file, std::string& section, std::string& key, std::string& value);

// True exactly for "1", "TRUE" and "YES".
void INI_TrueFalse(std::string_view value, bool& result) noexcept;

// The code tables into the grids, after which the form's `changed` is called; and the grids into the code tables, made
// anew with all counts 0.
void LoadGridData();
void SaveGridData();

}  // namespace korvande
