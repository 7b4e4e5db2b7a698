#include "app/StartUp.h"

#include "app/CommandLine.h"
#include "app/GridEditing.h"
#include "app/Projects.h"
#include "core/modScreen.h"
#include "host/LiscadRegistry.h"
#include "host/modFileHandling.h"
#include "project/frmKORVANDE.h"
#include "run/RunTranslation.h"
#include "run/RunValues.h"
#include "run/UserSettings.h"

namespace korvande {

namespace {

// False when no LISCAD is installed.
bool FindLiscad() {
    std::vector<Text>& versions = LiscadVersions();
    ListLiscadVersions(versions);
    if (versions.front().empty()) {
        ShowMessage(u"Liscad niet gevonden; afbreken", Icon::Critical);
        return false;
    }
    LiscadInstallation& liscad = TheLiscad();
    liscad.version = versions.front();
    liscad.language = GetLiscadLanguage(liscad.version);
    ReadUserSettings();
    liscad.dataPath = GetLiscadDataPath(liscad.version);
    ProjectFolder() = GetLiscadUserPath(liscad.version);
    return true;
}

// One conversion, as the command line asks for it.
void TakeConversion(TextView commandLine) {
    constexpr TextView nen1878 = u"NEN1878";
    constexpr TextView suf2 = u"SUF2";
    RunValues& run = TheRun();
    const CommandLineConversion conversion = SplitCommandLine(commandLine);
    run.XlateDirection = conversion.direction;
    run.SufNenFileName = conversion.sufNenFile;
    run.IdexFileName = conversion.idexFile;
    run.LogFileName = WithLastThreeReplaced(run.SufNenFileName, u"LOG");
    const bool isNen = run.SufNenFileName.ends_with(u"SFN") || run.SufNenFileName.ends_with(u"NEN");
    run.NenMode = run.ExportNen = isNen;
    ListControl& modes = frmKORVANDE().cboXlateMode;
    if (run.XlateDirection == toIdex) {
        modes.items = {Concat(u"Import ", isNen ? nen1878 : suf2)};
    } else {
        modes.items = {Concat(u"Export ", isNen ? nen1878 : suf2), Concat(u"Export ", isNen ? suf2 : nen1878)};
    }
    modes.index = 0;
}

void TakeCommandLine(TextView commandLine) {
    StartedByCommandLine() = !commandLine.empty();
    StartedInteractively() = frmKORVANDE().framStandaloneVisible = commandLine.empty();
    if (commandLine.empty()) {
        TheRun().ExportNen = true;
    } else {
        TakeConversion(commandLine);
    }
}

// Loads the remembered project, or else the first of the list; an empty folder gets an empty project.
void LoadFirstProject() {
    const Text remembered = CurrentProject();
    CurrentProject().clear();
    RefreshProjects();
    const FormKORVANDE& form = frmKORVANDE();
    if (form.File1.items.empty()) {
        SaveProjectFile(Concat(ProjectFolder(), u"Leeg Project.nst"));
        RefreshProjects();
    }
    if (form.File1.items.empty()) return LoadEmptyProject();
    const int place = FindProject(remembered);
    LoadProject(form.File1.items[place < 0 ? 0 : static_cast<std::size_t>(place)]);
}

}  // namespace

LiscadInstallation& TheLiscad() noexcept {
    static LiscadInstallation installation;
    return installation;
}

bool& StartedByCommandLine() noexcept {
    static bool byCommandLine = false;
    return byCommandLine;
}

AfterStartUp StartUp(const StartUpArguments& arguments) {
    InitialiseForm();
    InitialiseEditing();
    if (!FindLiscad()) return AfterStartUp::EndProgram;
    if (arguments.asksRegistration) {
        AnnounceToLiscad();
        return AfterStartUp::EndProgram;
    }
    if (ProjectFolder().empty()) {
        // Without it, the program would take the current folder's files for its projects.
        ShowMessage(Concat(u"De gebruikersmap van Liscad ", TheLiscad().version, u" is niet gevonden; afbreken"),
                    Icon::Critical);
        return AfterStartUp::EndProgram;
    }
    TakeCommandLine(Trim(arguments.commandLine));
    MigrateProjectFiles(ProjectFolder());
    LoadFirstProject();
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

bool QueryClose() {
    if (CloseAfterLoad()) return false;
    if (!IsTranslating()) {
        if (!frmKORVANDE().runMark.empty()) ShowMessage(u"Vertaling afgebroken.");
        return true;
    }
    if (!IsEndOfRunAsked()) {
        AskEndOfRun();
        ShowMessage(u"Vertaling afgebroken.");
    }
    return false;
}

void UnloadForm() {
    EndEdits();
    SaveCurrentProject();
    SaveUserSettings();
}

}  // namespace korvande
