#include "geopackage/Styles.h"

#include <gmock/gmock.h>

#include "tests/geopackage/GeoPackageTest.h"

namespace korvande::testing {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class StylesTest : public GeoPackageTest {
 protected:
    std::string Qml(const std::string& layer) {
        return Rows("SELECT styleQML FROM layer_styles WHERE f_table_name = '" + layer + "'");
    }
};

const std::string points =
    "1,\"A\",121000,487000,0,\"BOOM\",0,\"\"\n2,\"B\",121010,487000,0,\"LAMP\",0,\"\"\n"
    "3,\"C\",121020,487000,0,\"VREEMD\",0,\"\"";

TEST_F(StylesTest, EveryLayerOpensWithItsOwnStyle) {
    Written(Idex(Heights{points}));
    EXPECT_EQ(Rows("SELECT f_table_name, f_geometry_column, styleName, useAsDefault FROM layer_styles"),
              "punten|geom|punten|1\nlijnen|geom|lijnen|1\nteksten|geom|teksten|1\n");
}

TEST_F(StylesTest, AKnownCodeIsACategoryAndTheOthersAreTheLastOne) {
    Written(Idex(Heights{points}));
    const std::string qml = Qml("punten");
    EXPECT_THAT(qml, HasSubstr("value=\"BOOM\" label=\"BOOM: LOOFBOOM\""));
    EXPECT_THAT(qml, HasSubstr("<category symbol=\"2\" value=\"\" label=\"onbekend\""));
    EXPECT_THAT(qml, Not(HasSubstr("VREEMD")));
    EXPECT_THAT(qml, Not(HasSubstr("symbol=\"3\"")));
}

TEST_F(StylesTest, WhatIsUnknownIsRedAndNothingElseIs) {
    Written(Idex(Heights{points}));
    const std::string qml = Qml("punten");
    const std::string red = "value=\"208,0,0,255\"";
    const std::size_t unknown = qml.find("<symbol type=\"marker\" name=\"2\"");
    ASSERT_NE(unknown, std::string::npos);
    EXPECT_GT(qml.find(red), unknown);
    EXPECT_NE(qml.find(red), std::string::npos);
}

TEST_F(StylesTest, SymbolsWithADirectionAreTurned) {
    Written(Idex(Heights{points}));
    const std::string qml = Qml("punten");
    EXPECT_THAT(qml, HasSubstr("name=\"name\" value=\"arrow\""));
    EXPECT_THAT(qml, HasSubstr("coalesce(&quot;richting&quot;, 0)"));
}

TEST_F(StylesTest, ALineThatIsNotWrittenIsGreyAndDashed) {
    Written(Idex(Heights{points, "1,\"PERC\",0", "1,1,2,STRAIGHT"}));
    EXPECT_THAT(Qml("lijnen"), HasSubstr("value=\"140,140,140,255\" type=\"QString\"/><Option name=\"line_style\" "
                                         "value=\"dash\""));
}

TEST_F(StylesTest, TextsAreLabelsInTheirDirection) {
    Written(Idex(Heights{points}));
    const std::string qml = Qml("teksten");
    EXPECT_THAT(qml, HasSubstr("labelsEnabled=\"1\""));
    EXPECT_THAT(qml, HasSubstr("fieldName=\"tekst\""));
    EXPECT_THAT(qml, HasSubstr("value=\"&quot;richting&quot; - 90\""));
    EXPECT_THAT(qml, HasSubstr("fontSize=\"1.0\" fontSizeUnit=\"MapUnit\""));
}

TEST_F(StylesTest, ACodeWithMarksOfXmlIsWrittenSafely) {
    LoadProjectBytes(screen, project,
                     "[Points]\nUnknown = STANDRD, Q20, PUNT, ONBEKEND\nA&B = Q21, PUNT, <X>\n[End]\n");
    Written(Idex(Heights{"1,\"A\",121000,487000,0,\"A&B\",0,\"\""}));
    EXPECT_THAT(Qml("punten"), HasSubstr("value=\"A&amp;B\" label=\"A&amp;B: &lt;X&gt;\""));
}

}  // namespace

}  // namespace korvande::testing
