#include "translation/UnknownObjects.h"

#include <set>

#include "tests/support/TranslationState.h"

namespace korvande::testing {
namespace {

class UnknownObjects : public TranslationTest {
 protected:
    UnknownObjects() { OpenLog(); }

    void Met(TextView tableLetterAndCode, int times = 1) {
        const auto code = MakeFixedText<8>(tableLetterAndCode);
        for (int i = 0; i < times; ++i) CountUnknownCode(translation.unknowns, code);
    }

    std::string Overview() {
        WriteUnknownObjectOverview(translation.log, translation.unknowns);
        return LogText();
    }
};

TEST_F(UnknownObjects, AnEmptyTallyIsTwoEmptyLines) { EXPECT_EQ(Overview(), "\n\n"); }

TEST_F(UnknownObjects, ACodeIsFollowedDirectlyByItsCount) {
    Met(u"PBOOM", 3);
    EXPECT_EQ(Overview(),
              "\n"
              "Overzicht onbekende objecten:\n"
              "\n"
              "\n"
              "Puntobjecten:      BOOM   (3)\n"
              "\n"
              "\n");
}

TEST_F(UnknownObjects, TheFifthCodeOfATableStandsOnTheNextLineAtColumn20) {
    for (const TextView code : {u"P1", u"P2", u"P3", u"P4", u"P5"}) Met(code);
    EXPECT_EQ(Overview(),
              "\n"
              "Overzicht onbekende objecten:\n"
              "\n"
              "\n"
              "Puntobjecten:      1      (1)     2      (1)     3      (1)     4      (1)\n"
              "                   5      (1)\n"
              "\n"
              "\n");
}

TEST_F(UnknownObjects, FourCodesFillOneLine) {
    for (const TextView code : {u"P1", u"P2", u"P3", u"P4"}) Met(code);
    EXPECT_EQ(Overview(),
              "\n"
              "Overzicht onbekende objecten:\n"
              "\n"
              "\n"
              "Puntobjecten:      1      (1)     2      (1)     3      (1)     4      (1)\n"
              "\n"
              "\n");
}

TEST_F(UnknownObjects, ATallyOfTextsOnlyHasOneHeading) {
    Met(u"TNAAM");
    Met(u"TSTRAAT");
    EXPECT_EQ(Overview(),
              "\n"
              "Overzicht onbekende objecten:\n"
              "\n"
              "\n"
              "Tekstelementen:    NAAM   (1)     STRAAT (1)\n"
              "\n"
              "\n");
}

TEST_F(UnknownObjects, TablesAndCodesAreSorted) {
    for (const TextView code : {u"TB", u"PZ", u"LB", u"PA", u"LA", u"TA"}) Met(code);
    Met(u"PZ");
    EXPECT_EQ(Overview(),
              "\n"
              "Overzicht onbekende objecten:\n"
              "\n"
              "\n"
              "Lijnobjecten:      A      (1)     B      (1)\n"
              "\n"
              "\n"
              "Puntobjecten:      A      (1)     Z      (2)\n"
              "\n"
              "\n"
              "Tekstelementen:    A      (1)     B      (1)\n"
              "\n"
              "\n");
    EXPECT_EQ(translation.unknowns.Entries()[3].Code.TrimmedRight(), u"PZ") << "the tally itself is sorted";
    EXPECT_EQ(translation.unknowns.Entries()[3].Count, 2);
}

TEST_F(UnknownObjects, EveryTableBeginsAtColumn20Again) {
    for (const TextView code : {u"L1", u"L2", u"P1"}) Met(code);
    EXPECT_EQ(Overview(),
              "\n"
              "Overzicht onbekende objecten:\n"
              "\n"
              "\n"
              "Lijnobjecten:      1      (1)     2      (1)\n"
              "\n"
              "\n"
              "Puntobjecten:      1      (1)\n"
              "\n"
              "\n");
}

TEST_F(UnknownObjects, AnyOtherLetterIsALine) {
    Met(u"XRAAR");
    const std::string overview = Overview();
    EXPECT_NE(overview.find("\nLijnobjecten:      RAAR   (1)\n"), std::string::npos) << overview;
}

TEST_F(UnknownObjects, ACodeOfSevenCharactersIsWrittenInFull) {
    Met(u"P1234567", 12);
    EXPECT_NE(Overview().find("Puntobjecten:      1234567(12)\n"), std::string::npos);
}

TEST_F(UnknownObjects, AnEntryThatPassesTheNextColumnSendsTheNextOneToANewLine) {
    Met(u"PA", 1'234'567);
    Met(u"PB");
    EXPECT_EQ(Overview(),
              "\n"
              "Overzicht onbekende objecten:\n"
              "\n"
              "\n"
              "Puntobjecten:      A      (1234567)\n"
              "                   B      (1)\n"
              "\n"
              "\n");
}

TEST_F(UnknownObjects, AnEntryThatJustReachesTheNextColumnStaysOnItsLine) {
    Met(u"PA", 123'456);
    Met(u"PB");
    EXPECT_NE(Overview().find("Puntobjecten:      A      (123456)B      (1)\n"), std::string::npos);
}

TEST_F(UnknownObjects, TheTallyGoesOnCountingAfterTheOverview) {
    Met(u"PZ");
    Met(u"PA");
    Overview();
    Met(u"PZ");
    const auto& entries = translation.unknowns.Entries();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].Count, 1);
    EXPECT_EQ(entries[1].Count, 2);
}

TEST_F(UnknownObjects, ASentenceTellsTheTableTheCodeAndHowOften) {
    for (const TextView code : {u"PBOOM", u"LHEK", u"TNAAM"}) Met(code, 2);
    std::set<Text> sentences;
    for (const UnknownCodeRec& unknown : translation.unknowns.Entries()) sentences.insert(UnknownCodeSentence(unknown));
    EXPECT_EQ(sentences, std::set<Text>({u"Puntcode 'BOOM' staat niet in de controletabel: 2 maal",
                                         u"Lijncode 'HEK' staat niet in de controletabel: 2 maal",
                                         u"Tekstcode 'NAAM' staat niet in de controletabel: 2 maal"}));
}

}  // namespace
}  // namespace korvande::testing
