#pragma once

#include <wx/window.h>

#include <optional>

#include "app/BrowseFiles.h"

namespace korvande {

// Shows the system's dialog for a file: the name chosen, or nothing after Cancel.
std::optional<Text> ShowFileDialog(wxWindow* parent, const FileDialog& dialog);

// The same for a folder.
std::optional<Text> ShowFolderDialog(wxWindow* parent, TextView title);

}  // namespace korvande
