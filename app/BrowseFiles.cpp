#include "app/BrowseFiles.h"

#include "app/Projects.h"
#include "host/modFileHandling.h"
#include "project/frmKORVANDE.h"

namespace korvande {

namespace {

bool ModeReadsSufNen() { return frmKORVANDE().cboXlateMode.SelectedText().ends_with(u">> IDEX"); }

void Browse(Text FormKORVANDE::*box, const FileDialog& dialog, const AskFileName& ask) {
    FormKORVANDE& form = frmKORVANDE();
    const StoppedTimer timer;
    const std::optional<Text> name = ask(dialog);
    if (!name) return;
    form.*box = *name;
    if (form.changed) form.changed();
}

}  // namespace

FileDialog SufNenFileDialog() {
    const Text& name = frmKORVANDE().txtFileSUFNEN;
    const bool opens = ModeReadsSufNen();
    return {opens ? u"Inlezen SUF2/NEN1878 bestand" : u"Opslaan SUF2/NEN1878 bestand",
            u"NEN1878 bestanden (*.sfn)|*.sfn|NEN1878 bestanden (*.nen)|*.nen|SUF2 bestanden (*.sf2)|*.sf2|"
            u"Alle bestanden (*.*)|*.*",
            FolderOf(name), FileNameOf(name), opens};
}

FileDialog IdexFileDialog() {
    const Text& name = frmKORVANDE().txtFileIDEX;
    const bool opens = !ModeReadsSufNen();
    return {opens ? u"Inlezen IDEX bestand" : u"Opslaan IDEX bestand",
            u"IDEX bestanden (*.IDX)|*.idx|Alle bestanden (*.*)|*.*", FolderOf(name), FileNameOf(name), opens};
}

void BrowseSufNenFile(const AskFileName& ask) { Browse(&FormKORVANDE::txtFileSUFNEN, SufNenFileDialog(), ask); }

void BrowseIdexFile(const AskFileName& ask) { Browse(&FormKORVANDE::txtFileIDEX, IdexFileDialog(), ask); }

}  // namespace korvande
