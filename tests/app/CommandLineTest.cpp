#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace korvande::testing {

namespace {

// Direction and names, in one text.
std::string Split(TextView commandLine) {
    const CommandLineConversion conversion = SplitCommandLine(commandLine);
    return std::to_string(conversion.direction) + "<" + ToUtf8(conversion.sufNenFile) + "><" +
           ToUtf8(conversion.idexFile) + ">";
}

TEST(CommandLine, QuotedNamesMayHoldBlanks) {
    EXPECT_EQ(Split(u"1\"C:\\MIJN KAART.SFN\" \"C:\\KAART 2.IDX\""), "1<C:\\MIJN KAART.SFN><C:\\KAART 2.IDX>");
}

TEST(CommandLine, ANameWithoutQuotesEndsAtTheFirstBlank) {
    EXPECT_EQ(Split(u"2C:\\KAART.SF2 C:\\KAART.IDX"), "2<C:\\KAART.SF2><C:\\KAART.IDX>");
    EXPECT_EQ(Split(u"2C:\\KAART.SF2 C:\\EEN KAART.IDX"), "2<C:\\KAART.SF2><C:\\EEN KAART.IDX>");
}

TEST(CommandLine, BlanksAroundTheNamesDoNotCount) {
    EXPECT_EQ(Split(u"  2   A.SF2    B.IDX  "), "2<A.SF2><B.IDX>");
    EXPECT_EQ(Split(u"1 \"A.SFN\"    \"B.IDX\" "), "1<A.SFN><B.IDX>");
    EXPECT_EQ(Split(u"1\"A.SFN\"B.IDX"), "1<A.SFN><B.IDX>");
}

TEST(CommandLine, NamesComeInCapitals) {
    EXPECT_EQ(Split(u"2\"c:\\één kaart.sf2\" b.idx"), "2<C:\\ÉÉN KAART.SF2><B.IDX>");
}

TEST(CommandLine, WithoutABlankTheRestIsTheFirstName) { EXPECT_EQ(Split(u"2A.SF2"), "2<A.SF2><>"); }

TEST(CommandLine, WithoutAClosingQuoteTheRestIsTheFirstName) {
    EXPECT_EQ(Split(u"1\"C:\\MIJN KAART.SFN C:\\KAART.IDX"), "1<C:\\MIJN KAART.SFN C:\\KAART.IDX><>");
}

TEST(CommandLine, QuotesOfTheSecondNameAreRemovedWhereverTheyStand) {
    EXPECT_EQ(Split(u"2A.SF2 \"B.IDX"), "2<A.SF2><B.IDX>");
    EXPECT_EQ(Split(u"2A.SF2 \"C:\\\"B.IDX"), "2<A.SF2><C:\\B.IDX>");
}

TEST(CommandLine, AFirstCharacterThatIsNoDigitIsDirectionZero) {
    EXPECT_EQ(Split(u"XA.SF2 B.IDX"), "0<A.SF2><B.IDX>");
    EXPECT_EQ(Split(u"\"A.SF2\" B.IDX"), "0<A.SF2\"><B.IDX>");
}

TEST(CommandLine, ADigitWithoutMeaningIsKept) { EXPECT_EQ(Split(u"7A.SF2 B.IDX"), "7<A.SF2><B.IDX>"); }

TEST(CommandLine, WithoutNamesTheyAreEmpty) {
    EXPECT_EQ(Split(u"1"), "1<><>");
    EXPECT_EQ(Split(u"1\"\" \"B.IDX\""), "1<><B.IDX>");
    EXPECT_EQ(Split(u"1\""), "1<><>");
    EXPECT_EQ(Split(u""), "0<><>");
    EXPECT_EQ(Split(u"   "), "0<><>");
}

TEST(CommandLine, ArgumentsAreJoinedByBlanksThoseWithBlanksBetweenQuotes) {
    EXPECT_EQ(JoinArguments({}), u"");
    EXPECT_EQ(JoinArguments({u"1", u"/tmp/Mijn Kaart.sfn", u"/tmp/kaart.idx"}),
              u"1 \"/tmp/Mijn Kaart.sfn\" /tmp/kaart.idx");
}

TEST(CommandLine, AnArgumentWithQuotesOfItsOwnStaysAsItIs) {
    const Text whole = u"1\"C:\\MIJN KAART.SFN\" \"C:\\KAART.IDX\"";
    EXPECT_EQ(JoinArguments({whole}), whole);
}

TEST(CommandLine, JoinedArgumentsSplitIntoTheSameNames) {
    EXPECT_EQ(Split(JoinArguments({u"1", u"/tmp/Mijn Kaart.sfn", u"/tmp/Een kaart.idx"})),
              "1</TMP/MIJN KAART.SFN></TMP/EEN KAART.IDX>");
}

constexpr TextView program = u"C:\\Program Files\\KORVANDE\\korvande";

TEST(CommandLine, TheProgramsOwnPathWithBlanksIsStrippedWithoutQuotesToo) {
    const Text conversion = u"1\"C:\\MIJN KAART.SFN\" \"C:\\KAART.IDX\"";
    for (const TextView written :
         {u"C:\\Program Files\\KORVANDE\\korvande.exe", u"c:\\PROGRAM FILES\\korvande\\KORVANDE.EXE",
          u"C:/Program Files/KORVANDE/korvande.exe", u"C:\\Program Files\\KORVANDE\\korvande",
          u"\"C:\\Program Files\\KORVANDE\\korvande.exe\"", u"korvande.exe", u"korvande"}) {
        EXPECT_EQ(BehindProgramName(Concat(written, u" ", conversion), program), conversion) << ToUtf8(written);
        EXPECT_EQ(BehindProgramName(written, program), u"") << ToUtf8(written);
    }
}

TEST(CommandLine, APathThatOnlyBeginsLikeTheProgramsEndsAtItsFirstBlank) {
    EXPECT_EQ(BehindProgramName(u"C:\\Program Files\\KORVANDE\\korvande.exe2 1A", program),
              u"Files\\KORVANDE\\korvande.exe2 1A");
    EXPECT_EQ(BehindProgramName(u"D:\\k.exe\t/LISCAD ", program), u"/LISCAD");
    EXPECT_EQ(BehindProgramName(u"\"C:\\k.exe", program), u"");
    EXPECT_EQ(BehindProgramName(u"", program), u"");
    EXPECT_EQ(BehindProgramName(u".exe 1A", u""), u"1A");
}

TEST(CommandLine, OneArgumentIsToldFromMoreOfThem) {
    EXPECT_EQ(OnlyArgument(u" \"C:\\MIJN KAART.IDX\" "), u"C:\\MIJN KAART.IDX");
    EXPECT_EQ(OnlyArgument(u"12kaart.idx"), u"12kaart.idx");
    EXPECT_EQ(OnlyArgument(u"1 kaart.sfn"), u"");
    EXPECT_EQ(OnlyArgument(u"\"a b.sfn\" \"c.idx\""), u"");
    EXPECT_EQ(OnlyArgument(u"\""), u"\"");
    EXPECT_EQ(OnlyArgument(u"\"\""), u"");
    EXPECT_EQ(OnlyArgument(u""), u"");
}

TEST(CommandLine, TheSwitchIsFoundAnywhereInACommandLine) {
    EXPECT_TRUE(HasRegistrationSwitch(u"/LISCAD"));
    EXPECT_TRUE(HasRegistrationSwitch(u"  x /Liscad/y"));
    EXPECT_FALSE(HasRegistrationSwitch(u"LISCAD"));
    EXPECT_FALSE(HasRegistrationSwitch(u""));
}

TEST(CommandLine, AmongArgumentsTheSwitchIsAWholeOne) {
    EXPECT_TRUE(HasRegistrationSwitch(std::vector<Text>{u"/LISCAD"}));
    EXPECT_TRUE(HasRegistrationSwitch(std::vector<Text>{u"x", u"/liscad"}));
    EXPECT_FALSE(HasRegistrationSwitch(std::vector<Text>{u"1", u"/home/liscad/a.sfn", u"/LISCAD/b.idx"}));
    EXPECT_FALSE(HasRegistrationSwitch(std::vector<Text>{}));
}

}  // namespace

}  // namespace korvande::testing
