#include "app/BrowseFiles.h"

#include "app/OutputName.h"
#include "app/Projects.h"
#include "app/Remembered.h"
#include "app/frmKORVANDE.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

bool ModeReadsSufNen(const FormKORVANDE& form) { return form.cboXlateMode.SelectedText().ends_with(u">> IDEX"); }

// The folder of a box in which none stands: that of the file chosen for it last, if it is still there.
FileDialog InKnownFolder(FileDialog dialog, TextView box) {
    if (!dialog.folder.empty()) return dialog;
    const Text folder = Remembered(box);
    if (!folder.empty() && !IsFreeName(folder)) dialog.folder = folder;
    return dialog;
}

// `folderName` is that under which the folder of the box is kept.
void Browse(FormKORVANDE& form, Text& box, TextView folderName, const FileDialog& dialog, const AskFileName& ask) {
    const StoppedTimer timer(form);
    const std::optional<Text> name = ask(InKnownFolder(dialog, folderName));
    if (!name) return;
    box = *name;
    Remember(folderName, FolderOf(*name));
    // The dialog has asked whether a file that is there may be replaced.
    if (!dialog.opens) form.outputs.insert(FileIdentity(*name));
    if (dialog.opens) DeriveOutputName(form);
    TellChanged(form);
}

}  // namespace

FileDialog SufNenFileDialog(const FormKORVANDE& form) {
    const Text& name = form.project.options.txtFileSUFNEN;
    const bool opens = ModeReadsSufNen(form);
    return {opens ? u"Inlezen SUF2/NEN1878 bestand" : u"Opslaan SUF2/NEN1878 bestand",
            u"NEN1878 bestanden (*.sfn)|*.sfn|NEN1878 bestanden (*.nen)|*.nen|SUF2 bestanden (*.sf2)|*.sf2|"
            u"Alle bestanden (*.*)|*.*",
            FolderOf(name), FileNameOf(name), opens};
}

FileDialog IdexFileDialog(const FormKORVANDE& form) {
    const Text& name = form.project.options.txtFileIDEX;
    const bool opens = !ModeReadsSufNen(form);
    return {opens ? u"Inlezen IDEX bestand" : u"Opslaan IDEX bestand",
            u"IDEX bestanden (*.IDX)|*.idx|Alle bestanden (*.*)|*.*", FolderOf(name), FileNameOf(name), opens};
}

void BrowseSufNenFile(FormKORVANDE& form, const AskFileName& ask) {
    TakeQuotesAway(form);
    Browse(form, form.project.options.txtFileSUFNEN, u"FolderSUFNEN", SufNenFileDialog(form), ask);
}

void BrowseIdexFile(FormKORVANDE& form, const AskFileName& ask) {
    TakeQuotesAway(form);
    Browse(form, form.project.options.txtFileIDEX, u"FolderIDEX", IdexFileDialog(form), ask);
}

}  // namespace korvande
