#include "ui/MessageDialog.h"

#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/tokenzr.h>

#include <vector>

#include "ui/Controls.h"
#include "ui/Icons.h"
#include "ui/WxText.h"

namespace korvande {

namespace {

// In device-independent pixels; the shortest leaves room for the title.
constexpr int shortestLine = 240;
constexpr int longestLine = 480;

struct ButtonKind {
    wxWindowID id;
    TextView caption;
};

// The first is what Enter presses, the last what Escape presses.
std::vector<ButtonKind> KindsOf(Buttons buttons) {
    constexpr ButtonKind ok{wxID_OK, u"&OK"};
    constexpr ButtonKind retry{wxID_OK, u"Op&nieuw"};
    constexpr ButtonKind yes{wxID_YES, u"&Ja"};
    constexpr ButtonKind no{wxID_NO, u"&Nee"};
    constexpr ButtonKind cancel{wxID_CANCEL, u"&Annuleren"};
    switch (buttons) {
        case Buttons::OkCancel:
            return {ok, cancel};
        case Buttons::RetryCancel:
            return {retry, cancel};
        case Buttons::YesNo:
            return {yes, no};
        case Buttons::YesNoCancel:
            return {yes, no, cancel};
        case Buttons::Ok:
            break;
    }
    return {ok};
}

wxArtID ArtOf(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return wxART_INFORMATION;
        case Icon::Question:
            return wxART_QUESTION;
        case Icon::Critical:
            return wxART_ERROR;
        case Icon::None:
            break;
    }
    return {};
}

// How many characters of a line stay on it.
size_t LengthThatFits(const wxWindow& window, const wxString& line, int width) {
    size_t fitting = line.length();
    while (fitting > 1 && window.GetTextExtent(line.Left(fitting)).x > width) --fitting;
    if (fitting == line.length()) return fitting;
    for (const char* const ends : {" ", "\\/"}) {
        // A blank may stand outside.
        const size_t reach = *ends == ' ' ? fitting : fitting - 1;
        const size_t last = line.find_last_of(ends, reach);
        if (last != wxString::npos && last > 0) return last + 1;
    }
    return fitting;
}

}  // namespace

wxString WrappedText(const wxWindow& window, const wxString& text, int width) {
    wxString wrapped;
    for (wxString line : wxStringTokenize(text, "\n", wxTOKEN_RET_EMPTY_ALL)) {
        while (true) {
            const size_t length = LengthThatFits(window, line, width);
            wrapped += line.Left(length);
            line.erase(0, length);
            wrapped += '\n';
            if (line.empty()) break;
        }
    }
    if (!wrapped.empty()) wrapped.RemoveLast();
    return wrapped;
}

MessageDialog::MessageDialog(wxWindow* parent, TextView text, TextView title, Icon icon, Buttons buttons)
    : wxDialog(parent, wxID_ANY, ToWx(title)), message(ToWx(text)) {
    SetName("MessageDialog");
    if (parent == nullptr) SetIcons(ProgramIcons());
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(MakeMessage(icon), wxSizerFlags(1).Expand().Border(wxALL, FromDIP(2 * wideSpace)));
    column->Add(MakeButtons(buttons), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(wideSpace)));
    column->SetMinSize(FromDIP(wxSize(shortestLine, 0)));
    SetSizerAndFit(column);
    CentreOnParent();
    Bind(wxEVT_BUTTON, [this](wxCommandEvent& event) { EndModal(event.GetId()); });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        const bool isCopy = event.GetModifiers() == wxMOD_CONTROL && event.GetKeyCode() == 'C';
        if (isCopy) {
            CopyMessage();
        } else {
            event.Skip();
        }
    });
}

wxSizer* MessageDialog::MakeMessage(Icon icon) {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    if (const wxArtID art = ArtOf(icon); !art.empty()) {
        auto* const picture =
            new wxStaticBitmap(this, wxID_ANY, wxArtProvider::GetBitmapBundle(art, wxART_MESSAGE_BOX));
        picture->SetName("imgIcon");
        row->Add(picture, wxSizerFlags().Top().Border(wxRIGHT, FromDIP(2 * wideSpace)));
    }
    wxStaticText* const text = MakeLabel(this, {}, "lblMessage");
    text->SetLabelText(WrappedText(*this, message, FromDIP(longestLine)));
    row->Add(text, wxSizerFlags(1).CenterVertical());
    return row;
}

wxSizer* MessageDialog::MakeButtons(Buttons buttons) {
    const std::vector<ButtonKind> kinds = KindsOf(buttons);
    auto* const row = new wxStdDialogButtonSizer();
    for (const auto& [id, caption] : kinds) row->AddButton(new wxButton(this, id, ToWx(caption)));
    row->Realize();
    SetEscapeId(kinds.back().id);
    auto* const usual = dynamic_cast<wxButton*>(FindWindow(kinds.front().id));
    usual->SetDefault();
    usual->SetFocus();
    return row;
}

void MessageDialog::CopyMessage() const {
    const wxClipboardLocker clipboard;
    if (!!clipboard) wxTheClipboard->SetData(new wxTextDataObject(message));
}

}  // namespace korvande
