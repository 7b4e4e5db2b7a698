#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "core/RuntimeError.h"
#include "tests/project/ProjectTest.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

// A screen that remembers the busy pointer too.
class PointerScreen : public RecordingScreen {
 public:
    std::string pointer;  // B: busy, N: normal
    void ShowBusy(bool busy) override { pointer += busy ? 'B' : 'N'; }
};

class ControlTableFailures : public ProjectTest {
 protected:
    ControlTableFailures() {
        folder.Write("ander.nst", "[Export]\nIncludeUnknown = 1\n[Points]\nAB = Q21, PUNT, BOOM\n[End]\n");
        EXPECT_TRUE(LoadFile(folder / "ander.nst"));
    }

    bool LoadFile(TextView name) { return LoadProjectFile(pointerScreen, project, name); }
    bool SaveFile(TextView name) { return SaveProjectFile(pointerScreen, project, name); }

    static std::string Message(const Text& name, const char* verb, const char* error) {
        return "Kon bestand: '" + ToUtf8(name) + "' niet " + verb + ";\nFoutcode: " + error;
    }
    void ExpectRetryCancelBox() {
        ASSERT_FALSE(pointerScreen.boxes.empty());
        EXPECT_EQ(pointerScreen.boxes.back().title, u"KORVANDE");
        EXPECT_EQ(pointerScreen.boxes.back().buttons, Buttons::RetryCancel);
    }

    // So many that events come while they are read, now and then.
    static std::string ManyLines() {
        std::string lines;
        for (int i = 0; i < 20'000; ++i) lines += "; een regel\n";
        return lines;
    }

    PointerScreen pointerScreen;
    std::vector<std::string>& messages = pointerScreen.messages;
};

TEST_F(ControlTableFailures, AFileThatCannotBeOpenedIsReportedAndCancelLeavesTheResetState) {
    const Text name = folder / "geen.nst";
    EXPECT_FALSE(LoadFile(name));
    EXPECT_EQ(messages, std::vector{Message(name, "openen", "53\nBestand niet gevonden")});
    ExpectRetryCancelBox();
    EXPECT_FALSE(options.chkExportUnknowns);
    EXPECT_EQ(TableText(pointTable), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\n");
}

TEST_F(ControlTableFailures, RetryOpensAgainAsOftenAsAsked) {
    const Text name = folder / "straat.nst";
    pointerScreen.answers = {Answer::Retry, Answer::Retry, Answer::Retry};
    pointerScreen.onMessage = [&] {
        if (messages.size() == 3) folder.Write("straat.nst", "[Points]\nCD = Q22, PUNT, PAAL\n[End]\n");
    };
    EXPECT_TRUE(LoadFile(name));
    EXPECT_EQ(messages.size(), 3U);
    EXPECT_EQ(TableText(pointTable), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\nCD|Q22|PUNT|PAAL|0|0|0\n");
}

TEST_F(ControlTableFailures, AFileWithoutAnySectionOfAControlTableIsRefused) {
    for (const char* const bytes :
         {"", "HEADER\r\nEND HEADER\r\n", "[Ander]\r\nTown = ELDERS\r\n[]\r\n", "Town = X\r\n"}) {
        messages.clear();
        const Text name = folder.Write("vreemd.nst", bytes);
        options.chkExportUnknowns = true;
        EXPECT_FALSE(LoadFile(name)) << bytes;
        EXPECT_EQ(messages, std::vector{"Dit bestand is geen controletabel:\n" + ToUtf8(name)}) << bytes;
        EXPECT_EQ(pointerScreen.boxes.back().buttons, Buttons::Ok);
        EXPECT_FALSE(options.chkExportUnknowns);
        EXPECT_EQ(TableText(pointTable), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\n");
    }
}

TEST_F(ControlTableFailures, OneSectionMakesAControlTableAndEndIsOne) {
    for (const char* const section : {"nen1878", "Import", "Export", "Points", "Lines", "Texts"}) {
        EXPECT_TRUE(LoadFile(folder.Write("kort.nst", "[" + std::string(section) + "]\r\n[END]\r\n"))) << section;
    }
    EXPECT_TRUE(LoadFile(folder.Write("kort.nst", "[End]")));
    EXPECT_EQ(messages, std::vector<std::string>());
}

TEST_F(ControlTableFailures, AControlTableWithoutItsEndIsReadAndToldOnce) {
    for (const char* const end : {"", "[En", "End]\r\n", "[End\r\n"}) {
        messages.clear();
        const Text name = folder.Write("half.nst", std::string("[Points]\r\nCD = Q22, PUNT, PAAL\r\n") + end);
        EXPECT_TRUE(LoadFile(name));
        EXPECT_EQ(messages, std::vector{"De controletabel lijkt afgebroken: er is geen [End]:\n" + ToUtf8(name)})
            << end;
        EXPECT_EQ(pointerScreen.boxes.back().buttons, Buttons::Ok);
        EXPECT_EQ(TableText(pointTable), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\nCD|Q22|PUNT|PAAL|0|0|0\n");
    }
}

TEST_F(ControlTableFailures, RetryAndThenCancelEndsTheLoad) {
    pointerScreen.answers = {Answer::Retry, Answer::Cancel};
    EXPECT_FALSE(LoadFile(folder / "geen.nst"));
    EXPECT_EQ(messages.size(), 2U);
}

TEST_F(ControlTableFailures, TheMessageNamesTheCause) {
    const EnvironmentValue noDrive("KORVANDE_DRIVE_Q", std::nullopt);
    fs::create_directory(folder.Path() + "/map.nst");
    const struct {
        Text name;
        const char* error;
    } cases[] = {{folder / "map.nst", "75\nFout bij toegang tot pad of bestand"},
                 {folder / "geen.nst", "53\nBestand niet gevonden"},
                 {folder / "ander.nst/x.nst", "76\nPad niet gevonden"},
                 {u"Q:\\X.NST", "71\nStation niet gereed"},
                 {u"", "52\nOngeldige bestandsnaam of ongeldig bestandsnummer"}};
    for (const auto& [name, error] : cases) {
        messages.clear();
        EXPECT_FALSE(LoadFile(name));
        EXPECT_EQ(messages, std::vector{Message(name, "openen", error)});
    }
}

TEST_F(ControlTableFailures, MalformedLinesNeverStopALoadAndSayNothing) {
    folder.Write(
        "kapot.nst",
        "=\n[Export]\nIncludeZ = twee\nUseDateNow = misschien\nIncludeUnknown = 7\n= =\nIncludeNrAsText = 1\n[Points]\n"
        "A = \"\n=\n[Lines\n###\nB = ,,,,,,,,,,,,\n[Texts]\nC =\n[End]\n");
    EXPECT_TRUE(LoadFile(folder / "kapot.nst"));
    EXPECT_TRUE(messages.empty());
    EXPECT_FALSE(options.chkExport3D);
    EXPECT_FALSE(options.optDateNow);
    EXPECT_FALSE(options.chkExportUnknowns);
    EXPECT_TRUE(options.chkExportPointnoAsText);
    EXPECT_EQ(textTable.rows.size(), 2U);
}

TEST_F(ControlTableFailures, TheFileIsAlwaysClosed) {
    const std::ptrdiff_t before = OpenFiles();
    EXPECT_TRUE(LoadFile(folder / "ander.nst"));
    EXPECT_EQ(OpenFiles(), before);
    EXPECT_FALSE(LoadFile(u"/proc/self/mem"));
    EXPECT_EQ(OpenFiles(), before);
    EXPECT_TRUE(SaveFile(folder / "nieuw.nst"));
    EXPECT_EQ(OpenFiles(), before);
    EXPECT_FALSE(SaveFile(u"/dev/full"));
    EXPECT_EQ(OpenFiles(), before);
}

TEST_F(ControlTableFailures, TheBusyPointerShowsDuringALoadAndGoesOnEveryPath) {
    pointerScreen.pointer.clear();
    LoadFile(folder / "ander.nst");
    EXPECT_EQ(pointerScreen.pointer, "BN");
    LoadFile(folder / "geen.nst");
    EXPECT_EQ(pointerScreen.pointer, "BNBN");
}

TEST_F(ControlTableFailures, WaitingEventsRunDuringALoad) {
    std::string lines;
    for (int i = 0; i < 20'000; ++i) lines += "; een regel\n";
    const Text name = folder.Write("lang.nst", lines);
    // The screen hears of events every 50 ms, so that some loads may pass without.
    for (int i = 0; i < 1000 && pointerScreen.pumps == 0; ++i) LoadFile(name);
    EXPECT_GT(pointerScreen.pumps, 0);
}

TEST_F(ControlTableFailures, ALoadThatFailsHalfWayLeavesTheResetState) {
    const Text name = folder.Write("lang.nst", "[Export]\nIncludeUnknown = 1\n" + ManyLines());
    pointerScreen.onPump = [] { throw RuntimeError(errors::outOfMemory); };
    // Events come by time, so that some loads may be done before.
    for (int i = 0; i < 1000 && LoadFile(name); ++i) messages.clear();
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_FALSE(options.chkExportUnknowns);
}

TEST_F(ControlTableFailures, ALoadThatAPersonEndsIsNoError) {
    const Text name = folder.Write("lang.nst", ManyLines());
    pointerScreen.onPump = [] { throw TranslationAborted(); };
    const std::ptrdiff_t before = OpenFiles();
    bool aborted = false;
    for (int i = 0; i < 1000 && !aborted; ++i) {
        try {
            LoadFile(name);
        } catch (const TranslationAborted&) {
            aborted = true;
        }
    }
    EXPECT_TRUE(aborted);
    EXPECT_TRUE(messages.empty());
    EXPECT_TRUE(pointerScreen.pointer.ends_with('N'));
    EXPECT_EQ(OpenFiles(), before);
}

TEST_F(ControlTableFailures, AFileThatCannotBeWrittenIsReportedAndCancelEndsTheSave) {
    const Text name = folder / "geen map/straat.nst";
    EXPECT_FALSE(SaveFile(name));
    EXPECT_EQ(messages, std::vector{Message(name, "opslaan", "76\nPad niet gevonden")});
    ExpectRetryCancelBox();
    EXPECT_EQ(folder.Listing(), "ander.nst");
}

TEST_F(ControlTableFailures, RetrySavesAgainAsOftenAsAsked) {
    const Text name = folder / "map/straat.nst";
    pointerScreen.answers = {Answer::Retry, Answer::Retry};
    pointerScreen.onMessage = [&] {
        if (messages.size() == 2) fs::create_directory(folder.Path() + "/map");
    };
    EXPECT_TRUE(SaveFile(name));
    EXPECT_EQ(messages.size(), 2U);
    EXPECT_TRUE(FileBytes(name).ends_with("\r\n[End]\r\n"));
}

TEST_F(ControlTableFailures, RetryAndThenCancelEndsTheSave) {
    pointerScreen.answers = {Answer::Retry, Answer::Cancel};
    EXPECT_FALSE(SaveFile(folder / "geen map/straat.nst"));
    EXPECT_EQ(messages.size(), 2U);
}

TEST_F(ControlTableFailures, AWriteThatFailsIsReportedAsAnOpenThatFails) {
    pointerScreen.answers = {Answer::Retry, Answer::Cancel};
    EXPECT_FALSE(SaveFile(u"/dev/full"));
    EXPECT_EQ(messages, std::vector(2, Message(u"/dev/full", "opslaan", "61\nSchijf vol")));
}

TEST_F(ControlTableFailures, AFolderCannotBeWrittenOver) {
    const Text name = folder / "";
    EXPECT_FALSE(SaveFile(name));
    EXPECT_EQ(messages, std::vector{Message(name, "opslaan", "75\nFout bij toegang tot pad of bestand")});
}

TEST_F(ControlTableFailures, ASaveTakesTheOwnerEvenWhenTheFileCannotBeWritten) {
    options.txtCity = u"Elders";
    EXPECT_FALSE(SaveFile(folder / "geen map/straat.nst"));
    EXPECT_EQ(owner.Town.TrimmedRight(), u"Elders");
}

}  // namespace

}  // namespace korvande::testing
