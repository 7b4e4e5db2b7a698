#include <algorithm>
#include <map>
#include <sstream>

#include "core/LineWriter.h"
#include "core/Picture.h"
#include "core/modAzimuth.h"
#include "picture/SvgCanvas.h"
#include "tests/picture/PictureTest.h"
#include "tests/run/SampleRun.h"
#include "tests/support/RunProgram.h"

// Pictures read back by a parser of XML that knows nothing of this program (tests/picture/svg.py).
namespace korvande::testing {

namespace {

class ParsedSvg : public PictureTest {
 protected:
    // What the ends of the drawing's segments cover, the centres of arcs left aside.
    std::string ExtentOfLines() const {
        const Drawing& drawing = last->drawing;
        double least[2] = {1e9, 1e9};
        double most[2] = {0, 0};
        for (std::int32_t index = 1; index <= drawing.Edges.UpperBound(); ++index) {
            for (const std::int32_t end : {drawing.Edges[index].StartPt, drawing.Edges[index].EndPt}) {
                const PointRec& point = drawing.Points[end];
                if (drawing.Code(point).TrimmedRight() == u"HULP") continue;
                const double place[2] = {point.East, point.North};
                for (int i = 0; i < 2; ++i) least[i] = std::min(least[i], place[i]);
                for (int i = 0; i < 2; ++i) most[i] = std::max(most[i], place[i]);
            }
        }
        std::string extent;
        for (const double metres : {least[0], least[1], most[0], most[1]}) {
            extent += (extent.empty() ? "" : " ") + FormatPicture(metres, "0.000");
        }
        return extent;
    }

    // What the parser tells of the picture of a drawing.
    std::string Parsed(const DisplayList& list) {
        LineWriter output;
        output.Open(folder / "beeld.svg");
        const PictureFrame frame = WholeFrame(list);
        SvgCanvas canvas(output, list, frame, u"Beeld & \"tekst\"");
        DrawPicture(last->drawing, list, frame, canvas);
        canvas.Finish();
        output.Close();
        const ProgramResult result =
            RunProgram({.program = KORVANDE_PYTHON,
                        .arguments = {KORVANDE_SOURCE_DIR "/tests/picture/svg.py", folder.Path() + "/beeld.svg"},
                        .environment = {{"PYTHONIOENCODING", "utf-8"}}});
        EXPECT_EQ(result.status, 0) << result.error;
        return result.output;
    }
};

TEST_F(ParsedSvg, TheSampleHasAGroupForEachCodeWithAllItsObjects) {
    ASSERT_TRUE(LoadProjectFile(screen, project, FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    const DisplayList list = Picture(idexToNen, SampleBytes("straat.idx"));
    std::istringstream in(Parsed(list));
    std::map<std::string, int> counts;
    std::string line;
    int arcs = 0;
    std::string extent;
    while (std::getline(in, line)) {
        if (line.starts_with("arc ")) {
            ++arcs;
        } else if (line.starts_with("extent ")) {
            extent = line.substr(7);
        } else {
            std::istringstream words(line.substr(line.rfind('|') + 1));
            int paths = 0;
            int circles = 0;
            int texts = 0;
            words >> paths >> circles >> texts;
            counts[line.substr(0, line.find(' '))] = paths + circles + texts;
        }
    }
    ASSERT_EQ(counts.size(), list.codes.size());
    for (const PictureCode& code : list.codes) EXPECT_EQ(counts[CodeId(code)], code.count) << ToUtf8(code.code);
    EXPECT_EQ(arcs, 7 + 2 * 5);
    EXPECT_EQ(extent, ExtentOfLines());
}

TEST_F(ParsedSvg, EveryArcTurnsAboutItsCentreInItsDirection) {
    // Quarter, half, three quarters and nearly a circle, both ways, at a place far from the origin.
    std::string expected;
    Rows rows{.points = "", .lines = "", .edges = ""};
    int number = 0;
    int lineNo = 0;
    for (const double sweep : {100.0, 190.0, 300.0, 390.0, -100.0, -190.0, -300.0, -390.0}) {
        const double east = 121000 + 50 * ++lineNo;
        const Position centre{east, 487000};
        const auto add = [&](Position place) {
            rows.points += std::to_string(++number) + ",\"\"," + FormatPicture(place.east, "0.0000") + "," +
                           FormatPicture(place.north, "0.0000") + ",\"HULP\",0,\"\"\n";
        };
        add(PolarPoint(centre.east, centre.north, 0.3, 17));
        add(centre);
        add(PolarPoint(centre.east, centre.north, 0.3 + GradsToRadians(sweep), 17));
        const std::string line = std::to_string(lineNo);
        rows.lines += line + ",\"MUUR\"," + (sweep < 0 ? "10000" : "0") + "\n";
        rows.edges += line + "," + std::to_string(number - 2) + "," + std::to_string(number - 1) + ",ARC_CENT\n" +
                      line + "," + std::to_string(number - 1) + "," + std::to_string(number) + ",ARC_CENT\n";
        expected += FormatPicture(east, "0.00") + " 487000.00 " + FormatPicture(sweep * 0.9, "0.0") + "\n";
    }
    std::istringstream in(Parsed(Picture(rows)));
    std::string found;
    std::string line;
    while (std::getline(in, line)) {
        if (!line.starts_with("arc ")) continue;
        std::istringstream words(line.substr(4));
        double east = 0;
        double north = 0;
        double turn = 0;
        words >> east >> north >> turn;
        found +=
            FormatPicture(east, "0.00") + " " + FormatPicture(north, "0.00") + " " + FormatPicture(turn, "0.0") + "\n";
    }
    EXPECT_EQ(found, expected);
}

TEST_F(ParsedSvg, CodesAndTextsOfAnyCharactersComeThrough) {
    const std::string out =
        Parsed(Picture({.points = "1,\"\",0,0,\"A&<>\x80\xE9 \",0,\"\"\n2,\"\",0,5,\"]]>\",0,\"\"\n",
                        .texts = "1,1,0,\"<!--\x01&amp;\"\n"}));
    EXPECT_NE(out.find("P-A_38._60._62._8364._201. A&<>€É | onbekende code | 0 1 0\n"), std::string::npos) << out;
    EXPECT_NE(out.find("P-_93._93._62. ]]> | onbekende code | 0 1 0\n"), std::string::npos) << out;
    EXPECT_NE(out.find("T-NAAM NAAM | NAAM | 0 0 1\n"), std::string::npos) << out;
}

}  // namespace

}  // namespace korvande::testing
