#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

constexpr std::string_view boxes =
    "TEXT\n"
    "PROPERTIES (TextPropertyNo,Font)\n1,\"x\";\nEND PROPERTIES\n"
    "BOXES\n"
    "BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\n";
constexpr std::string_view goodBox = "1,1,5,0,100.0;\n";
constexpr std::string_view behindBoxes = "END BOX_ON_POINT\nEND BOXES\n";
constexpr std::string_view items = "ITEMS (TextItemNo,TextBoxNo,LineNo,TextItem)\n";

class IdexTextProblems : public IdexTest {
 protected:
    // Reads a TEXT table with these rows of boxes, the first of which is line 14.
    std::string ReadBoxes(std::string_view rows, std::string_view between = {}) {
        return ReadTables(std::string(boxes).append(rows).append(behindBoxes).append(between).append(items) +
                          "END ITEMS\nEND TEXT\n");
    }

    // The same with one box and these items, the first of which is line 18.
    std::string ReadItems(std::string_view rows) {
        return ReadTables(std::string(boxes).append(goodBox).append(behindBoxes).append(items).append(rows) +
                          "END ITEMS\nEND TEXT\n");
    }
};

TEST_F(IdexTextProblems, GoodTextsTellNothing) {
    ASSERT_EQ(ReadItems("1,1,1,\"Straat\";\n2,1,2,\"naam\";\n"), "");
    EXPECT_EQ(TextAt(1).InputLine, 18);
    EXPECT_TRUE(Lost().empty());
    EXPECT_TRUE(Wanted().empty());
}

TEST_F(IdexTextProblems, ATextThatIsCutIsToldOnce) {
    const std::string item(47, 'x');
    ASSERT_EQ(ReadItems("1,1,1,\"" + item + "  \";\n2,1,1,\"" + item + "y\";\n3,1,2,\"z\";\n"), "");
    EXPECT_EQ(Lost(), Told{"1 tekst afgekapt op 47 tekens (op regel 19)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexTextProblems, ATextThatGoesOnBeyondItsWidthIsTold) {
    const std::string item(23, 'x');
    ASSERT_EQ(ReadItems("1,1,1,\"" + item + "\";\n2,1,2,\"" + item + "\";\n3,1,2,\"  \";\n"), "");
    EXPECT_TRUE(Lost().empty());
    ASSERT_EQ(ReadItems("1,1,1,\"" + item + "\";\n2,1,2,\"" + item + "y\";\n3,1,2,\"more\";\n"), "");
    EXPECT_EQ(TextAt(1).Characters().TrimmedRight().size(), 47);
    EXPECT_EQ(Lost(), Told{"1 tekst afgekapt op 47 tekens (op regel 19)"});
}

TEST_F(IdexTextProblems, AQuoteInATextIsTold) {
    ASSERT_EQ(ReadItems("1,1,1,\"5\"\" buis\";\n"), "");
    EXPECT_EQ(Lost(), Told{"1 waarde waarin een aanhalingsteken of puntkomma is vervangen (op regel 18)"});
}

TEST_F(IdexTextProblems, ATerminatorInATextIsTold) {
    ASSERT_EQ(ReadItems("1,1,1,\"een; twee\";\n"), "");
    EXPECT_EQ(Shown(TextAt(1).Characters()), "een");
    EXPECT_EQ(Lost(), Told{"1 waarde afgekapt bij een afsluitteken (op regel 18)"});
}

TEST_F(IdexTextProblems, NumbersOfItemsAreTold) {
    ASSERT_EQ(ReadItems("1,1X,1,\"a\";\n2,1,1X,\"b\";\n"), "");
    EXPECT_EQ(Lost(), Told{"2 waarden die geen getal zijn (de eerste op regel 18)"});
}

TEST_F(IdexTextProblems, NumbersOfBoxesAreTold) {
    ASSERT_EQ(ReadBoxes("1X,1,5,0,1;\n2,1X,5,0,1;\n3,1,X,0,1;\n4,1,5,X,1;\n5,1,5,0,N;\n6,1,5,0,1;\n"), "");
    EXPECT_EQ(Lost(), Told{"5 waarden die geen getal zijn (de eerste op regel 14)"});
}

TEST_F(IdexTextProblems, RowsOfBoxesAndItemsAreTold) {
    ASSERT_EQ(ReadBoxes("1,1,5,0,1\n2,1,5,0,1; x\n3,1,5,0;\n! four\n"), "");
    EXPECT_EQ(Lost(), (Told{"1 rij zonder afsluitteken (op regel 14)",
                            "1 rij met tekens achter het afsluitteken, die niet zijn gelezen (op regel 15)",
                            "1 rij met een ander aantal velden dan de tabel kolommen heeft (op regel 16)",
                            "1 regel in een tabel die geen rij is (op regel 17)"}));
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexTextProblems, ALayerNameThatIsCutToACodeIsToldByTheBoxThatUsesIt) {
    ASSERT_EQ(
        Read("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"12345678\";\n1,\"ABCDEFGH\";\nEND LAYERS\nDATABASE\n" +
             std::string(boxes).append(goodBox).append(behindBoxes).append(items) +
             "END ITEMS\nEND TEXT\nEND DATABASE\n"),
        "");
    EXPECT_EQ(Lost(), Told{"1 code afgekapt op 7 tekens (op regel 14)"});
}

TEST_F(IdexTextProblems, OtherBoxesAreTold) {
    ASSERT_EQ(ReadBoxes(goodBox, "BOX_ON_LINE (TextBoxNo)\n7;\n8;\nEND BOX_ON_LINE\n"), "");
    EXPECT_EQ(Lost(), Told{"2 regels van blok BOX_ON_LINE overgeslagen (de eerste op regel 17)"});
}

TEST_F(IdexTextProblems, ItemsBeforeTheirBoxesAreTold) {
    EXPECT_EQ(ReadTables("TEXT\n" + std::string(items) +
                         "1,1,1,\"a\";\nEND ITEMS\n"
                         "BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\n" +
                         std::string(goodBox) + "END BOX_ON_POINT\nEND TEXT\n"),
              "error 62 in line 16");
    EXPECT_EQ(Lost(), Told{"1 regel van blok ITEMS overgeslagen (op regel 9)"});
}

TEST_F(IdexTextProblems, ATableThatTextsWithoutBoxesTakeAlongIsTold) {
    EXPECT_EQ(ReadTables("TEXT\nEND TEXT\nLINES (LineNo,Code)\n1,\"A\";\nEND LINES\nremark\n"), "error 62 in line 14");
    EXPECT_EQ(Lost(), (Told{"1 regel overgeslagen: remark (op regel 13)",
                            "1 regel van blok LINES overgeslagen (op regel 10)"}));
}

}  // namespace

}  // namespace korvande::testing
