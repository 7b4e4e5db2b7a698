#include <wx/grid.h>
#include <wx/utils.h>

#include <cstdlib>
#include <filesystem>

#include "app/TabPlacement.h"
#include "tests/gui/WindowTest.h"

// Makes the pictures of the documents, in the folder that KORVANDE_SCREENSHOTS names: the window as a surveyor sees it,
// on the sample project and the sample drawing.
namespace korvande::testing {

namespace {

class Screenshots : public WindowTest {
 protected:
    Screenshots() {
        for (const char* const name : {"voorbeeld.nst", "straat.idx"}) {
            const std::string source = std::string(KORVANDE_SOURCE_DIR "/samples/") + name;
            const std::string target = std::string(name) == "straat.idx" ? folder.Path() : projects;
            std::filesystem::copy(source, target + "/" + name);
        }
        for (const char* const name : {"Gemeente Molveren.nst", "Ontsluitingsweg.nst"}) {
            std::filesystem::copy(projects + "/voorbeeld.nst", projects + "/" + name);
        }
        TestRegistry::Set(u"Software\\TERAMUND\\KORVANDE", u"CurrProject", u"voorbeeld.nst");
        Start();
        Type("txtFileIDEX", "C:\\PROJECTEN\\MOLVEREN\\STRAAT.IDX");
        Type("txtFileSUFNEN", "C:\\PROJECTEN\\MOLVEREN\\STRAAT.SFN");
    }

    // A picture of a window, as the screen shows it; another program looks, for this one remembers what it saw.
    static void Take(const wxWindow& shown, const std::string& name) {
        for (int i = 0; i < 20; ++i) {
            LetEventsRun();
            wxMilliSleep(10);
        }
        const wxRect place = shown.GetScreenRect();
        const char* const pictures = std::getenv("KORVANDE_SCREENSHOTS");
        ASSERT_NE(pictures, nullptr);
        const wxString command =
            wxString::Format("import -window root -crop %dx%d%+d%+d +repage \"%s/%s.png\"", place.width, place.height,
                             place.x, place.y, wxString::FromUTF8(pictures), wxString::FromUTF8(name));
        EXPECT_EQ(wxExecute(command, wxEXEC_SYNC), 0) << command.utf8_string();
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
    for (const int column : {1, 2}) {
        const wxRect cell = grid.CellToRect(6, column);
        DoubleClick(grid.GetGridWindow()->ClientToScreen(cell.GetPosition() + cell.GetSize() / 2));
        Take(*window, "cel" + std::to_string(column));
    }
    Click("cboEditPointCell");
    Take(*window, "cel3");
}

}  // namespace

}  // namespace korvande::testing
