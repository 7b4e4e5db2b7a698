#pragma once

#include <wx/window.h>

#include <functional>

#include "app/UnknownCodes.h"

namespace korvande {

// Shows codes that the tables have not got, each with a box to be ticked: those that a person wants to add, none after
// Cancel. A suggestion has a box of its own, which is not ticked. `look` is called for the current one.
UnknownCodes AskUnknownCodes(wxWindow* parent, const UnknownCodes& unknown,
                             const std::function<void(const UnknownCode&)>& look = {});

}  // namespace korvande
