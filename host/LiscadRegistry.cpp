#include "host/LiscadRegistry.h"

#include <algorithm>
#include <array>

#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "host/ProgramPlace.h"
#include "host/modFileHandling.h"
#include "host/modRegistry.h"

namespace korvande {

namespace {

constexpr TextView liscadKey = u"SOFTWARE\\LISTECH\\LISCAD";
constexpr std::int16_t importKind = 1;
constexpr std::int16_t exportKind = 2;

struct MenuItem {
    TextView label;
    TextView pattern;
};
constexpr std::array<MenuItem, 3> menuItems = {
    {{u"SUF2", u"*.sf2"}, {u"NEN1878-SFN", u"*.sfn"}, {u"NEN1878-NEN", u"*.nen"}}};

Text VersionKey(TextView version) { return Concat(liscadKey, u"\\", version); }
Text SeeKey(TextView version) { return Concat(VersionKey(version), u"\\SEE"); }

// A key that was opened or created, closed with this object.
class HeldKey {
 public:
    HeldKey() = default;
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;
    ~HeldKey() {
        if (isOpen) RegCloseKeyHandle(key);
    }

    bool Open(RegKey parent, TextView name) { return isOpen = RegOpenSubKey(parent, name, key); }
    bool Create(RegKey parent, TextView name) { return isOpen = RegCreateSubKey(parent, name, key); }
    RegKey Key() const noexcept { return key; }

 private:
    RegKey key = 0;
    bool isOpen = false;
};

// The number that a version's name begins with; 0 for none, and for one that is no version at all.
double VersionNumber(TextView version) {
    try {
        return LeadingNumber(ToWindows1252(version));
    } catch (const RuntimeError&) {
        return 0;
    }
}

Text Folder(TextView version, TextView valueName) {
    Text folder;
    if (!ReadRegistryValue(hives::currentUser, SeeKey(version), valueName, folder)) return {};
    if (!folder.ends_with(u'\\')) folder.push_back(u'\\');
    return folder;
}

// The two lists of versions of one menu.
struct Results {
    Text succeeded;
    Text failed;

    void Add(bool success, TextView version) { (success ? succeeded : failed) += Concat(version, u", "); }
    void CloseEmptyLists() {
        for (Text* const list : {&succeeded, &failed}) {
            if (list->empty()) *list = u"geen, ";
        }
    }
};

}  // namespace

void ListLiscadVersions(std::vector<Text>& versions) {
    versions.assign(1, Text());
    HeldKey liscad;
    if (!liscad.Open(hives::currentUser, liscadKey)) return;
    Text name;
    for (std::uint32_t i = 0; RegEnumSubKey(liscad.Key(), i, name) == regcodes::success; ++i) {
        versions.push_back(name);
    }
    // In this order a "RELEASE" behind all higher numbers wins, and a number behind it wins from it.
    for (std::size_t i = 1; i < versions.size(); ++i) {
        if (VersionNumber(versions[0]) < VersionNumber(versions[i])) versions[0] = versions[i];
        if (ToCapitals(versions[i]) == u"RELEASE") versions[0] = versions[i];
    }
}

Text GetLiscadDataPath(TextView version) { return Folder(version, u"DataPath"); }
Text GetLiscadUserPath(TextView version) { return Folder(version, u"UserPath"); }

bool SetLiscadUserPath(TextView folder) {
    const Text name = SeeKey(u"RELEASE");
    HeldKey see;
    return see.Create(hives::currentUser, name) && WriteRegistryValue(hives::currentUser, name, u"UserPath", folder);
}

Text GetLiscadLanguage(TextView version) {
    constexpr std::array<TextView, 4> known = {u"nl", u"NL", u"uk", u"UK"};
    Text language;
    ReadRegistryValue(hives::currentUser, VersionKey(version), u"Language", language);
    return std::find(known.begin(), known.end(), language) == known.end() ? Text(u"us") : language;
}

bool EnsureDataConversionsKeys(TextView version) {
    HeldKey see;
    HeldKey conversions;
    HeldKey importMenu;
    HeldKey exportMenu;
    return see.Open(hives::currentUser, SeeKey(version)) && conversions.Create(see.Key(), u"Data Conversions") &&
           importMenu.Create(conversions.Key(), u"Import") && exportMenu.Create(conversions.Key(), u"Export");
}

bool RegisterMenuItem(TextView version, std::int16_t kind, TextView label, TextView pattern) {
    const ProgramPlace program = RunningProgram();
    if (program.name.empty() || !EnsureDataConversionsKeys(version)) return false;
    const Text menu = Concat(SeeKey(version), u"\\Data Conversions\\", kind == importKind ? u"Import" : u"Export");
    const Text patternInCapitals = ToCapitals(pattern);
    Text valueName;
    Text entry;
    for (int n = 0;; ++n) {
        valueName = Concat(u"MenuItem", n);
        if (!ReadRegistryValue(hives::currentUser, menu, valueName, entry)) break;
        if (ToCapitals(entry).find(patternInCapitals) != Text::npos) break;
    }
    entry = Concat(u"2|", label, u"|", pattern, u"|", program.folder, u"\\", program.name, u".exe");
    return WriteRegistryValue(hives::currentUser, menu, valueName, entry);
}

Text RegisterWithLiscad(std::int16_t selector, TextView label, TextView pattern, std::vector<Text>& versions) {
    if (versions.size() < 2) ListLiscadVersions(versions);
    const bool both = selector == 0 || selector == 3;
    Results imports;
    Results exports;
    for (std::size_t i = 1; i < versions.size(); ++i) {
        const Text& version = versions[i];
        if (both || selector == 1) imports.Add(RegisterMenuItem(version, importKind, label, pattern), version);
        if (both || selector == 2) exports.Add(RegisterMenuItem(version, exportKind, label, pattern), version);
    }
    imports.CloseEmptyLists();
    exports.CloseEmptyLists();
    return Concat(u"%1 ", imports.succeeded, u"%2 ", imports.failed, u"%3 ", exports.succeeded, u"%4 ", exports.failed,
                  u"%5");
}

void AnnounceToLiscad(Screen& screen, std::vector<Text>& versions) {
    constexpr std::int16_t importAndExport = 3;
    Text report;
    for (const MenuItem& item : menuItems) {
        report = RegisterWithLiscad(importAndExport, item.label, item.pattern, versions);
    }
    report = report.substr(0, report.find(u", %3"));
    report = ReplaceAll(report, u"%1", u"Aanmelding bij Liscad:\nGeslaagd voor versies:");
    report = ReplaceAll(report, u", %2", u"\nMislukt voor versies:");
    ShowMessage(screen, report, Icon::Information, u"SUF2/NEN1878 Vertaler");
}

}  // namespace korvande
