#include "ui/Fading.h"

#include <wx/dynlib.h>

namespace korvande {

// For one setting not worth the headers of GTK, which the window's library has loaded.
void FadeNothing() {
    const wxDynamicLibrary gtk("libgtk-3.so.0", wxDL_VERBATIM | wxDL_QUIET);
    using GetSettings = void* (*)();
    using SetProperties = void (*)(void* object, const char* name, ...);
    if (!gtk.IsLoaded()) return;
    const wxDYNLIB_FUNCTION(GetSettings, gtk_settings_get_default, gtk);
    const wxDYNLIB_FUNCTION(SetProperties, g_object_set, gtk);
    if (pfngtk_settings_get_default == nullptr || pfng_object_set == nullptr) return;
    pfng_object_set(pfngtk_settings_get_default(), "gtk-enable-animations", 0, nullptr);
}

}  // namespace korvande
