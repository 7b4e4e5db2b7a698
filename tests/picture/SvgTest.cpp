#include "picture/SvgCanvas.h"

#include <algorithm>

#include "core/LineWriter.h"
#include "tests/picture/PictureTest.h"

namespace korvande::testing {

namespace {

class Svg : public PictureTest {
 protected:
    std::string Drawn(const DisplayList& list, const PictureFrame& frame) const {
        std::string bytes;
        LineWriter output;
        output.OpenBytes(bytes);
        SvgCanvas canvas(output, list, frame, u"a<b>.idx");
        DrawPicture(last->drawing, list, frame, canvas);
        canvas.Finish();
        output.Close();
        return bytes;
    }
    std::string Drawn(const DisplayList& list) const { return Drawn(list, WholeFrame(list)); }

    // The lines of the group of a code, without its own.
    static std::string GroupOf(const std::string& svg, const std::string& id) {
        const std::size_t begin = svg.find("<g id=\"" + id + "\"");
        EXPECT_NE(begin, std::string::npos) << svg;
        if (begin == std::string::npos) return {};
        const std::size_t first = svg.find('\n', begin) + 1;
        return svg.substr(first, svg.find("</g>", first) - first);
    }

    static PictureCode Code(char16_t table, TextView code) {
        PictureCode made;
        made.table = table;
        made.code = code;
        return made;
    }
};

TEST_F(Svg, ADrawingIsOneGroupForEachCodeWithOneElementForEachObject) {
    const DisplayList list =
        Picture({.points = "1,\"\",121000,487000,\"MV\",0,\"\"\n2,\"\",121010,487000,\"HULP\",0,\"\"\n"
                           "3,\"\",121010,487010.5,\"HULP\",0,\"\"\n4,\"\",121005,487005,\"VREEMD\",0,\"\"\n",
                 .lines = "1,\"MUUR\",0\n2,\"PERC\",0\n3,\"MUUR\",0\n",
                 .edges = "1,1,2,STRAIGHT\n1,2,3,STRAIGHT\n2,2,3,STRAIGHT\n3,3,1,STRAIGHT\n",
                 .texts = "3,5,33,\"Café & <b>\"\n"});
    EXPECT_EQ(
        Drawn(list),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" viewBox=\"0 0 14 14.5\" data-east=\"120998\" "
        "data-north=\"487012.5\">\n"
        "<title>a&lt;b&gt;.idx</title>\n"
        "<desc>Eenheid: meter. De linkerbovenhoek ligt op 120998 oost, 487012.5 noord.</desc>\n"
        "<rect width=\"14\" height=\"14.5\" fill=\"#ffffff\"/>\n"
        "<g fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\" font-family=\"Arial, Liberation "
        "Sans, sans-serif\" font-size=\"1\">\n"
        "<g id=\"L-PERC\" data-code=\"PERC\" data-lki=\"K01\" class=\"bekend\" stroke=\"#8c8c8c\" "
        "stroke-width=\"0.06\" stroke-dasharray=\"0.48 0.24\"><title>PERCEEL</title>\n"
        "<path d=\"M12 12.5L12 2\"/>\n</g>\n"
        "<g id=\"L-MUUR\" data-code=\"MUUR\" data-lki=\"B05\" class=\"bekend\" stroke=\"#7a4a00\" "
        "stroke-width=\"0.06\"><title>MUUR</title>\n"
        "<path d=\"M2 12.5L12 12.5L12 2\"/>\n<path d=\"M12 2L2 12.5\"/>\n</g>\n"
        "<g id=\"P-MV\" data-code=\"MV\" data-lki=\"Q21\" class=\"bekend\" fill=\"#6b6b00\"><title>MAAIVELD</title>\n"
        "<circle cx=\"2\" cy=\"12.5\" r=\"0.15\"/>\n</g>\n"
        "<g id=\"P-VREEMD\" data-code=\"VREEMD\" data-lki=\"Q20\" class=\"onbekend\" fill=\"#d00000\">"
        "<title>onbekende code</title>\n"
        "<circle cx=\"7\" cy=\"7.5\" r=\"0.3\"/>\n</g>\n"
        "<g id=\"T-NAAM\" data-code=\"NAAM\" data-lki=\"Z04\" class=\"bekend\" fill=\"#202020\"><title>NAAM</title>\n"
        "<text x=\"12\" y=\"2\" dy=\"0.36\" text-anchor=\"middle\" transform=\"rotate(-29.7 12 2)\">"
        "Café &amp; &lt;b&gt;</text>\n</g>\n"
        "</g>\n</svg>\n");
}

TEST_F(Svg, ArcsHaveTheFlagsOfTheirSweepAndTurningDirection) {
    const std::string points = "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",0,5,\"HULP\",0,\"\"\n3,\"\",5,5,\"HULP\",0,\"\"\n";
    const std::string edges = "1,1,2,ARC_CENT\n1,2,3,ARC_CENT\n2,1,2,ARC_CENT\n2,2,3,ARC_CENT\n";
    const DisplayList list = Picture({.points = points, .lines = "1,\"MUUR\",0\n2,\"GEVEL\",10000\n", .edges = edges});
    const std::string svg = Drawn(list);
    // From south of the centre to east of it: clockwise three quarters, anticlockwise one.
    EXPECT_EQ(GroupOf(svg, "L-MUUR"), "<path d=\"M7 12A5 5 0 1 1 12 7\"/>\n");
    EXPECT_EQ(GroupOf(svg, "L-GEVEL"), "<path d=\"M7 12A5 5 0 0 0 12 7\"/>\n");
}

TEST_F(Svg, CirclesAndCurvesAreDrawnAsThat) {
    const DisplayList list =
        Picture({.points = "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",0,5,\"HULP\",0,\"\"\n"
                           "3,\"\",0,10,\"HULP\",0,\"\"\n",
                 .lines = "1,\"MUUR\",0\n2,\"GEVEL\",0\n",
                 .edges = "1,1,2,CIRCLE_CENT\n1,2,1,CIRCLE_CENT\n2,1,2,CURVE_4RD\n2,2,3,CURVE_4RD\n"});
    const std::string svg = Drawn(list);
    EXPECT_EQ(GroupOf(svg, "L-MUUR"), "<path d=\"M7 12A5 5 0 0 1 7 2A5 5 0 0 1 7 12\"/>\n");
    EXPECT_EQ(GroupOf(svg, "L-GEVEL"), "<path d=\"M7 12C7 10.333 7 8.667 7 7C7 5.333 7 3.667 7 2\"/>\n");
}

TEST_F(Svg, PointsAreDrawnByTheirTypeAndDirection) {
    const DisplayList list = Picture({.points = "1,\"\",0,0,\"LAMP\",100,\"\"\n2,\"\",10,0,\"BOOM\",0,\"\"\n"
                                                "3,\"\",20,0,\"GP\",0,\"\"\n4,\"\",30,0,\"HULP\",0,\"\"\n"});
    const std::string svg = Drawn(list);
    EXPECT_EQ(GroupOf(svg, "P-LAMP"), "<path d=\"M2 1.6A0.4 0.4 0 0 0 2 2.4A0.4 0.4 0 0 0 2 1.6M2 2L2 1.1\"/>\n");
    EXPECT_EQ(GroupOf(svg, "P-BOOM"),
              "<path d=\"M12.4 2A0.4 0.4 0 0 0 11.6 2A0.4 0.4 0 0 0 12.4 2M11.6 2L12.4 2M12 2.4L12 1.6\"/>\n");
    EXPECT_EQ(GroupOf(svg, "P-GP"), "<path d=\"M22 1.4L21.48 2.3L22.52 2.3L22 1.4M22 2L22 2\"/>\n");
    EXPECT_EQ(GroupOf(svg, "P-HULP"), "<circle cx=\"32\" cy=\"2\" r=\"0.08\"/>\n");
}

TEST_F(Svg, ALongLineStringIsOneElement) {
    Rows rows{.points = "", .lines = "1,\"MUUR\",0\n"};
    for (int i = 1; i <= 200; ++i) {
        rows.points += std::to_string(i) + ",\"\"," + std::to_string(i) + ",0,\"HULP\",0,\"\"\n";
        if (i > 1) rows.edges += "1," + std::to_string(i - 1) + "," + std::to_string(i) + ",STRAIGHT\n";
    }
    const DisplayList list = Picture(rows);
    const std::string group = GroupOf(Drawn(list), "L-MUUR");
    EXPECT_EQ(std::count(group.begin(), group.end(), '\n'), 1);
    EXPECT_EQ(std::count(group.begin(), group.end(), 'M'), 1);
    EXPECT_EQ(std::count(group.begin(), group.end(), 'L'), 199);
}

TEST_F(Svg, AFrameShowsWhatLiesInItAndNoOtherCodes) {
    const DisplayList list = Picture({.points = "1,\"\",0,0,\"MV\",0,\"\"\n2,\"\",100,0,\"BOOM\",0,\"\"\n"
                                                "3,\"\",51,52,\"MV\",0,\"\"\n"});
    PictureFrame frame;
    frame.box.Add(*list.origin.From(50, 50));
    frame.box.Add(*list.origin.From(60, 70));
    const std::string svg = Drawn(list, frame);
    EXPECT_NE(svg.find("viewBox=\"0 0 10 20\" data-east=\"50\" data-north=\"70\""), std::string::npos) << svg;
    EXPECT_EQ(GroupOf(svg, "P-MV"), "<circle cx=\"1\" cy=\"18\" r=\"0.15\"/>\n");
    EXPECT_EQ(svg.find("BOOM"), std::string::npos);
}

TEST_F(Svg, OfLongLineStringsAFrameShowsThePartsInItEachStringAnElementOfItsOwn) {
    // Two line strings that go on beside each other for 200 metres, and one that lies elsewhere.
    Rows rows{.points = "", .lines = "1,\"MUUR\",0\n2,\"MUUR\",0\n3,\"GEVEL\",0\n"};
    int number = 0;
    for (int line = 1; line <= 3; ++line) {
        for (int i = 0; i <= 200; ++i) {
            rows.points += std::to_string(++number) + ",\"\"," + std::to_string(i) + "," +
                           std::to_string(line == 3 ? 500 : line) + ",\"HULP\",0,\"\"\n";
            if (i == 0) continue;
            rows.edges +=
                std::to_string(line) + "," + std::to_string(number - 1) + "," + std::to_string(number) + ",STRAIGHT\n";
        }
    }
    const DisplayList list = Picture(rows);
    PictureFrame frame;
    frame.box.Add(*list.origin.From(140, 0));
    frame.box.Add(*list.origin.From(210, 10));
    const std::string svg = Drawn(list, frame);
    const std::string group = GroupOf(svg, "L-MUUR");
    EXPECT_EQ(std::count(group.begin(), group.end(), '\n'), 2) << group;
    EXPECT_TRUE(group.starts_with("<path d=\"M-12 9L")) << group;  // the third part begins at 128
    EXPECT_EQ(svg.find("GEVEL"), std::string::npos);
}

TEST_F(Svg, IdsAreWithoutSignsAndDifferForDifferentCodes) {
    EXPECT_EQ(CodeId(Code(u'P', u"S01 A01")), "P-S01_32.A01");
    EXPECT_EQ(CodeId(Code(u'L', u"a-Z_9")), "L-a-Z_95.9");
    EXPECT_EQ(CodeId(Code(u'T', u"\u00FFZ30")), "T-_255.Z30");
    EXPECT_EQ(CodeId(Code(u'P', u"")), "P-");
    EXPECT_NE(CodeId(Code(u'P', u"_32.")), CodeId(Code(u'P', u" ")));
}

TEST_F(Svg, TextsHoldNothingThatXmlCannot) {
    EXPECT_EQ(XmlText(u"a\"b'&<>\u20AC"), "a&quot;b'&amp;&lt;&gt;€");
    EXPECT_EQ(XmlText(Text{u'a', u'\0', u'\x1B', u'\n', char16_t{0xDC80}, char16_t{0xFFFE}}), "a?????");
}

TEST(PictureStyles, UnknownCodesAreRedAndNoOtherOnesAre) {
    PictureFrame frame;
    frame.box.Add({0, 0});
    frame.box.Add({1'500'000, 1000});
    PictureCode code;
    code.table = u'L';
    EXPECT_EQ(StyleOf(code, frame).colour, 0xD00000);
    code.isKnown = code.isWritten = true;
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        code.code = Text(1, letter);
        const Colour colour = StyleOf(code, frame).colour;
        EXPECT_LT(colour >> 16, 0x80) << ToUtf8(code.code);
        // Dark enough to be read on white.
        EXPECT_LT((colour >> 16) * 0.3 + (colour >> 8 & 0xFF) * 0.6 + (colour & 0xFF) * 0.1, 112) << ToUtf8(code.code);
    }
    EXPECT_EQ(StyleOf(code, frame).lineWidth, 1000);  // a pixel
    frame.pixels = 100'000;
    EXPECT_EQ(StyleOf(code, frame).lineWidth, 60);
}

}  // namespace

}  // namespace korvande::testing
