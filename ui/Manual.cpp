#include "ui/Manual.h"

#include <wx/filename.h>
#include <wx/stdpaths.h>

#include <exception>
#include <optional>
#include <utility>

#include "app/Manual.h"
#include "core/modScreen.h"
#include "host/FileReplacement.h"
#include "host/ProgramPlace.h"
#include "ui/OpenDocument.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

// A file of the user's own that leads to the chapter; nothing when it cannot be written.
std::optional<Text> LeadingFile(const Text& manual, TextView chapter) {
    const wxString folder = wxStandardPaths::Get().GetUserDir(wxStandardPaths::Dir_Cache) + "/korvande";
    if (!wxFileName::Mkdir(folder, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL)) return {};
    const Text name = FromWx(folder + "/handleiding.html");
    try {
        ReplaceFile(name, PageLeadingTo(manual, chapter));
    } catch (const std::exception&) {
        return {};
    }
    return name;
}

}  // namespace

void OpenManual(Screen& screen, TextView chapter) { OpenManual(screen, chapter, RunningProgram().folder); }

void OpenManual(Screen& screen, TextView chapter, const Text& folder) {
    const std::optional<Text> manual = FindManual(folder);
    if (!manual) {
        return ShowMessage(screen,
                           Concat(u"De handleiding is niet gevonden. Ze hoort bij het programma te staan, dat in deze "
                                  u"map staat:\n",
                                  folder));
    }
    const std::optional<Text> leading = chapter.empty() ? std::nullopt : LeadingFile(*manual, chapter);
    if (!OpenDocument(leading ? *leading : *manual)) {
        ShowMessage(screen, Concat(u"De handleiding kan niet worden geopend:\n", *manual));
    }
}

void BindManual(wxFrame& frame, Screen& screen, std::function<TextView()> chapter) {
    frame.Bind(wxEVT_CHAR_HOOK, [&screen, chapter = std::move(chapter)](wxKeyEvent& event) {
        if (event.GetKeyCode() != WXK_F1 || event.HasAnyModifiers()) return event.Skip();
        OpenManual(screen, chapter());
    });
}

}  // namespace korvande
