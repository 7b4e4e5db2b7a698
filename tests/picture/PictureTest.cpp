#include "tests/picture/PictureTest.h"

#include <sstream>

#include "core/Picture.h"

namespace korvande::testing {

namespace {

// Each line's row with a terminator, and the words of a row separated by blanks.
std::string RowsWith(const std::string& lines, bool numbered = false) {
    std::istringstream in(lines);
    std::string rows;
    std::string line;
    int number = 0;
    while (std::getline(in, line)) {
        if (line.empty()) continue;
        rows += (numbered ? std::to_string(++number) + "," : "") + line + ";\n";
    }
    return rows;
}

}  // namespace

std::string PictureTest::Idex(const Rows& rows) {
    std::string idex = "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"NAAM\";\nEND LAYERS\nDATABASE\n";
    idex += "POINTS (PointNo,PointID,East,North,Code,SymDir,Description)\n" + RowsWith(rows.points) + "END POINTS\n";
    if (!rows.lines.empty()) {
        idex += "LINES (LineNo,Code,Flags1)\n" + RowsWith(rows.lines);
        idex += "EDGES (LineNo,StartPt,EndPt,LINETYPE)\n" + RowsWith(rows.edges) + "END EDGES\nEND LINES\n";
    }
    if (!rows.texts.empty()) {
        idex += "TEXT\nBOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,HzDirection,LayerNo)\n";
        std::istringstream in(rows.texts);
        std::string items;
        std::string line;
        for (int box = 1; std::getline(in, line); ++box) {
            const std::size_t last = line.rfind(',');
            const std::string number = std::to_string(box);
            idex += number + "," + line.substr(0, last) + ",0;\n";
            items += number + ",1," + line.substr(last + 1) + ";\n";
        }
        idex += "END BOX_ON_POINT\nITEMS (TextBoxNo,LineNo,TextItem)\n" + items + "END ITEMS\nEND TEXT\n";
    }
    return WithCrLf(idex + "END DATABASE\n");
}

std::string Metres(const DisplayList& list, PicturePlace place) {
    const Position metres = list.origin.Metres(place);
    return FormatPicture(metres.east, "0.000") + " " + FormatPicture(metres.north, "0.000");
}

namespace {

std::string Grads(float direction) {
    std::string text = FormatPicture(direction, "0.##");
    if (text.ends_with('.')) text.pop_back();
    return text;
}

}  // namespace

std::string PictureTest::PointsOf(const DisplayList& list) {
    constexpr const char* shapes[] = {"Plain", "Rotated", "ControlPoint", "Symbol", "NotWritten"};
    std::string all;
    for (const PicturePoint& point : list.points) {
        const PictureCode& code = list.codes[point.code];
        all += ToUtf8(code.code) + " " + shapes[static_cast<int>(code.shape)] + " " + Metres(list, point.at) + " " +
               Grads(point.direction) + (code.isKnown ? "" : " unknown") + "\n";
    }
    return all;
}

namespace {

struct LineTeller {
    const DisplayList& list;
    std::string text{};

    void Begin(PicturePlace place, bool isResumed) { text += (isResumed ? " R " : " M ") + Metres(list, place); }
    void Straight(PicturePlace to) { text += " L " + Metres(list, to); }
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) {
        text += (isAnticlockwise ? " A< " : " A> ") + Metres(list, centre) + " " + Metres(list, to);
    }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
        text += " C " + Metres(list, first) + " " + Metres(list, second) + " " + Metres(list, to);
    }
};

}  // namespace

std::string PictureTest::LinesOf(const DisplayList& list) {
    std::string all;
    for (const PictureLine& line : list.lines) {
        LineTeller teller{list};
        WalkLine(list, line, teller);
        all += ToUtf8(list.codes[line.code].code) + " " + std::to_string(line.lineNo) + ":" + teller.text + "\n";
    }
    return all;
}

std::string PictureTest::TextsOf(const DisplayList& list) {
    std::string all;
    for (const PictureText& text : list.texts) {
        all += ToUtf8(list.codes[text.code].code) + " " + Metres(list, text.at) + " " + Grads(text.direction) + " " +
               std::to_string(text.position) + " " + std::to_string(text.length) + "\n";
    }
    return all;
}

std::string PictureTest::CodesOf(const DisplayList& list) {
    std::string all;
    for (const PictureCode& code : list.codes) {
        all += ToUtf8(Concat(Text(1, code.table), u" ", code.code, u" = ", code.lkiCode, u", ", code.description, u", ",
                             code.isKnown ? u"known" : u"unknown", code.isWritten ? u"" : u", not written", u", ",
                             code.count, u"\n"));
    }
    return all;
}

}  // namespace korvande::testing
