#pragma once

#include <wx/scrolwin.h>

namespace korvande {

struct FormKORVANDE;

// The tab that explains the program and names the folders that it works with.
wxScrolledWindow* MakeInformationTab(wxWindow* parent, const FormKORVANDE& form);

}  // namespace korvande
