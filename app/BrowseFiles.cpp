#include "app/BrowseFiles.h"

#include "app/OutputName.h"
#include "app/Projects.h"
#include "app/frmKORVANDE.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

bool ModeReadsSufNen(const FormKORVANDE& form) { return form.cboXlateMode.SelectedText().ends_with(u">> IDEX"); }

void Browse(FormKORVANDE& form, Text& box, const FileDialog& dialog, const AskFileName& ask) {
    const StoppedTimer timer(form);
    const std::optional<Text> name = ask(dialog);
    if (!name) return;
    box = *name;
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
    Browse(form, form.project.options.txtFileSUFNEN, SufNenFileDialog(form), ask);
}

void BrowseIdexFile(FormKORVANDE& form, const AskFileName& ask) {
    TakeQuotesAway(form);
    Browse(form, form.project.options.txtFileIDEX, IdexFileDialog(form), ask);
}

}  // namespace korvande
