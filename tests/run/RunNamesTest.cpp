#include "run/RunNames.h"

#include <gtest/gtest.h>

#include "tests/run/RunTest.h"

namespace korvande::testing {

namespace {

TEST(RunNames, AnOutputAndALogBookThatAreNotNamedFollowFromTheOthers) {
    EXPECT_EQ(OutputBeside(u"kaart/straat.idx", idexToNen), u"kaart/straat.SFN");
    EXPECT_EQ(OutputBeside(u"straat.idx", idexToSuf), u"straat.SFN");
    EXPECT_EQ(OutputBeside(u"straat.sf2", sufToIdex), u"straat.IDX");
    EXPECT_EQ(LogBookBeside(u"kaart/straat.SFN"), u"kaart/straat.LOG");
}

TEST(RunNames, TheModeDecidesWhichFileIsWhich) {
    SilentScreen screen;
    const RunNames names{u"in", u"uit", u"boek"};
    Translation forth(screen);
    TakeNames(names, idexToNen, forth);
    EXPECT_EQ(forth.IdexFileName, u"in");
    EXPECT_EQ(forth.SufNenFileName, u"uit");
    EXPECT_EQ(forth.LogFileName, u"boek");
    EXPECT_EQ(forth.modeText, u"IDEX >> NEN1878");
    Translation back(screen);
    TakeNames(names, sufToIdex, back);
    EXPECT_EQ(back.IdexFileName, u"uit");
    EXPECT_EQ(back.SufNenFileName, u"in");
    EXPECT_EQ(back.mode, sufToIdex);
}

TEST(RunNames, NoTwoFilesOfARunMayBeTheSame) {
    const TestFolder folder;
    const Text a = folder.Write("a", "1");
    const Text b = folder / "b";
    const Text c = folder / "c";
    const Text table = folder.Write("t.nst", "2");
    const auto clash = [](const RunNames& names, TextView controlTable) {
        return ToUtf8(FindClash(names, controlTable).value_or(Text()));
    };
    const auto told = [](const char* which, const Text& name) {
        return which + std::string(" zijn hetzelfde bestand:\n") + ToUtf8(name);
    };
    EXPECT_EQ(clash({a, b, c}, table), "");
    EXPECT_EQ(clash({a, b, {}}, {}), "");
    EXPECT_EQ(clash({a, folder / "./a", c}, table), told("Invoer en uitvoer", folder / "./a"));
    EXPECT_EQ(clash({a, table, c}, table), told("Controletabel en uitvoer", table));
    EXPECT_EQ(clash({a, b, a}, table), told("Invoer en logboek", a));
    EXPECT_EQ(clash({a, b, table}, table), told("Controletabel en logboek", table));
    EXPECT_EQ(clash({a, b, b}, table), told("Uitvoer en logboek", b));
}

}  // namespace

}  // namespace korvande::testing
