#include "ui/Icons.h"

#include <wx/bitmap.h>
#include <wx/icon.h>
#include <wx/image.h>

namespace korvande {

namespace {

#include "ui/icons/korvande16.xpm"
#include "ui/icons/korvande32.xpm"
#include "ui/icons/korvande48.xpm"

}  // namespace

wxIconBundle ProgramIcons() {
    wxIconBundle icons;
    for (const char* const* const drawing : {korvande16, korvande32, korvande48}) {
        wxImage image(drawing);
        // On GTK a window keeps the memory of an icon that has a mask for ever, of one with transparency it does not.
        image.InitAlpha();
        wxIcon icon;
        icon.CopyFromBitmap(wxBitmap(image));
        icons.AddIcon(icon);
    }
    return icons;
}

}  // namespace korvande
