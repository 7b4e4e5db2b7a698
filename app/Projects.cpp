#include "app/Projects.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "app/GridEditing.h"
#include "app/ProjectSaving.h"
#include "app/RunActivity.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"

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

void SetTimer(FormKORVANDE& form, bool isEnabled) {
    form.Timer1Enabled = isEnabled;
    TellChanged(form);
}

Text PathOf(const FormKORVANDE& form, TextView project) { return Concat(form.ProjectFolder, project); }

// The dialog; the file name that it leads to, or nothing after Cancel.
std::optional<Text> AskName(const FormKORVANDE& form, const ProjectDialogTexts& texts, TextView name) {
    if (!form.askProjectName) return {};
    const std::optional<Text> typed = form.askProjectName(texts.caption, texts.explanation, texts.prompt, name);
    return typed ? std::optional(ProjectFileName(*typed)) : std::nullopt;
}

// The time that the load of a project takes.
class Loading {
 public:
    explicit Loading(Activity& itsActivity) : activity(itsActivity) { activity.isLoading = true; }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;
    ~Loading() { activity.isLoading = false; }

 private:
    Activity& activity;
};

bool LoadIntoForm(FormKORVANDE& form, const Text& name) {
    const Loading loading(form.activity);
    form.CurrentProject = name;
    form.projectFile = {};
    // Before the load: what is written in between is another program's.
    std::optional<std::string> bytes = ProjectBytes(PathOf(form, name));
    if (LoadProjectFile(form, PathOf(form, name))) {
        if (!bytes) bytes = ProjectBytes(PathOf(form, name));
        RememberLoaded(form, bytes.value_or(std::string()));
        return true;
    }
    form.CurrentProject.clear();
    form.txtProject.clear();
    return false;
}

}  // namespace

StoppedTimer::StoppedTimer(FormKORVANDE& itsForm) : form(itsForm) { SetTimer(form, false); }

StoppedTimer::~StoppedTimer() { SetTimer(form, true); }

Text ProjectFileName(TextView typed) {
    constexpr TextView extension = u".NST";
    Text name(Trim(ToCapitals(typed)));
    if (!name.ends_with(extension)) AppendTo(name, extension);
    return name;
}

int FindProject(const FormKORVANDE& form, TextView name) {
    const std::vector<Text>& names = form.File1.items;
    auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        const Text capitals = ToCapitals(name);
        found = std::find_if(names.begin(), names.end(),
                             [&capitals](const Text& entry) { return ToCapitals(entry) == capitals; });
    }
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

void RefreshProjects(FormKORVANDE& form) {
    form.File1.items = ListFiles(form.ProjectFolder, u"*.nst");
    form.File1.index = FindProject(form, form.CurrentProject);
    TellChanged(form);
}

bool CloseAfterLoad(FormKORVANDE& form) noexcept {
    form.activity.closesAfterLoad = form.activity.isLoading;
    return form.activity.isLoading;
}

bool IsBusy(const FormKORVANDE& form) noexcept { return form.activity.isLoading || IsRunning(form); }

bool LoadProject(FormKORVANDE& form, TextView project) {
    const Text name(project);  // it may be the current project's own, which the load changes
    DropEdits(form);
    const bool isLoaded = LoadIntoForm(form, name);
    if (form.StartedByCommandLine) form.project.options.StartedInteractively = false;
    form.File1.index = FindProject(form, form.CurrentProject);
    TellChanged(form);
    if (std::exchange(form.activity.closesAfterLoad, false)) {
        if (IsRunning(form)) {
            AskEndOfRun(form);
        } else {
            Unload(form);
        }
    }
    return isLoaded;
}

void NewProject(FormKORVANDE& form) {
    if (IsBusy(form)) return;
    const StoppedTimer timer(form);
    EndEdits(form);
    const Text previous = form.CurrentProject;
    const std::optional<Text> name = AskName(form, newProjectTexts, {});
    if (!name || !MayReplace(form, PathOf(form, *name))) return;
    const Edits edits = AskAboutEdits(form);
    if (edits == Edits::Keep) return;
    if (edits == Edits::Save) SaveEdits(form);
    if (edits == Edits::Drop && !LoadProject(form, previous)) return;
    DropEdits(form);
    // What the form holds now is no project's.
    form.CurrentProject.clear();
    ResetProject(form.project);
    LoadGridData(form);
    if (SaveProjectFile(form, PathOf(form, *name))) {
        LoadProject(form, *name);
        RefreshProjects(form);
    } else if (!previous.empty()) {
        LoadProject(form, previous);
    }
}

void CopyProject(FormKORVANDE& form) {
    if (IsBusy(form) || form.CurrentProject.empty()) return;
    const StoppedTimer timer(form);
    EndEdits(form);
    const Text previous = form.CurrentProject;
    const std::optional<Text> name = AskName(form, copyProjectTexts, previous);
    if (!name) return;
    if (*name == previous || SameFile(PathOf(form, *name), PathOf(form, previous))) {
        ShowMessage(form.screen, u"Nieuwe naam moet anders zijn dan de oude", Icon::None, u"Dupliceren is mislukt");
        return;
    }
    if (!MayReplace(form, PathOf(form, *name))) return;
    const Edits edits = AskAboutEdits(form);
    if (edits == Edits::Keep) return;
    if (!CopyFileWithReport(form.screen, PathOf(form, previous), PathOf(form, *name), true)) return;
    // The copy is of the file on disk: what was not saved yet stays with the old project.
    if (edits == Edits::Save) SaveEdits(form);
    RefreshProjects(form);
    LoadProject(form, *name);
}

void DeleteProject(FormKORVANDE& form) {
    if (IsBusy(form)) return;
    const StoppedTimer timer(form);
    EndEdits(form);
    const int position = form.File1.index;
    const std::optional<Text> name = AskName(form, deleteProjectTexts, form.CurrentProject);
    if (!name) return;
    if (!SameFile(PathOf(form, *name), PathOf(form, form.CurrentProject)) && !SaveCurrentProject(form)) return;
    DeleteFileAt(PathOf(form, *name));
    form.CurrentProject.clear();
    RefreshProjects(form);
    const int next = std::min(position, static_cast<int>(form.File1.items.size()) - 1);
    if (next >= 0) {
        LoadProject(form, form.File1.items[static_cast<std::size_t>(next)]);
    } else {
        DropEdits(form);
        LoadEmptyProject(form);
    }
}

void PickProject(FormKORVANDE& form, int index) {
    const std::vector<Text>& names = form.File1.items;
    if (IsBusy(form) || index < 0 || static_cast<std::size_t>(index) >= names.size()) return;
    const StoppedTimer timer(form);
    EndEdits(form);
    if (!SaveCurrentProject(form)) return;
    LoadProject(form, names[static_cast<std::size_t>(index)]);
}

}  // namespace korvande
