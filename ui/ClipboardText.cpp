#include "ui/ClipboardText.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include "ui/WxText.h"

namespace korvande {

Text ClipboardText() {
    const wxClipboardLocker clipboard;
    wxTextDataObject data;
    if (!clipboard || !wxTheClipboard->GetData(data)) return {};
    return FromWx(data.GetText());
}

void PutOnClipboard(TextView text) {
    const wxClipboardLocker clipboard;
    if (!clipboard) return;
    // It stays there when the program ends.
    if (wxTheClipboard->SetData(new wxTextDataObject(ToWx(text)))) wxTheClipboard->Flush();
}

}  // namespace korvande
