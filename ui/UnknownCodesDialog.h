#pragma once

#include <wx/window.h>

#include "app/UnknownCodes.h"

namespace korvande {

// Shows codes that the tables have not got, each with a box to be ticked: those that a person wants to add, none after
// Cancel.
UnknownCodes AskUnknownCodes(wxWindow* parent, const UnknownCodes& unknown);

}  // namespace korvande
