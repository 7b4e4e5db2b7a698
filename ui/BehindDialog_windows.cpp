#include "ui/BehindDialog.h"

#include <wx/msw/wrapwin.h>

namespace korvande {

// Asked of the system, since the toolkit does not know of the system's own dialogs.
bool IsBehindDialog(const wxWindow& window) { return ::IsWindowEnabled(window.GetHWND()) == 0; }

}  // namespace korvande
