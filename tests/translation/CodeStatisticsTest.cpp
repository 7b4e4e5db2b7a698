#include "translation/CodeStatistics.h"

#include "tests/support/TranslationState.h"

namespace korvande::testing {
namespace {

class CodeStatistics : public TranslationTest {
 protected:
    CodeStatistics() { OpenLog(); }

    static void AddRow(CodeTable& table, TextView liscad, TextView description, std::int32_t count) {
        CodeRow& row = table.rows.emplace_back();
        row.LiscadCode = liscad;
        row.LkiCode = u"X01";
        row.Description = description;
        row.Count = count;
    }

    std::string Statistics(NoneFor noneFor) {
        WriteCodeStatistics(translation.log, translation.codes, u"Geïmporteerde", noneFor);
        return LogText();
    }
};

TEST_F(CodeStatistics, UsedRowsAreListedByTheirLiscadCodeInTheOrderOfTheTable) {
    AddRow(translation.codes.lines, u"MUUR", u"Muur", 1234567);
    AddRow(translation.codes.lines, u"KANT", u"Kant", 0);
    AddRow(translation.codes.lines, u"1234567", Text(43, u'x'), 1);
    AddRow(translation.codes.points, u"BOOM", u"Boom", 12);
    AddRow(translation.codes.texts, u"NAAM", u"Straatnaam", 2);
    EXPECT_EQ(Statistics(NoneFor::TablesWithoutUsedRows),
              "\n"
              "Geïmporteerde lijnobjecten:\n"
              "MUUR    = Muur                                        1234567 maal\n"
              "1234567 = xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx 1 maal\n"
              "\n"
              "Geïmporteerde puntobjecten:\n"
              "BOOM    = Boom                                        12 maal\n"
              "\n"
              "Geïmporteerde tekstelementen:\n"
              "NAAM    = Straatnaam                                  2 maal\n");
}

TEST_F(CodeStatistics, TheUnknownRowIsListedLikeAnyOther) {
    translation.codes.points.rows[0].Count = 3;
    EXPECT_NE(Statistics(NoneFor::TablesWithoutRows)
                  .find("puntobjecten:\nSTANDRD = ONBEKEND PUNTOBJECT                         3 maal\n"),
              std::string::npos);
}

TEST_F(CodeStatistics, GeenForTablesWithoutUsedRows) {
    translation.codes.points.rows[0].Count = 1;
    translation.codes.texts.rows.clear();
    EXPECT_EQ(Statistics(NoneFor::TablesWithoutUsedRows),
              "\n"
              "Geïmporteerde lijnobjecten:\n"
              "    GEEN\n"
              "\n"
              "Geïmporteerde puntobjecten:\n"
              "STANDRD = ONBEKEND PUNTOBJECT                         1 maal\n"
              "\n"
              "Geïmporteerde tekstelementen:\n"
              "    GEEN\n");
}

TEST_F(CodeStatistics, GeenForTablesWithoutRowsOnly) {
    translation.codes.texts.rows.clear();
    EXPECT_EQ(Statistics(NoneFor::TablesWithoutRows),
              "\n"
              "Geïmporteerde lijnobjecten:\n"
              "\n"
              "Geïmporteerde puntobjecten:\n"
              "\n"
              "Geïmporteerde tekstelementen:\n"
              "    GEEN\n");
}

}  // namespace
}  // namespace korvande::testing
