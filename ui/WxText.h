#pragma once

#include <wx/string.h>

#include "core/Text.h"

namespace korvande {

// Between our texts and those of the window's controls. A byte of a file name that is no UTF-8 survives both ways.
wxString ToWx(TextView text);
Text FromWx(const wxString& text);

}  // namespace korvande
