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
        if (count > 0) CountUse(table, static_cast<std::int32_t>(table.rows.size()) - 1, count);
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

TEST_F(CodeStatistics, TheOrderIsThatOfTheTableAndNotThatOfTheUses) {
    AddRow(translation.codes.texts, u"A", u"Eerste", 0);
    AddRow(translation.codes.texts, u"B", u"Tweede", 0);
    for (const std::int32_t row : {2, 0, 1, 2}) CountUse(translation.codes.texts, row);
    const std::string log = Statistics(NoneFor::TablesWithoutUsedRows);
    EXPECT_EQ(log.substr(log.find("tekstelementen:\n")),
              "tekstelementen:\n"
              "STANDRD = ONBEKEND TEKSTOBJECT                        1 maal\n"
              "A       = Eerste                                      1 maal\n"
              "B       = Tweede                                      2 maal\n");
}

TEST_F(CodeStatistics, TheUnknownRowIsListedLikeAnyOther) {
    CountUse(translation.codes.points, 0, 3);
    EXPECT_NE(Statistics(NoneFor::TablesWithoutRows)
                  .find("puntobjecten:\nSTANDRD = ONBEKEND PUNTOBJECT                         3 maal\n"),
              std::string::npos);
}

TEST_F(CodeStatistics, GeenForTablesWithoutUsedRows) {
    CountUse(translation.codes.points, 0);
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
