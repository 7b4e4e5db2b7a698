#pragma once

#include <functional>
#include <optional>

#include "core/Text.h"

namespace korvande {

struct FormKORVANDE;

// What a file dialog for one of the two files shows.
struct FileDialog {
    Text title;
    Text filter;  // in the form "name (*.ext)|*.ext|..."
    Text folder;  // ending in a separator; empty for a name without a folder
    Text fileName;
    bool opens = false;  // an existing file is chosen; otherwise one to be written
};

// The dialogs of the two cmdBrowse buttons, from the form's names and mode.
FileDialog SufNenFileDialog(const FormKORVANDE& form);
FileDialog IdexFileDialog(const FormKORVANDE& form);

// Shows such a dialog: the name chosen, or nothing after Cancel.
using AskFileName = std::function<std::optional<Text>(const FileDialog& dialog)>;

// The cmdBrowse buttons: the name chosen goes into the file's box. Timer1 stands still meanwhile.
void BrowseSufNenFile(FormKORVANDE& form, const AskFileName& ask);
void BrowseIdexFile(FormKORVANDE& form, const AskFileName& ask);

}  // namespace korvande
