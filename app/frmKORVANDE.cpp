#include "app/frmKORVANDE.h"

#include <algorithm>

#include "core/Version.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "project/ControlTable.h"
#include "project/OwnerBoxes.h"

namespace korvande {

namespace {

// The last steps of a load: the form shows what was read.
void ShowProject(FormKORVANDE& form) {
    constexpr std::size_t extension = 4;  // ".nst"
    const Text& name = form.CurrentProject;
    form.txtProject = name.substr(0, name.size() - std::min(name.size(), extension));
    LoadGridData(form);
}

}  // namespace

bool MayReplace(const FormKORVANDE& form, TextView name) {
    if (!FileExistsAt(name)) return true;
    const Text question = Concat(u"Het bestand bestaat al:\n", name, u"\nVervangen?");
    return form.screen.ShowMessage({question, {}, Icon::Question, Buttons::YesNo}) == Answer::Yes;
}

TextView ListControl::SelectedText() const {
    if (index < 0 || static_cast<std::size_t>(index) >= items.size()) return {};
    return items[static_cast<std::size_t>(index)];
}

FormKORVANDE::FormKORVANDE(Screen& itsScreen) : screen(itsScreen), lblVersion(Concat(u"Versie:  ", versionText)) {
    for (const ModeNames& names : modes) cboXlateMode.items.emplace_back(names.text);
    cboXlateMode.index = 0;
    ResetProject(project);
    ShowOwner(project.owner, project.options);
    LoadGridData(*this);
}

void TellChanged(const FormKORVANDE& form) {
    if (form.changed) form.changed();
}

void Unload(const FormKORVANDE& form) {
    if (form.unload) form.unload();
}

bool LoadProjectFile(FormKORVANDE& form, TextView fileName) {
    const BusyPointer busy(form.screen);
    const bool isRead = LoadProjectFile(form.screen, form.project, fileName);
    if (isRead) {
        ShowProject(form);
    } else {
        LoadGridData(form);
    }
    return isRead;
}

void LoadEmptyProject(FormKORVANDE& form) {
    LoadEmptyProject(form.project);
    ShowProject(form);
}

bool SaveProjectFile(FormKORVANDE& form, TextView fileName) {
    SaveGridData(form);
    return SaveProjectFile(form.screen, form.project, fileName);
}

void LoadGridData(FormKORVANDE& form) {
    LoadGrid(form.gridPoints, form.project.codes.points);
    LoadGrid(form.gridLines, form.project.codes.lines);
    LoadGrid(form.gridTexts, form.project.codes.texts);
    for (EditedGrid* const edited : {&form.editedPoints, &form.editedLines, &form.editedTexts}) ++edited->changes;
    TellChanged(form);
}

void SaveGridData(FormKORVANDE& form) {
    SaveGrid(form.gridPoints, form.project.codes.points);
    SaveGrid(form.gridLines, form.project.codes.lines);
    SaveGrid(form.gridTexts, form.project.codes.texts);
}

}  // namespace korvande
