#include "tests/cli/CliTest.h"

namespace korvande::testing {

const std::string smallIdex = WithCrLf(R"(HEADER
  SEPARATOR   ','
  TERMINATOR  ';'
  PROJECT
    NAME          "Klein"
    FIELD_DATE    14-05-2024
  END PROJECT
END HEADER
DEFINITIONS
  LAYERS (LayerNo,Name,Flags)
    0,  "NAAM",   00000001;
  END LAYERS
END DEFINITIONS
DATABASE
  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)
    1,"A1",1000.0000,2000.0000,1.5000,"MV","",0.0000;
    2,"A2",1010.0000,2000.0000,0.0000,"MV","",0.0000;
    3,"A3",1020.0000,2000.0000,0.0000,"VREEMD","",0.0000;
  END POINTS
  LINES (LineNo,Code,Flags1,Flags2)
    1,"MUUR",00000000 00000000,00000000 00000000;
    EDGES (LineNo,StartPt,StartPtID,EndPt,EndPtID,LINETYPE)
      1,1, "A1",2, "A2",STRAIGHT    ;
    END EDGES
  END LINES
  TEXT
    BOXES
      BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)
        1, 1 , 1 , 0,  100.000;
      END BOX_ON_POINT
    END BOXES
    ITEMS (TextItemNo, TextBoxNo, TextPropertyNo, LineNo, TextItem)
        1, 1 , 1, 1,"Café";
    END ITEMS
  END TEXT
END DATABASE
)");

const std::string smallNen1878 =
    "010NEN1878    V202405202405       0101S05                     01\r\n"
    "020102150201         0         0         1         0         101\r\n"
    "03MQ22      G0101                                             00\r\n"
    "04I1        NA1       X  1000000Y  2000000                    01\r\n"
    "03MQ77      G0101                                             00\r\n"
    "04I1        X  9000000Y  9000000                              01\r\n"
    "03MB05      G1201                                             00\r\n"
    "04I1        X  1000000Y  2000000I2        X  1010000Y  200000001\r\n"
    "99                                                              \r\n";

const std::string smallSuf2 =
    "010           V      202405       VAIKLI, LisCAD              01\r\n"
    "02010201             0         0         1         0         101\r\n"
    "03MQ22      G 10                                              01\r\n"
    "04I1        NA1       X  1000000Y  2000000                    01\r\n"
    "99                                                              \r\n";

const std::string smallTable = WithCrLf(R"([NEN1878]
Source = ZAND
Reporting = None
[Import]
AcceptUnknown = 0
[Export]
IncludeUnknown = 0
[Points]
Unknown = STANDRD, Q20, PUNT, ONBEKEND PUNTOBJECT, 0, 0, 0
MV = Q22, PUNT, MAAIVELD, 0, 0, 0
[Lines]
Unknown = STANDRD, Q00, LIJN, ONBEKEND LIJNOBJECT, 0, 0, 0
MUUR = B05, LIJN, MUUR, 0, 0, 0
[Texts]
Unknown = STANDRD, Z19, ONBEKEND TEKSTOBJECT, 0, 0, 0
NAAM = Z04, NAAM, 0, 0, 0
[End]
)");

Start CliTest::StartOf(const std::vector<std::string>& arguments, Start start) const {
    if (start.program.empty()) start.program = KORVANDE_CLI;
    start.arguments.insert(start.arguments.end(), arguments.begin(), arguments.end());
    start.folder = folder.Path();
    start.environment.insert({{"KORVANDE_REGISTRY", folder.Path() + "/register.reg"},
                              {"HOME", folder.Path()},
                              {"XDG_CONFIG_HOME", folder.Path()},
                              {"KORVANDE_DRIVE_D", {}}});
    return start;
}

ProgramResult CliTest::Run(const std::vector<std::string>& arguments, Start start) {
    return RunProgram(StartOf(arguments, std::move(start)));
}

void CliTest::ExpectRefused(const std::vector<std::string>& arguments, const std::string& message) {
    const std::string before = folder.Listing();
    const ProgramResult result = Run(arguments);
    EXPECT_EQ(result.status, 2) << message;
    EXPECT_EQ(result.error, message + "\n");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(folder.Listing(), before) << message;
}

ProgramResult CliTest::Translate(const std::string& mode, std::vector<std::string> arguments, Start start) {
    arguments.insert(arguments.begin(), {"vertaal", "--modus", mode});
    return Run(arguments, std::move(start));
}

std::string CliTest::Log(const std::string& name) const {
    std::string text = Windows1252ToUtf8(Bytes(name));
    std::erase(text, '\r');
    return text;
}

std::string Nen1878Points(int count) {
    std::string points = smallNen1878.substr(0, 2 * recordBytes);
    for (int i = 0; i < count; ++i) points.append(smallNen1878, 2 * recordBytes, 2 * recordBytes);
    return points;
}

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

}  // namespace korvande::testing
