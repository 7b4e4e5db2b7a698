#include "project/ControlTableReader.h"

#include <algorithm>
#include <span>
#include <vector>

#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modParser.h"
#include "core/modScreen.h"
#include "project/OwnerBoxes.h"
#include "project/Project.h"

// Reading a control table: "key = value" lines in sections, taken in capitals. What a line does not say right is left
// as the reset put it.
namespace korvande {

namespace {

bool IsInCapitals(std::string_view capitals, std::string_view text) noexcept {
    return std::equal(capitals.begin(), capitals.end(), text.begin(), text.end(),
                      [](char a, char b) { return a == ToCapital(b); });
}

void TakeCheckBox(bool& box, std::string_view value) {
    const std::int32_t state = StrictWholeNumber(value);
    if (state != 0 && state != 1) throw RuntimeError(errors::invalidCall);
    box = state == 1;
}

// What the writer calls "Disk" is called "FILE" here, so that a listing to disk comes back as one to the screen.
void TakeReport(Options& options, std::string_view value) {
    SelectReport(options, &Options::optReportScreen);
    if (value == "FILE") SelectReport(options, &Options::optReportDisk);
    if (value == "NONE") SelectReport(options, &Options::optReportNone);
    if (value == "PRINTER") SelectReport(options, &Options::optReportPrinter);
}

// A value that cannot be converted is a run-time error.
void TakeOption(Project& project, const Option& option, std::string_view value) {
    Options& options = project.options;
    switch (option.kind) {
        case OptionKind::PlainText:
        case OptionKind::DateText:
            options.*std::get<Text Options::*>(option.member) = FromWindows1252(value);
            break;
        case OptionKind::Owner:
            TakeOwnerField(project.owner, std::get<Text Options::*>(option.member), value);
            break;
        case OptionKind::Report:
            TakeReport(options, value);
            break;
        case OptionKind::CheckBox:
        case OptionKind::SetCheckBox:
            TakeCheckBox(options.*std::get<bool Options::*>(option.member), value);
            break;
        case OptionKind::DateOption:
            SetDateOption(options, std::get<bool Options::*>(option.member), StrictBoolean(value));
            break;
        case OptionKind::PerUser:
            break;
    }
}

// A folder, in which the files get a fixed name.
void TakeFolder(Options& options, std::string_view value) {
    options.txtFileSUFNEN = Concat(value, u"Voorbeeld.sfn");
    if (options.txtFileIDEX.empty()) options.txtFileIDEX = options.txtFileSUFNEN;
}

// Keys that are read and never written.
struct ReadOnlyKey {
    std::string_view section;
    std::string_view key;
    void (*take)(Options& options, std::string_view value);
};
constexpr ReadOnlyKey readOnlyKeys[] = {
    {"NEN1878", "STANDALONEALLOWED",
     [](Options& options, std::string_view value) { INI_TrueFalse(value, options.StartedInteractively); }},
    {"NEN1878", "SUF2PATH", TakeFolder},
    {"NEN1878", "NEN1878PATH", TakeFolder},
    {"IMPORT", "OUTPUTLISTING", TakeReport},
    {"EXPORT", "OUTPUTLISTING", TakeReport},
    {"EXPORT", "INCLUDENR",
     [](Options& options, std::string_view value) { TakeCheckBox(options.chkExportPointnoAsField, value); }},
};

void TakeSetting(Project& project, std::string_view section, std::string_view key, std::string_view value) {
    try {
        for (const Option& option : AllOptions()) {
            if (IsInCapitals(section, option.section) && IsInCapitals(key, option.key)) {
                return TakeOption(project, option, value);
            }
        }
        for (const ReadOnlyKey& entry : readOnlyKeys) {
            if (entry.section == section && entry.key == key) return entry.take(project.options, value);
        }
    } catch (const RuntimeError&) {
        // The value stays as it was.
    }
}

// The sections of code rows.
struct TableSection {
    std::string_view name;
    CodeTable CodeTables::*table;
    bool withType;
};
constexpr TableSection tableSections[] = {
    {"POINTS", &CodeTables::points, true}, {"LINES", &CodeTables::lines, true}, {"TEXTS", &CodeTables::texts, false}};

// The fields of a code row's line, taken one after the other; a missing one leaves its place in the row as it is.
class RowFields {
 public:
    // Splits the line; where P, I and B seem to be missing they are put behind the fields as 0.
    void Split(std::string_view line, const TableSection& section) {
        constexpr std::size_t mostFields = 7;
        const std::size_t complete = section.withType ? 6 : 5;
        ParseFields(line, ',', '#', Blanks::Spaces, fields, mostFields);
        // The name of the type in older control tables.
        if (section.table == &CodeTables::points && fields.size() > 1 && fields[1] == "ROT.PUN") fields[1] = "ROT.PNT";
        if (fields.size() < complete) fields.insert(fields.end(), 3, "0");
        next = 0;
    }

    template <std::size_t N>
    void Take(FixedText<N>& text) {
        if (next < fields.size()) text.Assign(fields[next++]);
    }
    void Take(std::int16_t& number) {
        if (next < fields.size()) number = SmallNumberOrZero(fields[next++]);
    }

 private:
    std::vector<std::string_view> fields;
    std::size_t next = 0;
};

void TakeCodeRow(CodeTables& codes, const TableSection& section, std::string_view key, std::string_view value,
                 RowFields& fields) {
    std::vector<CodeRow>& rows = (codes.*section.table).rows;
    fields.Split(value, section);
    CodeRow* row = &rows.front();
    if (key == "UNKNOWN") {
        fields.Take(row->LiscadCode);
    } else {
        row = &rows.emplace_back();
        row->LiscadCode.Assign(key);
        row->Type = TextView();
    }
    fields.Take(row->LkiCode);
    if (section.withType) fields.Take(row->Type);
    fields.Take(row->Description);
    fields.Take(row->P);
    fields.Take(row->I);
    fields.Take(row->B);
}

const TableSection* FindTableSection(std::string_view name) {
    const TableSection* const found = std::find_if(std::begin(tableSections), std::end(tableSections),
                                                   [name](const TableSection& entry) { return entry.name == name; });
    return found == std::end(tableSections) ? nullptr : found;
}

bool IsKnownSection(std::string_view name) {
    const std::span<const Option> options = AllOptions();
    return name == "END" || FindTableSection(name) != nullptr ||
           std::any_of(options.begin(), options.end(),
                       [name](const Option& option) { return !name.empty() && IsInCapitals(name, option.section); });
}

// As ReadINI; what the lines passed tell of the whole file goes into the signs.
void ReadEntry(Screen& screen, LineReader& file, std::string& section, std::string& key, std::string& value,
               ControlTableSigns& signs) {
    key.clear();
    value.clear();
    std::string_view raw;
    while (true) {
        ProcessEvents(screen);
        if (!file.Next(raw)) {
            section = "END";
            return;
        }
        const std::string capitals = ToCapitals(raw);
        const std::string_view line = Trim(capitals);
        if (line.starts_with('[')) {
            section = line.size() > 2 ? line.substr(1, line.size() - 2) : std::string_view();
            signs.hasKnownSection = signs.hasKnownSection || IsKnownSection(section);
            signs.hasEnd = section == "END";
            if (signs.hasEnd) return;
            continue;
        }
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        key = Trim(line.substr(0, equals));
        value = Trim(line.substr(equals + 1));
        return;
    }
}

}  // namespace

ControlTableSigns ReadControlTable(Screen& screen, LineReader& file, Project& project) {
    ControlTableSigns signs;
    std::string section;
    std::string key;
    std::string value;
    RowFields fields;
    while (true) {
        ReadEntry(screen, file, section, key, value, signs);
        if (section == "END") return signs;
        if (const TableSection* const table = FindTableSection(section); table != nullptr) {
            TakeCodeRow(project.codes, *table, key, value, fields);
        } else {
            TakeSetting(project, section, key, value);
        }
    }
}

void ReadINI(Screen& screen, LineReader& file, std::string& section, std::string& key, std::string& value) {
    ControlTableSigns signs;
    ReadEntry(screen, file, section, key, value, signs);
}

void INI_TrueFalse(std::string_view value, bool& result) noexcept {
    result = value == "1" || value == "TRUE" || value == "YES";
}

}  // namespace korvande
