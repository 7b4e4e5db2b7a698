#include "ui/RecentMenu.h"

#include <wx/control.h>
#include <wx/menu.h>

#include <vector>

#include "ui/WxText.h"

namespace korvande {

std::optional<RecentFile> AskRecentFile(wxWindow& button, Direction direction) {
    std::vector<RecentFile> files = RecentFiles();
    std::erase_if(files, [direction](const RecentFile& file) { return file.mode.direction != direction; });
    wxMenu menu;
    constexpr int firstId = 1;
    for (std::size_t i = 0; i < files.size(); ++i) {
        menu.Append(firstId + static_cast<int>(i), wxControl::EscapeMnemonics(ToWx(OfferOf(files[i]))));
    }
    if (files.empty()) menu.Append(firstId, ToWx(u"Nog geen bestanden vertaald"))->Enable(false);
    const int chosen = button.GetPopupMenuSelectionFromUser(menu, 0, button.GetSize().y);
    if (chosen < firstId || files.empty()) return {};
    return files[static_cast<std::size_t>(chosen - firstId)];
}

}  // namespace korvande
