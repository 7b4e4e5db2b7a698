#pragma once

#include <wx/stopwatch.h>

#include <stdexcept>

#include "tests/gui/TranslationFixture.h"
#include "ui/PreviewWindow.h"

namespace korvande::testing {

// The window with a preview of a drawing in a folder.
class PreviewFixture : public TranslationFixture {
 protected:
    ~PreviewFixture() override {
        if (wxWindow* const preview = wxWindow::FindWindowByName("frmPreview")) preview->Destroy();
        LetEventsRun();
    }

    static PreviewWindow* Preview() { return dynamic_cast<PreviewWindow*>(wxWindow::FindWindowByName("frmPreview")); }
    static DrawingView& View() { return Preview()->View(); }
    static std::string ObjectText() {
        return ToUtf8(FromWx(ControlNamed<wxTextCtrl>(*Preview(), "txtObject").GetValue()));
    }
    static std::string StatusText(int field) { return ToUtf8(FromWx(Preview()->GetStatusBar()->GetStatusText(field))); }
    static void PressHere(const char* name) {
        auto& button = ControlNamed<wxButton>(*Preview(), name);
        wxCommandEvent event(wxEVT_BUTTON, button.GetId());
        event.SetEventObject(&button);
        button.ProcessWindowEvent(event);
    }

    // A wall from (0, 0) to (40, 0) in metres, a known point in the middle and an unknown one 10 m above it.
    Text Street() const {
        return folder.Write("klein.idx",
                            WithCrLf("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
                                     "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
                                     "1,\"P1\",0,0,1.5,\"HULP\",\"\",0;\n2,\"P2\",40,0,1.5,\"HULP\",\"\",0;\n"
                                     "3,\"P3\",20,0,1.5,\"MV\",\"\",0;\n4,\"P4\",20,10,1.5,\"RAAR\",\"\",0;\n"
                                     "END POINTS\nLINES (LineNo,Code,Flags1)\n1,\"MUUR\",0;\n"
                                     "EDGES (LineNo,StartPt,EndPt,LINETYPE)\n"
                                     "1,1,2,STRAIGHT;\nEND EDGES\nEND LINES\nEND DATABASE\n"));
    }
    void ShowPreview(const Text& name) {
        Type("txtFileIDEX", ToUtf8(name));
        Press("cmdPreview");
        WaitForDrawing();
    }
    // As a person who goes there: without a window manager, the system gives a new window the keyboard only when that
    // is on the screen, and to who asks for it since it was last given away, which the toolkit does by the time of the
    // mouse's last move.
    void FocusOn(wxWindow& control) {
        int moves = 0;
        WaitUntil("the keyboard", [&] {
            if (Preview()->IsActive() && control.HasFocus()) return true;
            simulator.MouseMove(Preview()->GetScreenRect().GetBottomLeft() + wxPoint(5 + ++moves % 2, -5));
            LetEventsRun();
            Preview()->Raise();
            control.SetFocus();
            return false;
        });
    }
    static void WaitForDrawing() {
        if (Preview() == nullptr) throw std::runtime_error("there is no preview");  // what follows would crash
        WaitUntil("the drawing", [] {
            return Preview()->IsShownOnScreen() && !Preview()->IsReading() && View().HasDrawing() && View().IsExact();
        });
        WaitUntilStill();
    }
    // A window manager gives a new window its frame and its place when it is already shown, and moves the drawing with
    // it: what is pointed at before that is somewhere else a moment later.
    static void WaitUntilStill() {
        constexpr long stillFor = 300;  // milliseconds
        wxRect place;
        wxStopWatch watch;
        WaitUntil("a window that stays where it is", [&] {
            const wxRect now = View().GetScreenRect();
            if (now != place) {
                place = now;
                watch.Start();
            }
            return watch.Time() >= stillFor;
        });
    }
};

}  // namespace korvande::testing
