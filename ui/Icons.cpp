#include "ui/Icons.h"

#include <wx/icon.h>

namespace korvande {

namespace {

#include "ui/icons/korvande16.xpm"
#include "ui/icons/korvande32.xpm"
#include "ui/icons/korvande48.xpm"

}  // namespace

wxIconBundle ProgramIcons() {
    wxIconBundle icons;
    for (const char* const* const drawing : {korvande16, korvande32, korvande48}) icons.AddIcon(wxIcon(drawing));
    return icons;
}

}  // namespace korvande
