#include <wx/translation.h>

#include "ui/DutchTexts.h"

namespace korvande {

void SpeakDutch() {
    auto* const translations = new wxTranslations();
    wxTranslations::Set(translations);
    translations->SetLoader(new wxResourceTranslationsLoader());
    translations->SetLanguage(wxLANGUAGE_DUTCH);
    translations->AddStdCatalog();
}

}  // namespace korvande
