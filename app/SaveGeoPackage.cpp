#include "app/SaveGeoPackage.h"

#include "app/ReadPreview.h"
#include "core/modScreen.h"
#include "geopackage/GeoPackageFile.h"
#include "picture/RdArea.h"

namespace korvande {

void SaveGeoPackage(Screen& screen, const ShownDrawing& drawing, TextView name) {
    const Text remark = RdSentence(drawing.list);
    if (!remark.empty()) {
        const Text question = Concat(u"De tekening ligt ", remark, u".\nOpslaan zonder coördinatenstelsel?");
        const Answer answer = screen.ShowMessage(
            {.text = question, .title = u"Tekening opslaan", .icon = Icon::Question, .buttons = Buttons::YesNo});
        if (answer != Answer::Yes) return;
    }
    TryWithRetry(screen, name, u"opslaan", [&] {
        GeoPackageFile file(name, {.isLocal = !remark.empty(), .replaces = true, .namesOwner = true});
        file.Add(drawing.translation, drawing.list);
        file.Finish();
    });
}

}  // namespace korvande
