#include "ui/FileDialogs.h"

#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/filefn.h>
#include <wx/filename.h>

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

// The folder as the system knows it; empty, for its own choice, when there is no such folder.
wxString NativeFolder(const Text& folder) {
    if (folder.empty()) return {};
    try {
        return ToWx(FromUtf8(NativePath(folder)));
    } catch (const RuntimeError&) {
        return {};
    }
}

// The filter with its patterns in small letters and in capitals, where the system tells them apart: our own names are
// in capitals.
wxString WithBothCases(const wxString& filter) {
    if (!wxFileName::IsCaseSensitive()) return filter;
    wxArrayString descriptions;
    wxArrayString patterns;
    wxParseCommonDialogsFilter(filter, descriptions, patterns);
    wxString both;
    for (size_t i = 0; i < patterns.size(); ++i) {
        if (i > 0) both += "|";
        both += descriptions[i] + "|" + patterns[i];
        if (patterns[i].Upper() != patterns[i]) both += ";" + patterns[i].Upper();
    }
    return both;
}

}  // namespace

std::optional<Text> ShowFileDialog(wxWindow* parent, const FileDialog& dialog) {
    const long style = dialog.opens ? wxFD_OPEN | wxFD_FILE_MUST_EXIST : wxFD_SAVE | wxFD_OVERWRITE_PROMPT;
    wxFileDialog window(parent, ToWx(dialog.title), NativeFolder(dialog.folder), ToWx(dialog.fileName),
                        WithBothCases(ToWx(dialog.filter)), style);
    if (window.ShowModal() != wxID_OK) return {};
    return FromWx(window.GetPath());
}

std::optional<Text> ShowFolderDialog(wxWindow* parent, TextView title) {
    wxDirDialog window(parent, ToWx(title), wxEmptyString, wxDD_DEFAULT_STYLE);
    if (window.ShowModal() != wxID_OK) return {};
    return FromWx(window.GetPath());
}

}  // namespace korvande
