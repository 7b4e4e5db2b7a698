#pragma once

#include "core/Text.h"

namespace korvande {

// What a file dialog for one of the two files shows.
struct FileDialog {
    Text title;
    Text filter;  // in the form "name (*.ext)|*.ext|..."
    Text folder;
    Text fileName;
    bool opens = false;  // an existing file is chosen; otherwise one to be written
};

// The dialogs of the two cmdBrowse buttons, from the form's names and mode.
FileDialog SufNenFileDialog();
FileDialog IdexFileDialog();

}  // namespace korvande
