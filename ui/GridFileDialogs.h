#pragma once

#include <wx/window.h>

#include <optional>

#include "app/GridCsv.h"

namespace korvande {

// The dialogs for the CSV files of a code table; nothing after Cancel.
std::optional<Text> AskImportName(wxWindow* parent);

struct ExportChoice {
    Text name;
    CsvForm form;
};
std::optional<ExportChoice> AskExportName(wxWindow* parent);

}  // namespace korvande
