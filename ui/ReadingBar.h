#pragma once

#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/panel.h>
#include <wx/stattext.h>

#include <functional>

#include "core/Text.h"

namespace korvande {

// How far a reading is, with a button that stops it; afterwards what a person must know of it, in as many lines as that
// takes. Its parent lays it out anew when it takes another height.
class ReadingBar : public wxPanel {
 public:
    explicit ReadingBar(wxWindow* parent);

    std::function<void()> onStop = [] {};

    void ShowProgress(TextView text, double part);  // 0 to 1
    void ShowNotice(TextView text);                 // none: hides the bar

 private:
    void Present(bool isReading);
    void Wrap();
    void LayOutParent();

    wxStaticText* label;
    wxGauge* gauge;
    wxButton* stop;
    Text notice;      // empty while it reads
    int wrapped = 0;  // the width that the notice was laid out for
};

}  // namespace korvande
