#include "app/StartUp.h"

#include <optional>

#include <filesystem>

#include "app/CommandLine.h"
#include "app/GivenFile.h"
#include "app/GridEditing.h"
#include "app/ProjectSaving.h"
#include "app/Projects.h"
#include "app/RunActivity.h"
#include "app/UserSettings.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/Folders.h"
#include "host/LiscadRegistry.h"
#include "host/LiscadSystem.h"
#include "host/modFileHandling.h"
#include "translation/Mode.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// LISCAD's folders end in "\\"; a person sees the system's own.
Text WithOwnSeparator(Text folder) {
    constexpr auto own = static_cast<char16_t>(std::filesystem::path::preferred_separator);
    if (!folder.starts_with(own) || !folder.ends_with(u'\\')) return folder;
    folder.pop_back();
    if (!folder.ends_with(own)) folder.push_back(own);
    return folder;
}

// Offers to choose a folder for the projects where there is no LISCAD that could tell it; false when none was chosen.
bool ChooseProjectFolder(const FormKORVANDE& form) {
    if (LiscadRunsHere() || !form.askFolder) return false;
    const MessageBox question = {
        u"KORVANDE werkt hier ook zonder LISCAD: het heeft alleen een map voor de projecten nodig.\n\nNu een map "
        u"kiezen?",
        {},
        Icon::Question,
        Buttons::YesNo};
    if (form.screen.ShowMessage(question) != Answer::Yes) return false;
    const std::optional<Text> folder = form.askFolder(u"Map voor de projecten");
    if (!folder) return false;
    if (SetLiscadUserPath(*folder)) return true;
    ShowMessage(form.screen, u"De map kan niet worden bewaard; afbreken", Icon::Critical);
    return false;
}

// False when no LISCAD is installed; the versions that are go into the list.
bool FindLiscad(FormKORVANDE& form, bool asksRegistration, std::vector<Text>& versions) {
    ListLiscadVersions(versions);
    if (versions.front().empty()) {
        ShowMessage(form.screen, u"Liscad niet gevonden; afbreken", Icon::Critical);
        if (asksRegistration || !ChooseProjectFolder(form)) return false;
        ListLiscadVersions(versions);
    }
    LiscadInstallation& liscad = form.liscad;
    liscad.version = versions.front();
    liscad.language = GetLiscadLanguage(liscad.version);
    ReadUserSettings(form);
    liscad.dataPath = GetLiscadDataPath(liscad.version);
    form.ProjectFolder = WithOwnSeparator(GetLiscadUserPath(liscad.version));
    return true;
}

// Any other digit is none.
Direction DirectionOf(std::int16_t digit) {
    for (const Direction direction : {Direction::ToIdex, Direction::FromIdex}) {
        if (digit == static_cast<std::int16_t>(direction)) return direction;
    }
    return Direction::None;
}

Text LabelOf(Direction direction, Variant variant) { return Text(NamesOf({direction, variant}).commandLineText); }

// One conversion, as the command line asks for it. An export can be redirected to the other format.
void TakeConversion(FormKORVANDE& form, TextView commandLine) {
    const CommandLineConversion asked = SplitCommandLine(commandLine);
    Conversion& conversion = form.conversion;
    conversion.direction = DirectionOf(asked.direction);
    conversion.SufNenFileName = asked.sufNenFile;
    conversion.IdexFileName = asked.idexFile;
    conversion.LogFileName = WithLastThreeReplaced(asked.sufNenFile, u"LOG");
    const bool isNen = asked.sufNenFile.ends_with(u"SFN") || asked.sufNenFile.ends_with(u"NEN");
    const Variant variant = isNen ? Variant::Nen1878 : Variant::Suf2;
    const Variant other = isNen ? Variant::Suf2 : Variant::Nen1878;
    ListControl& list = form.cboXlateMode;
    if (conversion.direction == Direction::ToIdex) {
        list.items = {LabelOf(Direction::ToIdex, variant)};
    } else {
        list.items = {LabelOf(Direction::FromIdex, variant), LabelOf(Direction::FromIdex, other)};
    }
    list.index = 0;
}

void TakeCommandLine(FormKORVANDE& form, TextView commandLine) {
    form.StartedByCommandLine = !commandLine.empty();
    form.project.options.StartedInteractively = commandLine.empty();
    if (!commandLine.empty()) TakeConversion(form, commandLine);
}

// Lists the projects. When there seem to be none, it is made sure that the folder can be read; false when it cannot.
bool ListProjects(FormKORVANDE& form) {
    RefreshProjects(form);
    const Text& folder = form.ProjectFolder;
    if (!form.File1.items.empty() || FolderIsMissing(folder)) return true;
    if (!TryWithRetry(form.screen, folder, u"openen", [&folder] { ContentsOf(folder); })) return false;
    RefreshProjects(form);
    return true;
}

// Loads the remembered project, or else the first of the list; an empty folder gets an empty project.
void LoadFirstProject(FormKORVANDE& form) {
    const Text remembered = form.CurrentProject;
    form.CurrentProject.clear();
    if (ListProjects(form) && form.File1.items.empty()) {
        SaveProjectFile(form, Concat(form.ProjectFolder, u"Leeg Project.nst"));
        RefreshProjects(form);
    }
    if (form.File1.items.empty()) return LoadEmptyProject(form);
    const int place = FindProject(form, remembered);
    LoadProject(form, form.File1.items[place < 0 ? 0 : static_cast<std::size_t>(place)]);
}

}  // namespace

AfterStartUp StartUp(FormKORVANDE& form, const StartUpArguments& arguments) {
    std::vector<Text> versions;
    if (!FindLiscad(form, arguments.asksRegistration, versions)) return AfterStartUp::EndProgram;
    if (arguments.asksRegistration) {
        AnnounceToLiscad(form.screen, versions);
        return AfterStartUp::EndProgram;
    }
    if (form.ProjectFolder.empty()) {
        // Without it, the program would take the current folder's files for its projects.
        ShowMessage(form.screen,
                    Concat(u"De gebruikersmap van Liscad ", form.liscad.version, u" is niet gevonden; afbreken"),
                    Icon::Critical);
        return AfterStartUp::EndProgram;
    }
    const Text givenFile = GivenFile(arguments.commandLine);
    TakeCommandLine(form, givenFile.empty() ? Trim(arguments.commandLine) : TextView());
    MigrateProjectFiles(form.ProjectFolder);
    LoadFirstProject(form);
    if (!givenFile.empty()) {
        form.project.options.StartedInteractively = true;
        TakeGivenFile(form, givenFile);
    }
    return AfterStartUp::OpenWindow;
}

void MigrateProjectFiles(TextView folder) {
    for (const Text& name : ListFiles(folder, u"*.ini")) {
        const Text capitals = ToCapitals(name);
        if (capitals == u"SECURITY.INI" || capitals == u"DESKTOP.INI") continue;
        const Text newName = Concat(name.substr(0, name.find(u'.')), u".nst");
        RenameFileAt(Concat(folder, name), Concat(folder, newName), Replace::No);
    }
}

bool QueryClose(FormKORVANDE& form) {
    if (CloseAfterLoad(form)) return false;
    if (!IsRunning(form)) {
        if (!form.runMark.empty()) ShowMessage(form.screen, u"Vertaling afgebroken.");
        return true;
    }
    if (!IsEndOfRunAsked(form)) {
        AskEndOfRun(form);
        ShowMessage(form.screen, form.activity.isChecking ? u"Controle afgebroken." : u"Vertaling afgebroken.");
    }
    return false;
}

bool UnloadForm(FormKORVANDE& form, MayStay mayStay) {
    EndEdits(form);
    if (mayStay == MayStay::No) {
        SaveWithoutQuestion(form);
    } else if (!SaveCurrentProject(form)) {
        return false;
    }
    SaveUserSettings(form);
    return true;
}

}  // namespace korvande
