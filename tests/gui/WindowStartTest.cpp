#include <gmock/gmock.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/dynlib.h>
#include <wx/grid.h>
#include <wx/scrolwin.h>

#include "app/TabPlacement.h"
#include "tests/gui/WindowTest.h"

namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class WindowStartTest : public WindowTest {
 protected:
    std::string Modes() const {
        std::string modes;
        for (const wxString& mode : Find<wxChoice>("cboXlateMode").GetStrings()) modes += mode.utf8_string() + "|";
        return modes;
    }

    // Where a control stands on its page, wherever that is scrolled to.
    wxPoint PlaceOf(const char* name) const {
        const auto& control = Find<wxWindow>(name);
        const auto& page = dynamic_cast<wxScrolledWindow&>(*control.GetGrandParent());
        return page.CalcUnscrolledPosition(page.ScreenToClient(control.GetScreenPosition()));
    }

    // Far to the left of any page.
    void ExpectOutOfSight() const {
        for (const char* const name : {"cmdStart", "cboXlateMode"}) {
            EXPECT_NEAR(Find<wxWindow>(name).GetPosition().x, window->FromDIP(-9999) / 15.0, 0.6) << name;
        }
    }

    // Makes the window too small for its first page; that page.
    wxScrolledWindow& ShrinkTo(wxSize size) const {
        window->SetSize(window->FromDIP(size));
        auto& page = dynamic_cast<wxScrolledWindow&>(*Find<wxNotebook>("tabs").GetPage(tabGeneral));
        WaitUntil("a small page", [&] { return page.GetClientSize().y + 50 < page.GetVirtualSize().y; });
        return page;
    }

    // In twips, to a pixel.
    void ExpectAt(const char* name, int left, int top) const {
        const wxPoint place = PlaceOf(name);
        EXPECT_NEAR(place.x, window->FromDIP(left) / 15.0, 0.6) << name;
        EXPECT_NEAR(place.y, window->FromDIP(top) / 15.0, 0.6) << name;
    }
};

TEST_F(WindowStartTest, WithoutACommandLineEverythingIsOffered) {
    WriteProject("EEN.NST", "EENDORP");
    Start();
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Modes(), "IDEX >> NEN1878|IDEX >> SUF2|NEN1878 >> IDEX|SUF2 >> IDEX|");
    EXPECT_TRUE(Find<wxWindow>("framStandalone").IsShownOnScreen());
    EXPECT_EQ(TextOf("txtProject"), "EEN");
    EXPECT_EQ(TextOf("txtCity"), "EENDORP");
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(WindowStartTest, TheWindowHasItsSixTabs) {
    Start();
    const auto& tabs = Find<wxNotebook>("tabs");
    std::string captions;
    for (size_t i = 0; i < tabs.GetPageCount(); ++i) captions += tabs.GetPageText(i).utf8_string() + "|";
    EXPECT_EQ(captions, "Algemeen|Instellingen|Puntobjecten|Lijnobjecten|Tekstobjecten|Informatie|");
    EXPECT_EQ(tabs.GetSelection(), 0);
}

TEST_F(WindowStartTest, TheVersionStandsInTheHeaderAndOnTheLastTab) {
    Start();
    EXPECT_EQ(Find<wxStaticText>("lblVersion").GetLabelText(), "Versie:  8.01.064");
    EXPECT_EQ(Find<wxStaticText>("lblHeaderVersion").GetLabelText(), "Versie:  8.01.064");
}

TEST_F(WindowStartTest, TheStartButtonAndTheModeListMoveAlongWithTheTabs) {
    Start();
    ExpectAt("cmdStart", 8040, 5040);
    ExpectAt("cboXlateMode", 4320, 5280);
    EXPECT_TRUE(Find<wxWindow>("cmdStart").IsShownOnScreen());
    SelectTab(tabSettings);
    ExpectAt("cmdStart", 5000, 480);
    ExpectAt("cboXlateMode", 2040, 720);
    EXPECT_TRUE(Find<wxWindow>("cmdStart").IsShownOnScreen());
    for (const int tab : {tabPoints, tabLines, tabTexts, tabInformation}) {
        SelectTab(tab);
        ExpectOutOfSight();
    }
    SelectTab(tabGeneral);
    ExpectAt("cmdStart", 8040, 5040);
    EXPECT_TRUE(Find<wxWindow>("cmdStart").IsShownOnScreen());
}

TEST_F(WindowStartTest, TheStartRowScrollsWithItsPage) {
    Start();
    wxScrolledWindow& page = ShrinkTo({500, 350});
    page.Scroll(page.GetScrollRange(wxHORIZONTAL), page.GetScrollRange(wxVERTICAL));
    LetEventsRun();
    ASSERT_GT(page.GetViewStart().y, 0);
    window->ShowForm();
    LetEventsRun();
    ExpectAt("cmdStart", 8040, 5040);
    ExpectAt("cboXlateMode", 4320, 5280);
    SelectTab(tabInformation);
    SelectTab(tabGeneral);
    ExpectAt("cmdStart", 8040, 5040);
}

TEST_F(WindowStartTest, TheTabKeyGoesFromTheFilesAndTheLogBookToTheStartAndThenToTheOwner) {
    Start();
    const auto& page = *Find<wxNotebook>("tabs").GetPage(tabGeneral);
    std::string order;
    for (const wxWindow* const child : page.GetChildren()) order += child->GetName().utf8_string() + " ";
    EXPECT_EQ(order, "framProject framStandalone framReport framStart framOwner ");
    EXPECT_EQ(Find<wxWindow>("cmdStart").GetParent()->GetName(), "framStart");
    Find<wxWindow>("optReportScreen").SetFocus();
    LetEventsRun();
    // The lists of the viewers and of the modes, whose focus the toolkit keeps to itself.
    Key(WXK_TAB);
    Key(WXK_TAB);
    Key(WXK_TAB);
    EXPECT_TRUE(Find<wxWindow>("cmdStart").HasFocus());
    Key(WXK_TAB);
    EXPECT_TRUE(Find<wxWindow>("cmdCheck").HasFocus());
    Key(WXK_TAB);
    EXPECT_TRUE(Find<wxWindow>("cmdPreview").HasFocus());
    Key(WXK_TAB);
    EXPECT_TRUE(Find<wxWindow>("txtNameLong").HasFocus());
}

TEST_F(WindowStartTest, TheMouseWheelOverTheModesScrollsThePageAndChoosesNothing) {
    Start();
    const wxScrolledWindow& page = ShrinkTo({700, 450});
    auto& modes = Find<wxChoice>("cboXlateMode");
    Choose("cboXlateMode", 1);
    wxMouseEvent event(wxEVT_MOUSEWHEEL);
    event.SetEventObject(&modes);
    event.m_wheelRotation = -120;
    event.m_wheelDelta = 120;
    event.m_linesPerAction = 3;
    EXPECT_TRUE(modes.HandleWindowEvent(event));
    LetEventsRun();
    EXPECT_EQ(modes.GetSelection(), 1);
    EXPECT_GT(page.GetViewStart().y, 0);
}

TEST_F(WindowStartTest, AnImportOfTheCommandLineRunsAndEndsTheProgram) {
    WriteProject("EEN.NST");
    folder.Write("MIJN KAART.SFN", Nen1878());
    Start(u"1\"" + (folder / "Mijn Kaart.sfn") + u"\" \"" + (folder / "Kaart.idx") + u"\"");
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Modes(), "Import NEN1878|");
    EXPECT_FALSE(Find<wxWindow>("framStandalone").IsShown());
    EXPECT_FALSE(Find<wxWindow>("txtFileIDEX").IsShown());
    SelectTab(tabSettings);
    ExpectOutOfSight();
    SelectTab(tabGeneral);
    SelectReport(form.project.options, &Options::optReportNone);
    Press("cmdStart");
    WaitUntil("the end of the window", [this] { return !IsOpen(); });
    EXPECT_THAT(dialogs.messages, ElementsAre());
    EXPECT_TRUE(FileIsThere(folder / "KAART.IDX"));
}

TEST_F(WindowStartTest, AnExportOfTheCommandLineCanBeRedirectedToTheOtherFormat) {
    WriteProject("EEN.NST");
    folder.Write("KAART.IDX", Drawing());
    Start(u"2" + (folder / "Kaart.sf2") + u" " + (folder / "Kaart.idx"));
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Modes(), "Export SUF2|Export NEN1878|");
    Choose("cboXlateMode", 1);
    SelectReport(form.project.options, &Options::optReportNone);
    Press("cmdStart");
    WaitUntil("the end of the window", [this] { return !IsOpen(); });
    EXPECT_THAT(FileBytes(folder / "KAART.SF2"), ::testing::StartsWith("010NEN1878"));
}

TEST_F(WindowStartTest, ADirectionThatIsNoDigitOffersTheExportsAndTranslatesNothing) {
    WriteProject("EEN.NST");
    Start(u"X" + (folder / "Kaart.sfn"));
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Modes(), "Export NEN1878|Export SUF2|");
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages, ElementsAre("Onbekende vertaalrichting."));
    WaitUntil("the end of the window", [this] { return !IsOpen(); });
}

TEST_F(WindowStartTest, TheSwitchRegistersWithLiscadAndEndsTheProgram) {
    Start(u"/LISCAD", true);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(dialogs.messages.size(), 1U);
    EXPECT_THAT(dialogs.LastMessage(), HasSubstr("Geslaagd voor versies: 5.1"));
    EXPECT_EQ(dialogs.titles[0], "SUF2/NEN1878 Vertaler");
    EXPECT_THAT(TestRegistry::Value(u"SOFTWARE\\LISTECH\\LISCAD\\5.1\\SEE\\Data Conversions\\Import", u"MenuItem0"),
                ::testing::StartsWith("2|SUF2|*.sf2|"));
}

TEST_F(WindowStartTest, WithoutLiscadAndWithoutAFolderForTheProjectsTheProgramEnds) {
    std::filesystem::remove(folder.Path() + "/registry.reg");
    dialogs.buttons = {wxID_OK, wxID_NO};
    Start();
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(dialogs.messages, ElementsAre("Liscad niet gevonden; afbreken", HasSubstr("Nu een map kiezen?")));
    EXPECT_THAT(dialogs.labels, ElementsAre("OK", "Ja Nee"));
}

TEST_F(WindowStartTest, AProjectFolderThatIsNotThereIsToldAndTheWindowOpens) {
    std::filesystem::remove_all(projects);
    Start();
    ASSERT_TRUE(IsOpen());
    ASSERT_FALSE(dialogs.messages.empty());
    EXPECT_THAT(dialogs.messages[0], HasSubstr("Kon bestand: '" + projects + "/Leeg Project.nst' niet opslaan;\n"));
    EXPECT_EQ(dialogs.labels[0], "Opnieuw Annuleren");
}

TEST_F(WindowStartTest, ABrokenControlTableIsLoadedAsFarAsItGoes) {
    folder.Write("projecten/stuk.nst",
                 std::string("\xFF\xFE\0[NEN1878]\r\nTown\r\n=\r\n[NEN1878]\r\nTown = HEELDORP\r\n"
                             "[Points]\r\nA = B\r\n[Export]\r\nIncludeZ = JA\r\n",
                             93));
    Start();
    ASSERT_TRUE(IsOpen());
    EXPECT_THAT(dialogs.messages,
                ElementsAre("De controletabel lijkt afgebroken: er is geen [End]:\n" + projects + "/stuk.nst"));
    EXPECT_EQ(TextOf("txtCity"), "HEELDORP");
    EXPECT_EQ(Find<wxGrid>("gridPoints").GetNumberRows(), 2);
}

TEST_F(WindowStartTest, TheTimerBringsTheWindowToTheFrontOnce) {
    // Before any event runs, the timer's among them.
    window = OpenMainWindow(screen, form, {});
    EXPECT_TRUE(form.Timer1Enabled);
    WaitUntil("the timer", [this] { return !form.Timer1Enabled; });
    EXPECT_FALSE(window->HasFlag(wxSTAY_ON_TOP));
}

TEST_F(WindowStartTest, ClosingSavesTheProjectAndTheSettings) {
    WriteProject("EEN.NST");
    Start();
    Type("txtCity", "NIEUWSTAD");
    form.project.options.chkSelectXY = true;
    window->ShowForm();
    Type("txtMinX", "120");
    Close();
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(ProjectBytes("EEN.NST"), HasSubstr("Town = NIEUWSTAD\r\n"));
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"CurrProject"), "EEN.NST");
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"MinX"), "120");
}

TEST_F(WindowStartTest, HowFilesAreReadIsTheUsersOwnWhateverTheProject) {
    WriteProject("EEN.NST");
    WriteProject("TWEE.NST");
    Start();
    SelectTab(tabSettings);
    Choose("cboCharacterSet", 2);
    Click("chkWithoutZeroes");
    Choose("File1", 1);
    EXPECT_EQ(Find<wxChoice>("cboCharacterSet").GetSelection(), 2);
    EXPECT_TRUE(form.project.options.chkWithoutZeroes);
    Close();
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"CharacterSet"), "CP850 (DOS)");
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"WithoutZeroes"), "1");
    WaitUntil("the end of the window", [this] { return !IsOpen(); });
    form.project.options = {};
    Start();
    EXPECT_EQ(Find<wxChoice>("cboCharacterSet").GetSelection(), 2);
    EXPECT_TRUE(Find<wxCheckBox>("chkWithoutZeroes").GetValue());
}

// Else every run would repaint the form a dozen times before it begins.
TEST_F(WindowStartTest, ControlsChangeTheirLookAtOnceInsteadOfFading) {
    Start();
    const wxDynamicLibrary gtk("libgtk-3.so.0", wxDL_VERBATIM);
    using GetSettings = void* (*)();
    using GetProperties = void (*)(void* object, const char* name, ...);
    const wxDYNLIB_FUNCTION(GetSettings, gtk_settings_get_default, gtk);
    const wxDYNLIB_FUNCTION(GetProperties, g_object_get, gtk);
    int fades = -1;
    pfng_object_get(pfngtk_settings_get_default(), "gtk-enable-animations", &fades, nullptr);
    EXPECT_EQ(fades, 0);
}

}  // namespace

}  // namespace korvande::testing
