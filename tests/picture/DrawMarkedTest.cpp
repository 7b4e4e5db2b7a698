#include "picture/DrawMarked.h"

#include <gmock/gmock.h>

#include "core/LineWriter.h"
#include "picture/SvgCanvas.h"
#include "tests/picture/PictureTest.h"

namespace korvande::testing {

namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class DrawMarkedTest : public PictureTest {
 protected:
    // A wall from west to east and an unknown point.
    DrawMarkedTest()
        : list(Picture({.points = "1,\"\",100,100,\"HULP\",0,\"\"\n2,\"\",140,100,\"HULP\",0,\"\"\n"
                                  "3,\"\",120,110,\"VREEMD\",0,\"\"\n",
                        .lines = "1,\"MUUR\",0\n",
                        .edges = "1,1,2,STRAIGHT\n"})),
          index(list) {}

    Position At(double east, double north) const { return PositionOf(*list.origin.From(east, north)); }
    void Mark(TextView name, Colour colour, std::vector<Position> line) {
        FrameMark mark;
        mark.outline = {std::move(line)};
        mark.box = BoxOf(mark.outline);
        mark.colour = colour;
        mark.name = name;
        marks.push_back(mark);
    }
    std::string Drawn() const {
        std::string bytes;
        LineWriter output;
        output.OpenBytes(bytes);
        const PictureFrame frame = WholeFrame(list);
        SvgCanvas canvas(output, list, frame, u"proef");
        DrawMarked({&last->drawing, &list, &index}, marks, frame, canvas);
        canvas.Finish();
        output.Close();
        return bytes;
    }

    DisplayList list;
    SpatialIndex index;
    FrameMarks marks;
};

TEST_F(DrawMarkedTest, TheDrawingIsGreyWhateverItsCodes) {
    EXPECT_THAT(Drawn(),
                AllOf(HasSubstr("data-code=\"MUUR\""), HasSubstr("data-code=\"VREEMD\""),
                      HasSubstr("stroke=\"#b4b4b4\""), HasSubstr("fill=\"#b4b4b4\""), Not(HasSubstr("#d00000"))));
}

TEST_F(DrawMarkedTest, MarksOfOneNameAreAGroupInTheirColourOverTheDrawing) {
    Mark(u"gewijzigd", 0xB85C00, {At(100, 100), At(140, 100)});
    Mark(u"ontbreekt", 0xD00000, {At(110, 100), At(120, 105), At(130, 100)});
    Mark(u"gewijzigd", 0xB85C00, {At(100, 104), At(140, 104)});
    const std::string svg = Drawn();
    const std::size_t changed = svg.find("<g id=\"V-gewijzigd\"");
    const std::size_t missing = svg.find("<g id=\"V-ontbreekt\"");
    ASSERT_NE(changed, std::string::npos) << svg;
    ASSERT_NE(missing, std::string::npos) << svg;
    EXPECT_LT(svg.find("data-code=\"VREEMD\""), changed);
    EXPECT_LT(changed, missing);
    EXPECT_EQ(svg.find("<g id=\"V-gewijzigd\"", changed + 1), std::string::npos);
    EXPECT_THAT(svg.substr(changed, svg.find('>', changed) - changed), HasSubstr("stroke=\"#b85c00\""));
    EXPECT_THAT(svg.substr(missing, svg.find('>', missing) - missing), HasSubstr("stroke=\"#d00000\""));
}

TEST_F(DrawMarkedTest, AMarkOfOnePlaceIsADotBesideTheLinesOfItsName) {
    Mark(u"ontbreekt", 0xD00000, {At(100, 100), At(140, 100)});
    Mark(u"ontbreekt", 0xD00000, {At(120, 110)});
    const std::string svg = Drawn();
    const std::size_t places = svg.find("data-code=\"ontbreekt (plaats)\"");
    ASSERT_NE(places, std::string::npos) << svg;
    EXPECT_NE(svg.find("<circle", places), std::string::npos);
}

TEST_F(DrawMarkedTest, AMarkThatTheFrameDoesNotShowIsLeftOut) {
    Mark(u"toegevoegd", 0x0050C8, {At(5000, 5000), At(5001, 5000)});
    EXPECT_THAT(Drawn(), Not(HasSubstr("toegevoegd")));
}

}  // namespace

}  // namespace korvande::testing
