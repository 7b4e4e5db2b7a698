#pragma once

#include "tests/support/ProgramState.h"
#include "tests/support/TestRegistry.h"

namespace korvande::testing {

// A drawing of one point with the code BOOM, and what every test of a run needs: files in a folder, a registry of
// its own and a fixed moment.
class RunTest : public ProgramTest {
 protected:
    RunTest() {
        CurrentProject() = u"TEST.NST";
        ProjectFolder() = folder / "";
        frmKORVANDE().chkExportUnknowns = true;
    }

    static std::string Drawing() {
        return WithCrLf(
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
            "1,\"P1\",121000.5,487000.25,1.5,\"BOOM\",\"\",0;\nEND POINTS\nEND DATABASE\n");
    }

    static std::string Nen1878() {
        const auto line = [](std::string text, const char* endCode) {
            text.resize(62, ' ');
            return text + endCode + "\r\n";
        };
        return line("010NEN1878    V202611202611       0101S05", "01") +
               "020102150201         0         0         1         0         101\r\n" +
               line("03MBOOM     G010111   ", "00") + line("04I1        X121000500Y487000250", "01") + line("99", "  ");
    }

    TestRegistry registry{folder};
    EnvironmentValue moment{"SOURCE_DATE_EPOCH", "1795230000"};  // 21-11-2026 03:00:00 UTC
};

}  // namespace korvande::testing
