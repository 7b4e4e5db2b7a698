#include "app/ProjectSaving.h"

#include <exception>

#include "app/frmKORVANDE.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "host/FileReplacement.h"
#include "host/modFileHandling.h"
#include "project/ControlTableWriter.h"
#include "project/OwnerBoxes.h"

namespace korvande {

namespace {

Text PathOfCurrent(const FormKORVANDE& form) { return Concat(form.ProjectFolder, form.CurrentProject); }

Text NameWithoutExtension(const FormKORVANDE& form) {
    return form.CurrentProject.substr(0, form.CurrentProject.rfind(u'.'));
}

bool IsKnown(const FormKORVANDE& form) {
    return !form.projectFile.project.empty() && form.projectFile.project == form.CurrentProject;
}

std::string TakeProject(FormKORVANDE& form) {
    SaveGridData(form);
    TakeOwner(form.project.options, form.project.owner);
    return ControlTableText(form.project.options, form.project.codes);
}

// What a save writes when nothing is changed in the grids.
std::string TextOfLoaded(const Project& project) { return ControlTableText(project.options, FreshTables(project)); }

bool ReplaceQuietly(TextView name, std::string_view bytes) {
    try {
        ReplaceFile(name, bytes);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

// False after Cancel; whether the file may not be written is noted.
bool ReplaceWithRetry(FormKORVANDE& form, const Text& name, std::string_view bytes) {
    int failure = 0;
    const bool isSaved = TryWithRetry(form.screen, name, u"opslaan", [&] {
        try {
            ReplaceFile(name, bytes);
        } catch (const RuntimeError& error) {
            failure = error.Number();
            throw;
        }
    });
    const bool isRefused = !isSaved && (failure == errors::accessDenied || failure == errors::pathAccess);
    if (isRefused) {
        if (!IsKnown(form)) form.projectFile = {form.CurrentProject, {}, {}, true};
        form.projectFile.mayBeWritten = false;
    }
    return isSaved;
}

Edits Ask(const FormKORVANDE& form) {
    const Text question = Concat(u"Het project ", NameWithoutExtension(form),
                                 u" is door een ander programma gewijzigd sinds het hier is geladen.\n\n"
                                 u"Ja: overschrijven met wat hier staat\n"
                                 u"Nee: opnieuw laden; de wijzigingen hier gaan verloren\n"
                                 u"Annuleren: niets bewaren en hier verdergaan");
    switch (form.screen.ShowMessage({question, {}, Icon::Question, Buttons::YesNoCancel})) {
        case Answer::Yes:
            return Edits::Save;
        case Answer::No:
            return Edits::Drop;
        default:
            return Edits::Keep;
    }
}

void WriteBeside(const FormKORVANDE& form, std::string_view bytes) {
    constexpr int lastNumber = 99;
    for (int number = 2; number <= lastNumber; ++number) {
        const Text name = Concat(form.ProjectFolder, NameWithoutExtension(form), u" (", number, u").NST");
        if (!IsFreeName(name)) continue;
        ReplaceQuietly(name, bytes);
        return;
    }
}

}  // namespace

std::optional<std::string> ProjectBytes(TextView name) {
    try {
        // A device may have no end.
        if (IsRegularFileOrMissing(name)) return FileBytesOf(name);
    } catch (const std::exception&) {
        // As if it were not there.
    }
    return {};
}

void RememberLoaded(FormKORVANDE& form, std::string_view bytes) {
    form.projectFile = {form.CurrentProject, std::string(bytes), TextOfLoaded(form.project), true};
}

Edits AskAboutEdits(FormKORVANDE& form) {
    const std::string text = TakeProject(form);
    if (form.CurrentProject.empty()) return Edits::None;
    const Text name = PathOfCurrent(form);
    const ProjectFile& file = form.projectFile;
    if (!IsKnown(form) || file.unchanged.empty() || !FileExistsAt(name)) return Edits::Save;
    if (text == file.unchanged) return Edits::None;
    const std::optional<std::string> onDisk = ProjectBytes(name);
    if (!onDisk || *onDisk == file.bytes || *onDisk == text) return Edits::Save;
    return file.mayBeWritten ? Ask(form) : Edits::None;
}

void SaveEdits(FormKORVANDE& form) {
    const std::string text = TakeProject(form);
    const Text name = PathOfCurrent(form);
    const bool isToldAlready = IsKnown(form) && !form.projectFile.mayBeWritten;
    if (isToldAlready ? ReplaceQuietly(name, text) : ReplaceWithRetry(form, name, text)) {
        form.projectFile = {form.CurrentProject, text, text, true};
    }
}

bool SaveCurrentProject(FormKORVANDE& form) {
    const Edits edits = AskAboutEdits(form);
    if (edits == Edits::Save) SaveEdits(form);
    return edits != Edits::Keep;
}

void SaveWithoutQuestion(FormKORVANDE& form) {
    if (form.CurrentProject.empty() || form.activity.isLoading) return;
    const std::string text = TakeProject(form);
    const Text name = PathOfCurrent(form);
    const ProjectFile& file = form.projectFile;
    if (FileExistsAt(name)) {
        if (IsKnown(form) && text == file.unchanged) return;
        if (!IsKnown(form) || ProjectBytes(name) != file.bytes) return WriteBeside(form, text);
    }
    if (!ReplaceQuietly(name, text)) WriteBeside(form, text);
}

}  // namespace korvande
