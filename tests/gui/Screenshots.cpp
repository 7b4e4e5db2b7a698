#include <wx/app.h>
#include <wx/button.h>
#include <wx/dnd.h>
#include <wx/gauge.h>
#include <wx/grid.h>
#include <wx/utils.h>

#include <cstdlib>
#include <filesystem>

#include "app/TabPlacement.h"
#include "tests/gui/WindowTest.h"
#include "ui/PreviewWindow.h"

// Makes the pictures of the documents, in the folder that KORVANDE_SCREENSHOTS names: the window as a surveyor sees it,
// on the sample project and the sample drawing.
namespace korvande::testing {

namespace {

class Screenshots : public WindowTest {
 protected:
    Screenshots() {
        const std::string samples = KORVANDE_SOURCE_DIR "/samples/";
        std::filesystem::create_directory(folder.Path() + "/Molveren");
        std::filesystem::copy(samples + "straat.idx", folder.Path() + "/Molveren/Dorpsstraat.idx");
        for (const char* const name : {"voorbeeld.nst", "Gemeente Molveren.nst", "Ontsluitingsweg.nst"}) {
            std::filesystem::copy(samples + "voorbeeld.nst", projects + "/" + name);
        }
        TestRegistry::Set(u"Software\\TERAMUND\\KORVANDE", u"CurrProject", u"voorbeeld.nst");
        TestRegistry::Set(u"SOFTWARE\\LISTECH\\LISCAD\\5.1\\SEE", u"UserPath", u"C:\\projecten");
        Start();
        Type("txtFileIDEX", "C:\\Molveren\\Dorpsstraat.idx");
        Type("txtFileSUFNEN", "C:\\Molveren\\Dorpsstraat.sfn");
    }

    // A picture of a window, as the screen shows it; another program looks, for this one remembers what it saw.
    static void Take(const wxWindow& shown, const std::string& name) {
        for (int i = 0; i < 30; ++i) {
            LetEventsRun();
            wxMilliSleep(10);
        }
        const wxRect place = shown.GetScreenRect();
        const char* const pictures = std::getenv("KORVANDE_SCREENSHOTS");
        ASSERT_NE(pictures, nullptr);
        const wxString command =
            wxString::Format("import -window root -crop %dx%d%+d%+d +repage \"%s/%s.png\"", place.width, place.height,
                             place.x, place.y, wxString::FromUTF8(pictures), wxString::FromUTF8(name));
        EXPECT_EQ(wxExecute(command, wxEXEC_SYNC | wxEXEC_NOEVENTS), 0) << command.utf8_string();
    }

    // A window that stands beside the main one, which a name finds.
    static void TakeBeside(const char* window, const std::string& name) {
        wxWindow* const shown = wxWindow::FindWindowByName(window);
        ASSERT_NE(shown, nullptr) << window;
        WaitUntil("the window", [shown] { return shown->IsShownOnScreen(); });
        Take(*shown, name);
        shown->Destroy();
    }

    // Translates what stands in the boxes.
    void Translate(bool Options::*report) {
        SelectReport(form.project.options, report);
        window->ShowForm();
        Press("cmdStart");
    }

    // The preview, with an exact picture of its drawing.
    static PreviewWindow& Preview() {
        auto* const preview = dynamic_cast<PreviewWindow*>(wxWindow::FindWindowByName("frmPreview"));
        WaitUntil("the drawing", [preview] {
            return preview->IsShownOnScreen() && !preview->IsReading() && preview->View().IsExact();
        });
        return *preview;
    }

    // A drawing of as many points as take a while.
    Text LargeDrawing() const {
        std::string text =
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\nPOINTS "
            "(PointNo,PointID,East,North,Elevation,Code,Description,"
            "SymDir)\n";
        for (int i = 1; i <= 400000; ++i) {
            const std::string number = std::to_string(i);
            text.append(number).append(",\"P").append(number).append("\",121000.5,487000.25,1.5,\"BMK\",\"\",0;\n");
        }
        return folder.Write("Molveren/Dorpsstraat.idx", WithCrLf(text + "END POINTS\nEND DATABASE\n"));
    }

    EnvironmentValue drive{"KORVANDE_DRIVE_C", folder.Path()};
};

TEST_F(Screenshots, Tabs) {
    const char* const names[] = {"algemeen",     "instellingen",  "puntobjecten",
                                 "lijnobjecten", "tekstobjecten", "informatie"};
    for (int tab = tabGeneral; tab <= tabInformation; ++tab) {
        SelectTab(tab);
        Take(*window, names[tab]);
    }
}

TEST_F(Screenshots, Editors) {
    SelectTab(tabPoints);
    auto& grid = Find<wxGrid>("gridPoints");
    const wxRect cell = grid.CellToRect(6, 2);
    DoubleClick(grid.GetGridWindow()->ClientToScreen(cell.GetPosition() + cell.GetSize() / 2));
    Take(*window, "codetabel-wijzigen");
}

TEST_F(Screenshots, ProjectDialog) {
    dialogs.onDialog = [this](wxDialog& dialog) {
        Keys("proef");
        Take(dialog, "nieuw-project");
        Key(WXK_ESCAPE);
    };
    Press("cmdNewJob");
}

TEST_F(Screenshots, Preview) {
    Press("cmdPreview");
    Take(Preview(), "voorbeeld");
}

TEST_F(Screenshots, PreviewOfACrossing) {
    std::filesystem::copy(KORVANDE_SOURCE_DIR "/samples/kruispunt.sfn", folder.Path() + "/Molveren/Kruispunt.sfn");
    Type("txtFileSUFNEN", "C:\\Molveren\\Kruispunt.sfn");
    Choose("cboXlateMode", 2);
    Press("cmdPreview");
    Take(Preview(), "voorbeeld-kruispunt");
}

TEST_F(Screenshots, Comparison) {
    SelectReport(form.project.options, &Options::optReportNone);
    window->ShowForm();
    dialogs.buttons = {wxID_OK, wxID_OK};
    Press("cmdStart");
    Press("cmdCompare");
    PreviewWindow& preview = Preview();
    wxCommandEvent event(wxEVT_BUTTON, preview.FindWindow("cmdNextDifference")->GetId());
    preview.FindWindow("cmdNextDifference")->ProcessWindowEvent(event);
    Take(Preview(), "vergelijken");
}

TEST_F(Screenshots, RunningAndFinished) {
    LargeDrawing();
    wxTimer timer;
    bool isTaken = false;
    timer.Bind(wxEVT_TIMER, [&](wxTimerEvent&) {
        const auto& gauge = Find<wxGauge>("ProgressBar1");
        if (isTaken || gauge.GetValue() < gauge.GetRange() / 3) return;
        isTaken = true;
        Take(*window, "bezig");
    });
    timer.Start(20);
    bool isFinished = false;
    dialogs.onShownMessage = [&] {
        timer.Stop();
        if (isFinished) return;
        isFinished = true;
        Take(*window, "gereed");
        Key(WXK_RETURN);
    };
    SelectReport(form.project.options, &Options::optReportNone);
    window->ShowForm();
    Press("cmdStart");
    EXPECT_TRUE(isTaken);
    EXPECT_TRUE(isFinished);
}

TEST_F(Screenshots, OutcomeAndUnknownCodes) {
    Translate(&Options::optReportDisk);
    Take(*window, "uitkomst");
    dialogs.onDialog = [](wxDialog& dialog) {
        Take(dialog, "overzicht");
        dialog.EndModal(wxID_CANCEL);
    };
    Press("cmdShowOverview");
    dialogs.onDialog = [](wxDialog& dialog) {
        Take(dialog, "onbekende-codes");
        dialog.EndModal(wxID_CANCEL);
    };
    Press("cmdUnknownCodes");
}

TEST_F(Screenshots, LogBook) {
    Translate(&Options::optReportScreen);
    TakeBeside("frmLogBook", "logboek");
}

TEST_F(Screenshots, Check) {
    Press("cmdCheck");
    TakeBeside("frmCheck", "controleren");
}

TEST_F(Screenshots, Batch) {
    wxArrayString dropped;
    for (const char* const name : {"Dorpsstraat", "Kerkplein", "Ontsluitingsweg"}) {
        const std::string copy = folder.Path() + "/Molveren/" + name + ".idx";
        if (!std::filesystem::exists(copy)) std::filesystem::copy(KORVANDE_SOURCE_DIR "/samples/straat.idx", copy);
        dropped.push_back(wxString::Format("C:\\Molveren\\%s.idx", name));
    }
    dialogs.onDialog = [](wxDialog& dialog) {
        Take(dialog, "meer-bestanden");
        auto& translate = ControlNamed<wxButton>(dialog, "cmdTranslateBatch");
        wxCommandEvent event(wxEVT_BUTTON, translate.GetId());
        event.SetEventObject(&translate);
        translate.ProcessWindowEvent(event);
    };
    dynamic_cast<wxFileDropTarget&>(*window->GetDropTarget()).OnDropFiles(0, 0, dropped);
    wxTheApp->ProcessPendingEvents();
    TakeBeside("frmBatchOutcomes", "uitkomsten");
}

}  // namespace

}  // namespace korvande::testing
