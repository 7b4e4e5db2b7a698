#include "app/Projects.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "app/GridEditing.h"
#include "app/StartUp.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "project/frmKORVANDE.h"
#include "run/RunTranslation.h"

namespace korvande {

const ProjectDialogTexts newProjectTexts = {u"Nieuw Project Aanmaken",
                                            u"Er wordt een nieuw project aangemaakt met deze naam.",
                                            u"De naam voor het nieuwe project:"};
const ProjectDialogTexts copyProjectTexts = {u"Project Dupliceren",
                                             u"Het actuele project wordt gedupliceerd naar de nieuwe naam.",
                                             u"De naam voor het nieuwe project:"};
const ProjectDialogTexts deleteProjectTexts = {u"Project Wissen", u"Het project zal permanent worden verwijderd.",
                                               u"Dit project wordt gewist:"};

namespace {

void SetTimer(bool isEnabled) {
    FormKORVANDE& form = frmKORVANDE();
    form.Timer1Enabled = isEnabled;
    if (form.changed) form.changed();
}

Text PathOf(TextView project) { return Concat(ProjectFolder(), project); }

// The dialog; the file name that it leads to, or nothing after Cancel.
std::optional<Text> AskName(const ProjectDialogTexts& texts, TextView name) {
    const auto& ask = frmKORVANDE().askProjectName;
    if (!ask) return {};
    const std::optional<Text> typed = ask(texts.caption, texts.explanation, texts.prompt, name);
    return typed ? std::optional(ProjectFileName(*typed)) : std::nullopt;
}

bool loading = false;
bool closesAfterLoad = false;

class Loading {
 public:
    Loading() { loading = true; }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;
    ~Loading() { loading = false; }
};

bool LoadIntoForm(const Text& name) {
    const Loading isLoading;
    CurrentProject() = name;
    if (LoadProjectFile(PathOf(name))) return true;
    CurrentProject().clear();
    frmKORVANDE().txtProject.clear();
    return false;
}

}  // namespace

StoppedTimer::StoppedTimer() { SetTimer(false); }

StoppedTimer::~StoppedTimer() { SetTimer(true); }

Text ProjectFileName(TextView typed) {
    constexpr TextView extension = u".NST";
    Text name(Trim(ToCapitals(typed)));
    if (!name.ends_with(extension)) AppendTo(name, extension);
    return name;
}

int FindProject(TextView name) {
    const std::vector<Text>& names = frmKORVANDE().File1.items;
    auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        const Text capitals = ToCapitals(name);
        found = std::find_if(names.begin(), names.end(),
                             [&capitals](const Text& entry) { return ToCapitals(entry) == capitals; });
    }
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

void RefreshProjects() {
    FormKORVANDE& form = frmKORVANDE();
    form.File1.items = ListFiles(ProjectFolder(), u"*.nst");
    form.File1.index = FindProject(CurrentProject());
    if (form.changed) form.changed();
}

bool CloseAfterLoad() noexcept {
    closesAfterLoad = loading;
    return loading;
}

bool IsBusy() noexcept { return loading || IsTranslating(); }

bool LoadProject(TextView project) {
    const Text name(project);  // it may be the current project's own, which the load changes
    FormKORVANDE& form = frmKORVANDE();
    DropEdits();
    const bool isLoaded = LoadIntoForm(name);
    if (StartedByCommandLine()) StartedInteractively() = form.framStandaloneVisible = false;
    form.File1.index = FindProject(CurrentProject());
    if (form.changed) form.changed();
    if (std::exchange(closesAfterLoad, false) && form.unload) form.unload();
    return isLoaded;
}

void NewProject() {
    if (IsBusy()) return;
    const StoppedTimer timer;
    EndEdits();
    const Text previous = CurrentProject();
    const std::optional<Text> name = AskName(newProjectTexts, {});
    if (!name) return;
    SaveCurrentProject();
    DropEdits();
    ResetProject();
    LoadGridData();
    if (SaveProjectFile(PathOf(*name))) {
        LoadProject(*name);
        RefreshProjects();
    } else if (!previous.empty()) {
        LoadProject(previous);
    }
}

void CopyProject() {
    if (IsBusy() || CurrentProject().empty()) return;
    const StoppedTimer timer;
    EndEdits();
    const Text previous = CurrentProject();
    const std::optional<Text> name = AskName(copyProjectTexts, previous);
    if (!name) return;
    if (*name == previous || SameFile(PathOf(*name), PathOf(previous))) {
        ShowMessage(u"Nieuwe naam moet anders zijn dan de oude", Icon::None, u"Dupliceren is mislukt");
        return;
    }
    if (!CopyFileWithReport(PathOf(previous), PathOf(*name), true)) return;
    // The copy is of the file on disk: what was not saved yet stays with the old project.
    SaveCurrentProject();
    RefreshProjects();
    LoadProject(*name);
}

void DeleteProject() {
    if (IsBusy()) return;
    const StoppedTimer timer;
    EndEdits();
    FormKORVANDE& form = frmKORVANDE();
    const int position = form.File1.index;
    const std::optional<Text> name = AskName(deleteProjectTexts, CurrentProject());
    if (!name) return;
    if (!SameFile(PathOf(*name), PathOf(CurrentProject()))) SaveCurrentProject();
    DeleteFileAt(PathOf(*name));
    CurrentProject().clear();
    RefreshProjects();
    const int next = std::min(position, static_cast<int>(form.File1.items.size()) - 1);
    if (next >= 0) {
        LoadProject(form.File1.items[static_cast<std::size_t>(next)]);
    } else {
        DropEdits();
        LoadEmptyProject();
    }
}

void PickProject(int index) {
    const std::vector<Text>& names = frmKORVANDE().File1.items;
    if (IsBusy() || index < 0 || static_cast<std::size_t>(index) >= names.size()) return;
    const StoppedTimer timer;
    EndEdits();
    SaveCurrentProject();
    LoadProject(names[static_cast<std::size_t>(index)]);
}

}  // namespace korvande
