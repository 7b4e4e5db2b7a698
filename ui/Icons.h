#pragma once

#include <wx/iconbndl.h>

namespace korvande {

// The program's icon in its sizes.
wxIconBundle ProgramIcons();

}  // namespace korvande
