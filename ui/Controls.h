#pragma once

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/radiobut.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "core/Text.h"

namespace korvande {

// Making the window's controls in one way: each has its name, by which the bindings and tools find it, a caption with
// its mnemonic ("&"), and a tooltip where the effect is not obvious.

// The empty space around and between controls, in device-independent pixels.
inline constexpr int narrowSpace = 6;
inline constexpr int wideSpace = 10;

// A distance in twips, in the pixels of a window's display.
int PixelsOf(const wxWindow& window, int twips);
// A distance in the pixels of a window's display, in twips.
int TwipsOf(const wxWindow& window, int pixels);

// A framed group with a caption: its controls are children of the box and stand in the column `rows`, by default below
// each other with some room between.
struct Group {
    Group(wxWindow* page, const char* name, TextView caption);
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;
    ~Group() = default;

    void Add(wxWindow* control, int proportion = 0) const;
    void Add(wxSizer* row, int proportion = 0) const;

    wxStaticBoxSizer* frame;
    wxStaticBox* box;
    wxBoxSizer* rows;
};

wxStaticText* MakeLabel(wxWindow* parent, TextView caption, const char* name = "");

// A text box of about so many characters' width, and with `longest` no longer text (0: of any length).
wxTextCtrl* MakeTextBox(wxWindow* parent, const char* name, int characters, unsigned longest, TextView tip = {});

// Gives a box of one line the width of so many characters and the height of its text.
void FitTextBox(wxTextCtrl& box, int characters);

wxCheckBox* MakeCheckBox(wxWindow* parent, const char* name, TextView caption, TextView tip = {});
wxButton* MakeButton(wxWindow* parent, const char* name, TextView caption, TextView tip = {});

// The options of a group exclude each other; the group begins with a first option.
enum class InGroup { First, Next };
wxRadioButton* MakeOption(wxWindow* parent, const char* name, TextView caption, InGroup place, TextView tip = {});

// Has the mouse wheel over a list scroll the page, and never change what is chosen.
void PassWheelOn(wxWindow& list);

// A list scrolls to what has no room: it asks for little.
void LetShrink(wxWindow& list);

// Of texts that tell of something lost: red on a light window, and lighter on a dark one.
wxColour WarningColour();

// How a control stands in its row.
wxSizerFlags InRow(int proportion = 0);

}  // namespace korvande
