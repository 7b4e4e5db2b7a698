#pragma once

#include "app/ReadPreview.h"
#include "tests/app/AppTest.h"

namespace korvande::testing {

// A program that shows drawings. Its control table knows a plain point, a symbol, a wall and a text.
class PreviewTest : public AppRunTest {
 protected:
    PreviewTest() {
        folder.Write("projecten/proef.nst",
                     WithCrLf("[Points]\nUnknown = STANDRD, Q20, PUNT, ONBEKEND PUNT\nBOOM = S01 A01, SYMBOOL, BOOM\n"
                              "MV = Q21, PUNT, MAAIVELD\nHULP = Q25, DUMMY, HULPPUNT\n"
                              "[Lines]\nUnknown = STANDRD, Q00, LIJN, ONBEKEND\nMUUR = B05, LIJN, MUUR\n"
                              "[Texts]\nUnknown = STANDRD, Z19, ONBEKEND\nNAAM = Z04, NAAM\n[End]\n"));
        LoadProjectFile(form, FromUtf8(projects + "/proef.nst"));
        options.chkExportUnknowns = true;
    }

    // A drawing of a wall from (0, 0) to (40, 0), a known point on it and an unknown one 10 m above that.
    Text Street(const std::string& more = {}) const {
        return folder.Write(
            "straat.idx",
            WithCrLf("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"NAAM\";\nEND LAYERS\nDATABASE\n"
                     "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
                     "1,\"P1\",0,0,1.5,\"HULP\",\"\",0;\n2,\"P2\",40,0,1.5,\"HULP\",\"\",0;\n"
                     "3,\"P3\",20,0,1.5,\"MV\",\"\",0;\n4,\"P4\",20,10,1.5,\"RAAR\",\"\",0;\n" +
                     more +
                     "END POINTS\nLINES (LineNo,Code,Flags1)\n1,\"MUUR\",0;\n"
                     "EDGES (LineNo,StartPt,EndPt,LINETYPE)\n1,1,2,STRAIGHT;\nEND EDGES\nEND LINES\nEND DATABASE\n"));
    }

    // What is read of an order, as soon as it is there.
    static std::unique_ptr<Preview> Read(PreviewOrder order) {
        PreviewReading reading(std::move(order));
        while (!reading.IsOver()) std::this_thread::yield();
        EXPECT_EQ(reading.End(), PreviewEnd::Read) << ToUtf8(reading.Failure());
        return reading.Take();
    }
    std::unique_ptr<Preview> ReadStreet(const std::string& more = {}) {
        Choose(0, Street(more), {});
        return Read(*PreviewOfInput(form));
    }
};

}  // namespace korvande::testing
