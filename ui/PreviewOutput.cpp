#include "ui/PreviewOutput.h"

#include <algorithm>
#include <optional>

#include "app/BrowseFiles.h"
#include "app/PictureName.h"
#include "app/SaveGeoPackage.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "picture/DrawMarked.h"
#include "picture/PictureFile.h"
#include "ui/FileDialogs.h"

namespace korvande {

namespace {

void Draw(const SeenPreview& seen, const PictureFrame& frame, Canvas& canvas) {
    if (seen.marks) return DrawMarked(seen.source, *seen.marks, frame, canvas);
    DrawPicture(*seen.source.drawing, *seen.source.list, frame, canvas, {seen.source.index, &seen.isHidden});
}

}  // namespace

void SaveSeen(wxWindow* parent, const FormKORVANDE& form, const SeenPreview& seen) {
    constexpr int leastPixels = 1600;
    const Text input = FileNameOf(seen.input);
    const Text name = Concat(input.substr(0, input.rfind(u'.')), seen.marks ? u" - verschillen.svg" : u".svg");
    const bool isDrawing = seen.drawing != nullptr;
    const Text filter =
        Concat(u"SVG (*.svg)|*.svg|PNG (*.png)|*.png", isDrawing ? u"|GeoPackage (*.gpkg)|*.gpkg" : u"");
    const FileDialog dialog = {u"Tekening opslaan", filter, FolderOf(seen.input), name, false};
    const std::optional<Text> chosen = ShowFileDialog(parent, dialog);
    if (!chosen) return;
    const Text target = PictureNameOf(*chosen, isDrawing ? MayBeGeoPackage::Yes : MayBeGeoPackage::No);
    // The dialog asked about the name that it gave.
    if (target != *chosen && !MayReplace(form, target)) return;
    if (!PictureFormatOf(target)) return SaveGeoPackage(form.screen, *seen.drawing, target);
    PictureFrame frame = FrameOf(seen.view);
    frame.pixels = std::max(frame.pixels, leastPixels);
    TryWithRetry(form.screen, target, u"opslaan", [&] {
        WritePictureFile(*seen.source.list, frame, {seen.title, target},
                         [&](Canvas& canvas) { Draw(seen, frame, canvas); });
    });
}

void PrintSeen(wxWindow* parent, Screen& screen, const SeenPreview& seen, PrintSettings& settings) {
    const std::optional<PrintChoice> choice = AskPrintChoice(parent, settings.choice);
    if (!choice) return;
    settings.choice = *choice;
    settings.data.SetOrientation(choice->isLandscape ? wxLANDSCAPE : wxPORTRAIT);
    const DrawingPage page = {[&](const PictureFrame& frame, Canvas& canvas) { Draw(seen, frame, canvas); }, seen.view,
                              choice->scale, seen.title};
    if (!PrintDrawing(parent, settings.data, page, settings.asksPrinter)) {
        ShowMessage(screen, u"De tekening kan niet worden afgedrukt.");
    }
}

}  // namespace korvande
