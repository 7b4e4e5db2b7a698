#include <algorithm>
#include <vector>

#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modParser.h"
#include "core/modScreen.h"
#include "project/CodeTables.h"
#include "project/OwnerRecord.h"
#include "project/frmKORVANDE.h"

// Reading a control table: "key = value" lines in sections, taken in capitals. What a line does not say right is left
// as the reset put it.
namespace korvande {

namespace {

// The ways in which a value reaches its place. One that cannot be converted is a run-time error.
using Assign = void (*)(std::string_view value);

template <auto field>
void TakeOwnerField(std::string_view value) {
    (TheOwner().*field).Assign(value);
}

template <auto box>
void TakeText(std::string_view value) {
    frmKORVANDE().*box = FromWindows1252(value);
}

template <auto box>
void TakeCheckBox(std::string_view value) {
    const std::int32_t state = StrictWholeNumber(value);
    if (state != 0 && state != 1) throw RuntimeError(errors::invalidCall);
    frmKORVANDE().*box = state == 1;
}

template <auto option>
void TakeDateOption(std::string_view value) {
    frmKORVANDE().SetDateOption(option, StrictBoolean(value));
}

void TakeStandalone(std::string_view value) {
    INI_TrueFalse(value, StartedInteractively());
    frmKORVANDE().framStandaloneVisible = StartedInteractively();
}

// What the writer calls "Disk" is called "FILE" here, so that a listing to disk comes back as one to the screen.
void TakeReport(std::string_view value) {
    FormKORVANDE& form = frmKORVANDE();
    form.SelectReport(&FormKORVANDE::optReportScreen);
    if (value == "FILE") form.SelectReport(&FormKORVANDE::optReportDisk);
    if (value == "NONE") form.SelectReport(&FormKORVANDE::optReportNone);
    if (value == "PRINTER") form.SelectReport(&FormKORVANDE::optReportPrinter);
}

// An older key: a folder, in which the files get a fixed name.
void TakeFolder(std::string_view value) {
    FormKORVANDE& form = frmKORVANDE();
    form.txtFileSUFNEN = Concat(value, u"Voorbeeld.sfn");
    if (form.txtFileIDEX.empty()) form.txtFileIDEX = form.txtFileSUFNEN;
}

struct Setting {
    std::string_view section;
    std::string_view key;
    Assign assign;
};

constexpr Setting settings[] = {
    {"NEN1878", "STANDALONEALLOWED", TakeStandalone},
    {"NEN1878", "NAMELONG", TakeOwnerField<&OwnerRec::NameLong>},
    {"NEN1878", "NAMESHORT", TakeOwnerField<&OwnerRec::NameShort>},
    {"NEN1878", "STREET", TakeOwnerField<&OwnerRec::Street>},
    {"NEN1878", "NUMBER", TakeOwnerField<&OwnerRec::Number>},
    {"NEN1878", "EXTRA", TakeOwnerField<&OwnerRec::Extra>},
    {"NEN1878", "ZIPCODE", TakeOwnerField<&OwnerRec::ZipCode>},
    {"NEN1878", "TOWN", TakeOwnerField<&OwnerRec::Town>},
    {"NEN1878", "SOURCE", TakeOwnerField<&OwnerRec::Source>},
    {"NEN1878", "SUFNENFILE", TakeText<&FormKORVANDE::txtFileSUFNEN>},
    {"NEN1878", "IDEXFILE", TakeText<&FormKORVANDE::txtFileIDEX>},
    {"NEN1878", "SUF2PATH", TakeFolder},
    {"NEN1878", "NEN1878PATH", TakeFolder},
    {"NEN1878", "REPORTING", TakeReport},
    {"IMPORT", "ACCEPTUNKNOWN", TakeCheckBox<&FormKORVANDE::chkImportUnknowns>},
    {"IMPORT", "OUTPUTLISTING", TakeReport},
    {"IMPORT", "SYMROTATION", TakeCheckBox<&FormKORVANDE::chkImportSymRotation>},
    {"EXPORT", "INCLUDEUNKNOWN", TakeCheckBox<&FormKORVANDE::chkExportUnknowns>},
    {"EXPORT", "INCLUDENR", TakeCheckBox<&FormKORVANDE::chkExportPointnoAsField>},
    {"EXPORT", "INCLUDENRASFIELD", TakeCheckBox<&FormKORVANDE::chkExportPointnoAsField>},
    {"EXPORT", "INCLUDENRASTEXT", TakeCheckBox<&FormKORVANDE::chkExportPointnoAsText>},
    {"EXPORT", "POINTIDLKI", TakeText<&FormKORVANDE::txtPnoTxtLKI>},
    {"EXPORT", "INCLUDEZ", TakeCheckBox<&FormKORVANDE::chkExport3D>},
    {"EXPORT", "INCLUDEZASTEXT", TakeCheckBox<&FormKORVANDE::chkExportHeightAsText>},
    {"EXPORT", "ELEVATIONLKI", TakeText<&FormKORVANDE::txtEleTxtLKI>},
    {"EXPORT", "OUTPUTLISTING", TakeReport},
    {"EXPORT", "SYMROTATION", TakeCheckBox<&FormKORVANDE::chkExportSymRotation>},
    {"EXPORT", "ALTDATE", TakeText<&FormKORVANDE::txtAltDatum>},
    {"EXPORT", "USEDATESEE", TakeDateOption<&FormKORVANDE::optDateSEE>},
    {"EXPORT", "USEDATENOW", TakeDateOption<&FormKORVANDE::optDateNow>},
    {"EXPORT", "USEDATEALT", TakeDateOption<&FormKORVANDE::optDateAlt>},
};

void TakeSetting(std::string_view section, std::string_view key, std::string_view value) {
    const Setting* const setting = std::find_if(std::begin(settings), std::end(settings), [&](const Setting& entry) {
        return entry.section == section && entry.key == key;
    });
    if (setting == std::end(settings)) return;
    try {
        setting->assign(value);
    } catch (const RuntimeError&) {
        // The value stays as it was.
    }
}

// The sections of code rows.
struct TableSection {
    std::string_view name;
    CodeTable& (*table)();
    bool withType;
};
constexpr TableSection tableSections[] = {
    {"POINTS", PointCodes, true}, {"LINES", LineCodes, true}, {"TEXTS", TextCodes, false}};

// The fields of a code row's line, taken one after the other; a missing one leaves its place in the row as it is.
class RowFields {
 public:
    // Splits the line; where P, I and B seem to be missing they are put behind the fields as 0.
    void Split(std::string_view line, const TableSection& section) {
        constexpr std::size_t mostFields = 7;
        const std::size_t complete = section.withType ? 6 : 5;
        ParseFields(line, ',', '#', Blanks::Spaces, fields, mostFields);
        // The name of the type in older control tables.
        if (section.table == PointCodes && fields.size() > 1 && fields[1] == "ROT.PUN") fields[1] = "ROT.PNT";
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

void TakeCodeRow(const TableSection& section, std::string_view key, std::string_view value, RowFields& fields) {
    std::vector<CodeRow>& rows = section.table().rows;
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

void ReadControlTable(LineReader& file) {
    std::string section;
    std::string key;
    std::string value;
    RowFields fields;
    while (true) {
        ReadINI(file, section, key, value);
        if (section == "END") return;
        const TableSection* const table =
            std::find_if(std::begin(tableSections), std::end(tableSections),
                         [&section](const TableSection& entry) { return entry.name == section; });
        if (table != std::end(tableSections)) {
            TakeCodeRow(*table, key, value, fields);
        } else {
            TakeSetting(section, key, value);
        }
    }
}

// A data owner without a source code gets one made from its name.
void FillSource(OwnerRec& owner) {
    owner.Source = Text(owner.Source.Trimmed());
    if (owner.Source.IsBlank()) owner.Source = ToCapitals(owner.NameShort.View());
    if (owner.Source.IsBlank()) owner.Source = ToCapitals(owner.NameLong.View());
}

// The last steps of a load: the form shows what was read.
void ShowProject() {
    constexpr std::size_t extension = 4;  // ".nst"
    const Text& name = CurrentProject();
    FillSource(TheOwner());
    frmKORVANDE().txtProject = name.substr(0, name.size() - std::min(name.size(), extension));
    ShowOwner();
    LoadGridData();
}

// The busy pointer, as long as this object lives.
class BusyPointer {
 public:
    BusyPointer() { TheScreen().ShowBusy(true); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
    ~BusyPointer() { TheScreen().ShowBusy(false); }
};

}  // namespace

bool LoadProjectFile(TextView fileName) {
    const BusyPointer busy;
    const bool isRead = TryWithRetry(fileName, u"openen", [fileName] {
        ResetProject();
        LineReader file(fileName);
        ReadControlTable(file);
    });
    if (!isRead) {
        ResetProject();
        LoadGridData();
        return false;
    }
    ShowProject();
    return true;
}

void LoadEmptyProject() {
    ResetProject();
    ShowProject();
}

void ReadINI(LineReader& file, std::string& section, std::string& key, std::string& value) {
    key.clear();
    value.clear();
    std::string_view raw;
    while (true) {
        ProcessEvents();
        if (!file.Next(raw)) {
            section = "END";
            return;
        }
        const std::string capitals = ToCapitals(raw);
        const std::string_view line = Trim(capitals);
        if (line.starts_with('[')) {
            section = line.size() > 2 ? line.substr(1, line.size() - 2) : std::string_view();
            if (section == "END") return;
            continue;
        }
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        key = Trim(line.substr(0, equals));
        value = Trim(line.substr(equals + 1));
        return;
    }
}

void INI_TrueFalse(std::string_view value, bool& result) noexcept {
    result = value == "1" || value == "TRUE" || value == "YES";
}

}  // namespace korvande
