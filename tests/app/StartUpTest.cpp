#include "app/StartUp.h"

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

constexpr TextView settingsKey = u"Software\\TERAMUND\\KORVANDE";

class StartUpTest : public AppTest {
 protected:
    AfterStartUp Start(TextView commandLine = {}) { return StartUp(form, {Text(commandLine), false}); }
    AfterStartUp StartForRegistration() { return StartUp(form, {u"/LISCAD", true}); }

    std::string Modes() const { return ModesOf(form); }
    static std::string ModesOf(const FormKORVANDE& started) {
        std::string texts;
        for (const Text& mode : started.cboXlateMode.items) texts += "[" + ToUtf8(mode) + "]";
        return texts;
    }
};

TEST_F(StartUpTest, WithoutLiscadAMessageTellsAndTheProgramEnds) {
    EXPECT_EQ(Start(), AfterStartUp::EndProgram);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Liscad niet gevonden; afbreken"});
    EXPECT_EQ(screen.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_FALSE(FileIsThere(folder / "registry.reg"));
}

TEST_F(StartUpTest, AKeyWithoutAVersionIsNoLiscad) {
    TestRegistry::AddKey(u"SOFTWARE\\LISTECH\\LISCAD\\Common");
    EXPECT_EQ(Start(), AfterStartUp::EndProgram);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Liscad niet gevonden; afbreken"});
}

TEST_F(StartUpTest, ALiscadWithoutAFolderForTheUserIsToldAndNothingIsTouched) {
    TestRegistry::AddKey(u"SOFTWARE\\LISTECH\\LISCAD\\5.1\\SEE");
    EXPECT_EQ(Start(), AfterStartUp::EndProgram);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"De gebruikersmap van Liscad 5.1 is niet gevonden; afbreken"});
    EXPECT_EQ(screen.boxes[0].icon, Icon::Critical);
}

TEST_F(StartUpTest, TheProjectFolderEndsInTheSystemsOwnSeparator) {
    InstallLiscad();
    TestRegistry::Set(u"SOFTWARE\\LISTECH\\LISCAD\\5.1\\SEE", u"UserPath", FromUtf8(projects + separator));
    Start();
    EXPECT_EQ(ToUtf8(form.ProjectFolder), projects + separator);
}

TEST_F(StartUpTest, TheInstallationIsRemembered) {
    InstallLiscad();
    EXPECT_EQ(Start(), AfterStartUp::OpenWindow);
    EXPECT_EQ(form.liscad.version, u"5.1");
    EXPECT_EQ(form.liscad.language, u"NL");
    EXPECT_EQ(form.liscad.dataPath, u"C:\\LISCAD\\Data\\");
    EXPECT_EQ(ToUtf8(form.ProjectFolder), projects + separator);
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(StartUpTest, ThePreferredVersionsFolderIsTaken) {
    InstallLiscad();
    TestRegistry::Set(u"SOFTWARE\\LISTECH\\LISCAD\\4.0\\SEE", u"UserPath", u"C:\\OUD");
    Start();
    EXPECT_EQ(form.liscad.version, u"5.1");
    EXPECT_EQ(ToUtf8(form.ProjectFolder), projects + separator);
}

TEST_F(StartUpTest, VersionAndDateAreShownAndTheSourceIsUnknown) {
    InstallLiscad();
    Start();
    EXPECT_EQ(ToUtf8(form.lblVersion), "Versie:  8.01.064");
    EXPECT_EQ(ToUtf8(options.txtAltDatum), "20261121");
    EXPECT_EQ(options.lstSource, 0);
}

TEST_F(StartUpTest, InteractiveUseOffersAllFourModes) {
    InstallLiscad();
    EXPECT_EQ(Start(u"   "), AfterStartUp::OpenWindow);
    EXPECT_TRUE(options.StartedInteractively);
    EXPECT_EQ(SelectedMode(form), (Mode{Direction::FromIdex, Variant::Nen1878}));
    EXPECT_EQ(Modes(), "[IDEX >> NEN1878][IDEX >> SUF2][NEN1878 >> IDEX][SUF2 >> IDEX]");
    EXPECT_EQ(form.cboXlateMode.index, 0);
}

TEST_F(StartUpTest, ACommandLineForAnImportFixesIt) {
    InstallLiscad();
    EXPECT_EQ(Start(u"1\"C:\\Mijn Kaart.SFN\" \"C:\\KAART.IDX\""), AfterStartUp::OpenWindow);
    EXPECT_EQ(form.conversion.direction, Direction::ToIdex);
    EXPECT_EQ(form.conversion.SufNenFileName, u"C:\\MIJN KAART.SFN");
    EXPECT_EQ(form.conversion.IdexFileName, u"C:\\KAART.IDX");
    EXPECT_EQ(form.conversion.LogFileName, u"C:\\MIJN KAART.LOG");
    EXPECT_EQ(SelectedMode(form), (Mode{Direction::ToIdex, Variant::Nen1878}));
    EXPECT_EQ(Modes(), "[Import NEN1878]");
    EXPECT_EQ(form.cboXlateMode.index, 0);
    EXPECT_FALSE(options.StartedInteractively);
}

TEST_F(StartUpTest, AnExportCanBeRedirectedToTheOtherFormat) {
    InstallLiscad();
    Start(u"2C:\\KAART.SF2 C:\\KAART.IDX");
    EXPECT_EQ(form.conversion.direction, Direction::FromIdex);
    EXPECT_EQ(form.conversion.SufNenFileName, u"C:\\KAART.SF2");
    EXPECT_EQ(form.conversion.IdexFileName, u"C:\\KAART.IDX");
    EXPECT_EQ(SelectedMode(form), (Mode{Direction::FromIdex, Variant::Suf2}));
    EXPECT_EQ(Modes(), "[Export SUF2][Export NEN1878]");
    form.cboXlateMode.index = 1;
    EXPECT_EQ(SelectedMode(form), (Mode{Direction::FromIdex, Variant::Nen1878}));
}

TEST_F(StartUpTest, ASmallExtensionTellsTheFormatToo) {
    InstallLiscad();
    Start(u"2c:\\kaart.nen c:\\kaart.idx");
    EXPECT_EQ(SelectedMode(form), (Mode{Direction::FromIdex, Variant::Nen1878}));
    EXPECT_EQ(Modes(), "[Export NEN1878][Export SUF2]");
}

TEST_F(StartUpTest, AnImportOfSuf2HasItsOneMode) {
    InstallLiscad();
    Start(u"1C:\\KAART.SF2 C:\\KAART.IDX");
    EXPECT_EQ(SelectedMode(form), (Mode{Direction::ToIdex, Variant::Suf2}));
    EXPECT_EQ(Modes(), "[Import SUF2]");
}

TEST_F(StartUpTest, AFirstCharacterThatIsNoDigitOffersTheExportEntriesAndRunsNothing) {
    InstallLiscad();
    Start(u"xKAART.SFN KAART.IDX");
    EXPECT_EQ(form.conversion.direction, Direction::None);
    EXPECT_EQ(Modes(), "[Export NEN1878][Export SUF2]");
    bool isUnloaded = false;
    form.unload = [&] { isUnloaded = true; };
    RunTranslation(form);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Onbekende vertaalrichting."});
    EXPECT_TRUE(isUnloaded);
}

TEST_F(StartUpTest, ACommandLinesNamesInCapitalsFindTheirFilesAndTheExportCanBeRedirected) {
    InstallLiscad();
    WriteProject("A.nst", "STAD A", "[Points]\nBOOM = S01, PUNT, BOOM\n");
    folder.Write("Invoer.idx", Drawing());
    Start(Concat(u"2", FromUtf8(folder.Path() + "/uit.sf2 " + folder.Path() + "/Invoer.idx")));
    ASSERT_EQ(form.cboXlateMode.items[1], u"Export NEN1878");
    form.cboXlateMode.index = 1;
    RunTranslation(form);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_TRUE(FileIsThere(folder / "UIT.LOG"));
    const std::string written = FileBytes(folder / "UIT.SF2");
    EXPECT_EQ(written.substr(0, 10), "010NEN1878");
    EXPECT_NE(written.find("03MS01 "), std::string::npos);
}

TEST_F(StartUpTest, AControlTableCannotChangeACommandLinesConversion) {
    InstallLiscad();
    WriteProject("A.nst", "STAD A", "STANDALONEALLOWED = YES\n");
    Start(u"2C:\\KAART.SF2 C:\\KAART.IDX");
    EXPECT_EQ(LoadedTown(), "STAD A");
    EXPECT_FALSE(options.StartedInteractively);
}

TEST_F(StartUpTest, AnInteractiveStartAfterOneByCommandLineIsInteractive) {
    InstallLiscad();
    Start(u"2C:\\KAART.SF2 C:\\KAART.IDX");
    UnloadForm(form);
    FormKORVANDE next(screen);
    StartUp(next, {});
    EXPECT_TRUE(next.project.options.StartedInteractively);
    EXPECT_EQ(ModesOf(next), "[IDEX >> NEN1878][IDEX >> SUF2][NEN1878 >> IDEX][SUF2 >> IDEX]");
}

TEST_F(StartUpTest, TheRegistrationIsMadeAndTheProgramEndsWithoutTouchingProjects) {
    InstallLiscad();
    folder.Write("projecten/oud.ini", "[End]\r\n");
    EXPECT_EQ(StartForRegistration(), AfterStartUp::EndProgram);
    EXPECT_EQ(screen.messages, std::vector<std::string>{
                                   "Aanmelding bij Liscad:\nGeslaagd voor versies: 5.1\nMislukt voor versies: geen"});
    EXPECT_NE(TestRegistry::Value(u"SOFTWARE\\LISTECH\\LISCAD\\5.1\\SEE\\Data Conversions\\Import", u"MenuItem2"),
              "(none)");
    EXPECT_EQ(ProjectNames(), "oud.ini");
    EXPECT_EQ(TestRegistry::Value(settingsKey, u"CurrProject"), "(none)");
}

TEST_F(StartUpTest, TheRegistrationNeedsNoUserFolder) {
    TestRegistry::AddKey(u"SOFTWARE\\LISTECH\\LISCAD\\5.1");
    EXPECT_EQ(StartForRegistration(), AfterStartUp::EndProgram);
    EXPECT_EQ(screen.messages, std::vector<std::string>{
                                   "Aanmelding bij Liscad:\nGeslaagd voor versies: geen\nMislukt voor versies: 5.1"});
}

TEST_F(StartUpTest, OldProjectFilesAreMigrated) {
    InstallLiscad();
    folder.Write("projecten/Dorp.ini", WithCrLf("[NEN1878]\nTown = DORP\n[End]\n"));
    folder.Write("projecten/STAD.OUD.INI", WithCrLf("[NEN1878]\nTown = STAD\n[End]\n"));
    folder.Write("projecten/Desktop.ini", "x");
    folder.Write("projecten/security.INI", "y");
    Start();
    EXPECT_EQ(ProjectNames(), "Desktop.ini Dorp.nst security.INI STAD.nst");
    EXPECT_EQ(form.CurrentProject, u"Dorp.nst");
    EXPECT_EQ(LoadedTown(), "DORP");
}

TEST_F(StartUpTest, MigrationNeverReplacesAFile) {
    WriteProject("A.NST", "NIEUW");
    folder.Write("projecten/a.ini", WithCrLf("[NEN1878]\nTown = OUD\n[End]\n"));
    MigrateProjectFiles(FromUtf8(projects + "\\"));
    EXPECT_EQ(ProjectNames(), "a.ini A.NST");
    EXPECT_NE(ProjectBytes("A.NST").find("NIEUW"), std::string::npos);
}

TEST_F(StartUpTest, OfTwoOldFilesForOneNameTheFirstIsMigrated) {
    folder.Write("projecten/A.1.ini", "1");
    folder.Write("projecten/A.2.ini", "2");
    MigrateProjectFiles(FromUtf8(projects + "\\"));
    EXPECT_EQ(ProjectNames(), "A.2.ini A.nst");
    EXPECT_EQ(ProjectBytes("A.nst"), "1");
}

TEST_F(StartUpTest, AnEmptyFolderGetsAnEmptyProjectWithTheDefaults) {
    InstallLiscad();
    Start();
    EXPECT_EQ(ProjectNames(), "Leeg Project.nst");
    const std::string table = ProjectBytes("Leeg Project.nst");
    for (const char* line :
         {"SUFNENFile = voorbeeld.sfn\r\n", "NameLong = VOSAIZO ZANDERVIK B.V.\r\n", "NameShort = VOSAIZO\r\n",
          "Street = POSTBUS\r\n", "Number = 418\r\n", "ZipCode = 7391KX\r\n", "Town = MOLVEREN\r\n",
          "Reporting = Screen\r\n", "AcceptUnknown = 1\r\n",
          "Unknown = STANDRD, Q00, LIJN, ONBEKEND LIJNOBJECT, 0, 0, 0\r\n"}) {
        EXPECT_NE(table.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(form.CurrentProject, u"Leeg Project.nst");
    EXPECT_EQ(ToUtf8(form.txtProject), "Leeg Project");
    EXPECT_EQ(form.File1.index, 0);
    EXPECT_EQ(ToUtf8(options.txtSource), "VOSAI");
}

TEST_F(StartUpTest, TheRememberedProjectIsLoadedWithoutRegardToCase) {
    InstallLiscad();
    TestRegistry::Set(settingsKey, u"CurrProject", u"DORP B.NST");
    WriteProject("Dorp A.nst", "A");
    WriteProject("Dorp B.nst", "B");
    Start();
    EXPECT_EQ(form.CurrentProject, u"Dorp B.nst");
    EXPECT_EQ(LoadedTown(), "B");
    EXPECT_EQ(form.File1.index, 1);
}

TEST_F(StartUpTest, WithoutTheRememberedProjectTheFirstOneIsLoaded) {
    InstallLiscad();
    TestRegistry::Set(settingsKey, u"CurrProject", u"weg.nst");
    WriteProject("Dorp A.nst", "A");
    WriteProject("Dorp B.nst", "B");
    Start();
    EXPECT_EQ(form.CurrentProject, u"Dorp A.nst");
    EXPECT_EQ(LoadedTown(), "A");
}

TEST_F(StartUpTest, TheSettingsAreReadAndHaveTheirDefaults) {
    InstallLiscad();
    Start();
    EXPECT_FALSE(options.chkSelectXY);
    EXPECT_EQ(options.txtMinX, u"0");
    EXPECT_EQ(options.txtMaxY, u"999999");
    TestRegistry::Set(settingsKey, u"ClipXY", u"1");
    TestRegistry::Set(settingsKey, u"MinX", u"121000");
    FormKORVANDE next(screen);
    StartUp(next, {});
    EXPECT_TRUE(next.project.options.chkSelectXY);
    EXPECT_EQ(next.project.options.txtMinX, u"121000");
}

TEST_F(StartUpTest, SettingsAndProjectSurviveARestart) {
    InstallLiscad();
    WriteProject("A.nst", "A");
    WriteProject("B.nst", "B");
    Start();
    PickProject(form, 1);
    options.txtCity = u"NIEUWSTAD";
    options.chkSelectXY = true;
    options.txtMaxX = u"122000";
    UnloadForm(form);
    FormKORVANDE next(screen);
    StartUp(next, {});
    EXPECT_EQ(next.CurrentProject, u"B.nst");
    EXPECT_EQ(ToUtf8(next.project.options.txtCity), "NIEUWSTAD");
    EXPECT_TRUE(next.project.options.chkSelectXY);
    EXPECT_EQ(next.project.options.txtMaxX, u"122000");
}

TEST_F(StartUpTest, AnUnwritableProjectFolderIsToldAndTheWindowOpensWithoutAProject) {
    InstallLiscad();
    std::filesystem::remove(projects);
    EXPECT_EQ(Start(), AfterStartUp::OpenWindow);
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0], "Kon bestand: '" + projects + separator +
                                      "Leeg Project.nst' niet opslaan;\nFoutcode: 76\nPad niet gevonden");
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::RetryCancel);
    EXPECT_EQ(form.CurrentProject, u"");
    EXPECT_EQ(form.File1.index, -1);
    EXPECT_EQ(ToUtf8(options.txtCity), "MOLVEREN");
    UnloadForm(form);
    EXPECT_EQ(screen.messages.size(), 1U);
}

TEST_F(StartUpTest, RetryMakesTheEmptyProjectWhenTheFolderIsBack) {
    InstallLiscad();
    std::filesystem::remove(projects);
    screen.answers = {Answer::Retry};
    screen.onMessage = [&] { std::filesystem::create_directory(projects); };
    Start();
    EXPECT_EQ(form.CurrentProject, u"Leeg Project.nst");
    EXPECT_EQ(ProjectNames(), "Leeg Project.nst");
}

}  // namespace

}  // namespace korvande::testing
