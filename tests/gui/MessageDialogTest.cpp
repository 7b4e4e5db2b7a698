#include "ui/MessageDialog.h"

#include <gmock/gmock.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/statbmp.h>
#include <wx/utils.h>

#include <algorithm>
#include <set>

#include "tests/gui/ScreenPixels.h"
#include "tests/gui/WindowTest.h"

namespace korvande::testing {

namespace {

using ::testing::ElementsAre;

// Message boxes shown in earnest, as the window shows them.
class MessageDialogTest : public WindowTest {
 protected:
    MessageDialogTest() { Start(); }

    // Shows a message box, lets a person act once it is there, and gives the answer.
    Answer Show(const MessageBox& box, const std::function<void(MessageDialog&)>& act) {
        bool hasActed = false;
        dialogs.onShownMessage = [&] {
            auto* const dialog = dynamic_cast<MessageDialog*>(wxWindow::FindWindowByName("MessageDialog"));
            if (hasActed || dialog == nullptr || !dialog->IsShownOnScreen()) return;
            hasActed = true;
            // The keyboard goes to the window under the mouse.
            simulator.MouseMove(dialog->GetScreenPosition() + wxPoint(3, dialog->GetSize().y - 3));
            LetEventsRun();
            act(*dialog);
        };
        return screen.ShowMessage(box);
    }

    static std::vector<std::uint32_t> PictureOf(const wxWindow& control) {
        std::vector<std::uint32_t> pixels;
        const wxRect place = control.GetScreenRect();
        WaitUntil("the picture", [&] {
            pixels = PixelsOnScreen({place.x, place.y, place.width, place.height});
            return std::set(pixels.begin(), pixels.end()).size() > 4;
        });
        return pixels;
    }

    void Press(int key, const Buttons buttons, Answer answer) {
        EXPECT_EQ(Show({u"Doorgaan?", u"", Icon::None, buttons}, [&](MessageDialog&) { Key(key); }), answer);
    }
};

TEST_F(MessageDialogTest, EachIconIsOnTheScreenAndUnlikeTheOthers) {
    std::vector<std::vector<std::uint32_t>> pictures;
    for (const Icon icon : {Icon::Information, Icon::Question, Icon::Critical}) {
        Show({u"Let op", u"", icon, Buttons::Ok}, [&](MessageDialog& dialog) {
            pictures.push_back(PictureOf(ControlNamed<wxStaticBitmap>(dialog, "imgIcon")));
            Key(WXK_RETURN);
        });
    }
    ASSERT_EQ(pictures.size(), 3U);
    for (const auto& picture : pictures) {
        ASSERT_FALSE(picture.empty());
        const auto background = std::count(picture.begin(), picture.end(), picture.front());
        EXPECT_GT(static_cast<std::size_t>(background), picture.size() / 20);
        EXPECT_LT(static_cast<std::size_t>(background), picture.size() * 9 / 10);
    }
    EXPECT_NE(pictures[0], pictures[1]);
    EXPECT_NE(pictures[0], pictures[2]);
    EXPECT_NE(pictures[1], pictures[2]);
}

TEST_F(MessageDialogTest, AMessageWithoutIconHasNone) {
    Show({u"Verwerking gereed", u"", Icon::None, Buttons::Ok}, [&](MessageDialog& dialog) {
        EXPECT_EQ(wxWindow::FindWindowByName("imgIcon", &dialog), nullptr);
        Key(WXK_RETURN);
    });
    EXPECT_THAT(dialogs.titles, ElementsAre("KORVANDE"));
}

TEST_F(MessageDialogTest, TheButtonsAreDutch) {
    for (const Buttons buttons :
         {Buttons::Ok, Buttons::OkCancel, Buttons::RetryCancel, Buttons::YesNo, Buttons::YesNoCancel}) {
        screen.ShowMessage({u"Doorgaan?", u"", Icon::None, buttons});
    }
    EXPECT_THAT(dialogs.labels, ElementsAre("OK", "OK Annuleren", "Opnieuw Annuleren", "Ja Nee", "Ja Nee Annuleren"));
}

TEST_F(MessageDialogTest, EnterIsTheFirstAnswer) {
    Press(WXK_RETURN, Buttons::Ok, Answer::Ok);
    Press(WXK_RETURN, Buttons::OkCancel, Answer::Ok);
    Press(WXK_RETURN, Buttons::RetryCancel, Answer::Retry);
    Press(WXK_RETURN, Buttons::YesNo, Answer::Yes);
    Press(WXK_RETURN, Buttons::YesNoCancel, Answer::Yes);
}

TEST_F(MessageDialogTest, EscapeIsTheAnswerThatDoesNothing) {
    Press(WXK_ESCAPE, Buttons::Ok, Answer::Ok);
    Press(WXK_ESCAPE, Buttons::OkCancel, Answer::Cancel);
    Press(WXK_ESCAPE, Buttons::RetryCancel, Answer::Cancel);
    Press(WXK_ESCAPE, Buttons::YesNo, Answer::No);
    Press(WXK_ESCAPE, Buttons::YesNoCancel, Answer::Cancel);
}

TEST_F(MessageDialogTest, TheClosingOfAQuestionWithYesAndNoIsNo) {
    const MessageBox box{u"Vervangen?", u"", Icon::Question, Buttons::YesNo};
    EXPECT_EQ(Show(box, [](MessageDialog& dialog) { dialog.Close(); }), Answer::No);
}

TEST_F(MessageDialogTest, NoBesideCancelIsNo) {
    const MessageBox box{u"Vervangen?", u"", Icon::Question, Buttons::YesNoCancel};
    const auto press = [this](MessageDialog& dialog) {
        const wxRect button = dialog.FindWindow(wxID_NO)->GetScreenRect();
        simulator.MouseMove(button.GetPosition() + button.GetSize() / 2);
        LetEventsRun();
        simulator.MouseClick();
    };
    EXPECT_EQ(Show(box, press), Answer::No);
}

TEST_F(MessageDialogTest, ALongNameIsBrokenBetweenItsFoldersAndNothingOfItIsLost) {
    Text path = u"C:";
    for (int i = 0; i < 20; ++i) path += u"\\Gemeente Molveren & Zoon";
    Show({Concat(u"Bestand:\n", path), u"", Icon::None, Buttons::Ok}, [&](MessageDialog& dialog) {
        EXPECT_LT(dialog.GetSize().x, dialog.FromDIP(600));
        wxString shown = ControlNamed<wxStaticText>(dialog, "lblMessage").GetLabelText();
        EXPECT_GT(shown.Freq('\n'), 5U);
        shown.Replace("\n", "");
        EXPECT_EQ(FromWx(shown), Concat(u"Bestand:", path));
        EXPECT_EQ(FromWx(dialog.Message()), Concat(u"Bestand:\n", path));
        Key(WXK_RETURN);
    });
}

TEST_F(MessageDialogTest, AWordWiderThanTheBoxIsBrokenToo) {
    const wxString word('W', 200);
    wxString broken = WrappedText(*window, "a\n" + word + "\n\nb", 300);
    EXPECT_TRUE(broken.StartsWith("a\nW"));
    EXPECT_TRUE(broken.EndsWith("W\n\nb"));
    EXPECT_LE(window->GetTextExtent(broken.AfterFirst('\n').BeforeFirst('\n')).x, 300);
    broken.Replace("\n", "");
    EXPECT_EQ(broken, "a" + word + "b");
}

TEST_F(MessageDialogTest, ControlCCopiesTheMessage) {
    Show({u"Foutcode: 61\nSchijf vol", u"", Icon::Critical, Buttons::Ok}, [&](MessageDialog&) {
        simulator.Char('C', wxMOD_CONTROL);
        LetEventsRun();
        Key(WXK_RETURN);
    });
    wxTextDataObject copied;
    ASSERT_TRUE(wxTheClipboard->Open());
    wxTheClipboard->GetData(copied);
    wxTheClipboard->Close();
    EXPECT_EQ(copied.GetText(), "Foutcode: 61\nSchijf vol");
}

}  // namespace

}  // namespace korvande::testing
