#include "ui/Folders.h"

#include "core/modScreen.h"
#include "ui/OpenDocument.h"

namespace korvande {

void OpenFolder(Screen& screen, const Text& folder) {
    if (OpenDocument(folder.empty() ? Text(u".") : folder)) return;
    ShowMessage(screen, Concat(u"De map kan niet worden geopend:\n", folder));
}

}  // namespace korvande
