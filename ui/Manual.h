#pragma once

#include <wx/frame.h>

#include <functional>

#include "core/Text.h"

namespace korvande {

class Screen;

// Opens the manual of the program in this folder in the browser, at a chapter or at its beginning. A message tells when
// it is not there.
void OpenManual(Screen& screen, TextView chapter, const Text& programFolder);
void OpenManual(Screen& screen, TextView chapter);

// Has F1 open it wherever the focus is in a window, at the chapter that is asked for then.
void BindManual(wxFrame& frame, Screen& screen, std::function<TextView()> chapter);

}  // namespace korvande
