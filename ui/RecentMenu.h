#pragma once

#include <wx/window.h>

#include <optional>

#include "app/RecentFiles.h"

namespace korvande {

// Shows below a button the files of this direction that were translated last: the one chosen, or nothing.
std::optional<RecentFile> AskRecentFile(wxWindow& button, Direction direction);

}  // namespace korvande
