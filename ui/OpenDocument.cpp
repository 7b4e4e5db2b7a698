#include "ui/OpenDocument.h"

#include <wx/log.h>
#include <wx/utils.h>

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "ui/WxText.h"

namespace korvande {

bool OpenDocument(const Text& name) {
    const wxLogNull noMessages;
    try {
        return wxLaunchDefaultApplication(ToWx(FromUtf8(NativePath(name))));
    } catch (const RuntimeError&) {
        // What cannot be named cannot be opened.
        return false;
    }
}

}  // namespace korvande
