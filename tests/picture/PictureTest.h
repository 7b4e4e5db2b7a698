#pragma once

#include <string>
#include <vector>

#include "picture/MakeDisplayList.h"
#include "run/Steps.h"
#include "tests/run/RunTest.h"

namespace korvande::testing {

// Pictures of small drawings. The control table knows a tree (symbol), a lamp (rotated point), a control point, a plain
// point and a DUMMY, two lines of which one is a boundary, a line that is not written, and a text.
class PictureTest : public RunTest {
 protected:
    PictureTest() {
        LoadProjectBytes(screen, project,
                         "[Points]\nUnknown = STANDRD, Q20, PUNT, ONBEKEND PUNT\n"
                         "BOOM = S01 A01, SYMBOOL, LOOFBOOM\nLAMP = S02 B01, ROT.PNT, LANTAARN\n"
                         "GP = E01, GRONDSL, GRONDSLAGPUNT\nMV = Q21, PUNT, MAAIVELD\nHULP = Q25, DUMMY, HULPPUNT\n"
                         "[Lines]\nUnknown = STANDRD, Q00, LIJN, ONBEKENDE LIJN\n"
                         "MUUR = B05, LIJN, MUUR\nGEVEL = B01, GRENS, GEVEL\nPERC = K01, DUMMY, PERCEEL\n"
                         "[Texts]\nUnknown = STANDRD, Z19, ONBEKENDE TEKST\nNAAM = Z04, NAAM\n[End]\n");
    }

    // An IDEX drawing: rows of points (number, name, east, north, code, direction), line strings (number, code, flags),
    // segments (line, start, end, type) and texts (anchor's number, position, direction, text), each on a line.
    struct Rows {
        std::string points;
        std::string lines{};
        std::string edges{};
        std::string texts{};
    };
    static std::string Idex(const Rows& rows);

    // The picture of a drawing, read as the run reads it.
    DisplayList Picture(const Rows& rows) { return Picture(idexToNen, Idex(rows)); }
    DisplayList Picture(Mode mode, std::string_view bytes) {
        ReadDrawing(BeginInMemory(mode, bytes));
        EXPECT_FALSE(last->outcome.Failed());
        return MakeDisplayList(*last);
    }

    // What is in a list, a line for each object, in metres: "BOOM Symbol 10.000 20.000 33.3"; "MUUR 1: M 0.000 0.000 L
    // 5.000 0.000 A< 5.000 5.000 10.000 5.000"; "NAAM 1.000 2.000 100 5 4" (direction, position, length).
    static std::string PointsOf(const DisplayList& list);
    static std::string LinesOf(const DisplayList& list);
    static std::string TextsOf(const DisplayList& list);
    static std::string CodesOf(const DisplayList& list);  // "P BOOM S01 A01 LOOFBOOM known 2"
};

std::string Metres(const DisplayList& list, PicturePlace place);

}  // namespace korvande::testing
