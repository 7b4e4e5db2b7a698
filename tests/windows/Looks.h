#pragma once

#include <windows.h>

// Prints the frames that are seen in a window, then what is wrong: a frame that is not drawn, a control that is cut.
// False when something is.
bool PrintLooks(HWND window);
