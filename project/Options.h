#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "core/CharacterSet.h"
#include "core/Text.h"

// The settings of a project, under the names of the window's controls that show them.
namespace korvande {

// The values to begin with are those of the table of options, and today as the alternative date.
struct Options {
    Options();

    // Files
    Text txtFileSUFNEN;
    Text txtFileIDEX;

    // The data owner as typed; the owner record holds it in its fixed widths.
    Text txtNameLong;
    Text txtNameShort;
    Text txtStreet;
    Text txtNumber;
    Text txtSuffix;
    Text txtZipcode;
    Text txtCity;
    Text txtSource;

    // Listing destination: exactly one is selected
    bool optReportScreen = false;
    bool optReportDisk = false;
    bool optReportPrinter = false;
    bool optReportNone = false;

    // A log book on the screen is shown in a window of the program's own, the first choice of the list
    // cboLogBookViewer, or else by the viewer for text files; kept per user.
    bool logBookInWindow = false;

    // Import
    bool chkImportUnknowns = false;
    bool chkImportSymRotation = false;

    // The rectangle that limits an import, metres; kept per user and not in the control table.
    bool chkSelectXY = false;
    Text txtMinX;
    Text txtMaxX;
    Text txtMinY;
    Text txtMaxY;

    // How exchange files are read; kept per user as well.
    Text cboCharacterSet;           // what their bytes stand for; see characterSetNames
    bool chkWithoutZeroes = false;  // points without coordinates are left out

    // Export
    bool chkExportUnknowns = false;
    bool chkExportPointnoAsField = false;
    bool chkExportPointnoAsText = false;
    Text txtPnoTxtLKI;
    bool chkExport3D = false;
    bool chkExportHeightAsText = false;
    Text txtEleTxtLKI;
    bool chkExportSymRotation = false;
    bool chkThreePointArcs = false;  // arcs and circles as arcs of three points
    Text txtAltDatum;                // may be edited when optDateAlt is selected
    bool optDateAlt = false;         // the three date options exclude each other
    bool optDateSEE = false;
    bool optDateNow = false;
    std::int32_t lstSource = 0;  // the G field's source kind, from 0; see sourceKinds

    // Whether file names and mode come from the window's controls rather than from a command line.
    bool StartedInteractively = true;
};

// The source kinds of the G field, in the order of the list lstSource.
inline constexpr std::array<TextView, 6> sourceKinds = {u"Onbekend",  u"Terrestr.", u"Fotogramm.",
                                                        u"Digitizer", u"Scanner",   u"Kaartverbet."};

// The character sets of exchange files, in the order of CharacterSet, as a person chooses them.
inline constexpr std::array<TextView, 3> characterSetNames = {u"Automatisch", u"Windows-1252", u"CP850 (DOS)"};

// The chosen one; Automatic when the name is none of these.
CharacterSet CharacterSetOf(const Options& options) noexcept;

// How an option's value stands in a control table.
enum class OptionKind {
    PlainText,
    Owner,        // a text that the reader puts into the owner record
    Report,       // one of the four listing destinations; its member is the one selected to begin with
    CheckBox,     // 0 or 1
    SetCheckBox,  // 1; it has no line when it is not set
    DateText,     // a text with no blank before it
    DateOption,   // True or False
    PerUser       // not in the control table but with the user's own settings
};

using OptionMember = std::variant<Text Options::*, bool Options::*>;

// The fields stand in the order in which a row reads. NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct Option {
    std::string_view section;  // of the control table, as it is written; empty: none
    std::string_view key;      // as it is written
    OptionKind kind;
    OptionMember member;
    TextView initial;  // the value to begin with: the text, or "1" for an option that is set
    bool isReset;      // a reset puts it back to that value
    TextView label;    // what it is called where a control table is shown; empty: not shown by itself
};

// All options that are kept anywhere, those of the control table in the order in which it is written.
std::span<const Option> AllOptions() noexcept;

// Puts those back that a reset puts back.
void ResetOptions(Options& options);

// Select one option of a group; the others are cleared.
void SelectReport(Options& options, bool Options::*option) noexcept;
void SetDateOption(Options& options, bool Options::*option, bool value) noexcept;

}  // namespace korvande
