#pragma once

#include <wx/print.h>

#include "core/modScreen.h"

namespace korvande {

// Prints pages of lines in Courier New 10, without asking anything. False when there is no printer or it fails.
bool PrintPages(wxWindow* parent, const wxPrintData& data, const Screen::MakePages& makePages);

}  // namespace korvande
