#include "tests/nensuf/ExportTest.h"

namespace korvande::testing {
namespace {

// Whole files of a drawing with an object of each kind, byte by byte as they stand.
class ExportFile : public ExportTest {
 protected:
    ExportFile() {
        OwnerRec& owner = translation.owner;
        owner.NameLong = u"GEMEENTE MOLVEREN";
        owner.NameShort = u"MOLV";
        owner.Street = u"KERKSTRAAT";
        owner.Number = u"12";
        owner.Extra = u"A";
        owner.ZipCode = u"7391KX";
        owner.Town = u"MOLVEREN";
        translation.drawing.DrawingDate = u"14-05-2024";
        translation.options.lstSource = 1;
        AddRow(translation.codes.points, {u"GP", u"E01", types::controlPoint, u"Grondslagpunt", 1, 1, 1});
        AddRow(translation.codes.points, {u"PUT", u"S01 ROE", types::symbol, u"Rioolput"});
        AddRow(translation.codes.lines, {u"PERCEEL", u"A01", types::boundary, u"Perceelgrens", 1, 2, 3});
        AddPoint({.code = u"GP", .east = 123456.789, .north = 456789.012, .elevation = 2.345, .name = u"GP1"});
        AddPoint({.code = u"PAAL", .east = 123460, .north = 456790.5, .name = u"2"});
        AddPoint({.code = u"PUT", .east = 123470, .north = 456800, .elevation = -0.5, .symDir = 50, .name = u"3"});
        AddPoint({.code = u"RAAR", .east = 123480, .north = 456810, .elevation = 1, .name = u""});
        AddLine(u"KANT");
        AddLine(u"PERCEEL");
        AddSegment({});
        AddSegment({.type = u"ARC_CENT", .start = 2, .end = 3});
        AddSegment({.line = 2, .start = 3, .end = 1});
        AddText({.text = u"Café 't Hoekje"});
        AddText({.text = u"2,35", .code = u"\u00FFZ31", .direction = 50, .position = heightAnchor});
    }
};

TEST_F(ExportFile, AnEmptyDrawingIsTheHeaderAndTheClosingRecord) {
    ResetDrawing(translation.drawing);
    EXPECT_EQ(Export(),
              "010NEN1878    V202405202405       0101S05                     01\n"
              "020102150201         0         0         1         0         101\n"
              "07NGEMEENTE MOLVEREN                                KMOLV     00\n"
              "07AKERKSTRAAT              12   A                   P7391KX   00\n"
              "07WMOLVEREN                                                   01\n"
              "99                                                              \n");
    translation.mode.variant = Variant::Suf2;
    EXPECT_EQ(Export(),
              "010           V      202405       VAIKLI, LisCAD              01\n"
              "02010201             0         0         1         0         101\n"
              "99                                                              \n");
}

TEST_F(ExportFile, ADrawingInNen1878) {
    EXPECT_EQ(Export(),
              "010NEN1878    V202405202405       0101S05                     01\n"
              "020102150201         0         0         1         0         101\n"
              "07NGEMEENTE MOLVEREN                                KMOLV     00\n"
              "07AKERKSTRAAT              12   A                   P7391KX   00\n"
              "07WMOLVEREN                                                   01\n"
              "03ME01      G010111   D 20240514BBRON  0                      00\n"
              "04I1        X123456789Y456789012Q  1  1  1                    00\n"
              "05F112      X123456789Y456789012                              00\n"
              "06A20TGrondslagpunt                                           01\n"
              "03MG01      G010111   D 20240514BBRON  0                      00\n"
              "04I1        X123460000Y456790500                              00\n"
              "05F112      X123460000Y456790500                              00\n"
              "06A20TOmschrijving                                            01\n"
              "03MS01 ROE  G010111   D 20240514BBRON  0                      00\n"
              "04I1        X123470000Y456800000                              00\n"
              "05F112      X123470000Y456800000                              00\n"
              "05F012ROE   X123470000Y456800000X123470707Y456800707          00\n"
              "06A20TRioolput                                                01\n"
              "03MB01      G120111   D 20240514BBRON  0                      00\n"
              "04I1        X123456789Y456789012I2        X123460000Y45679050001\n"
              "03MB01      G130111   D 20240514BBRON  0                      00\n"
              "04I1        X123460000Y456790500I4        X123470000Y45680000001\n"
              "03MA01      G120111   D 20240514BBRON  0                      00\n"
              "04I1        X123470000Y456800000I2        X123456789Y45678901200\n"
              "04Q  1  2  3                                                  01\n"
              "03MZ01           11   D 20240514BBRON  0                      00\n"
              "05F111      X123456789Y456789012X123457789Y456789012KZ01      00\n"
              "06A14TCaf\xE9 't Hoekje                                          01\n"
              "03MZ31           11   D 20240514BBRON  0                      00\n"
              "05F111      X123456789Y456789012X123457496Y456789719KZ31      00\n"
              "06A09T2,35                                                    01\n"
              "99                                                              \n");
}

TEST_F(ExportFile, ADrawingInSuf2WithNamesHeightsAndUnknownObjects) {
    translation.mode.variant = Variant::Suf2;
    translation.options.chkExportUnknowns = true;
    translation.options.chkExport3D = translation.options.chkExportPointnoAsField = true;
    translation.options.chkExportSymRotation = true;
    EXPECT_EQ(Export(),
              "010           V      202405       VAIKLI, LisCAD              01\n"
              "02010201             0         0         1         0         101\n"
              "03ME01      G 10 11   D 20240514BBRON  0                      01\n"
              "04I1        NGP1      X123456789Y456789012Z     2345K  1  1  101\n"
              "05F112      NGP1      X123456789Y456789012Z     2345          01\n"
              "06A20TGrondslagpunt                                           01\n"
              "03MG01      G 10 11   D 20240514BBRON  0                      01\n"
              "04I1        N2        X123460000Y456790500                    01\n"
              "05F112      N2        X123460000Y456790500                    01\n"
              "06A20TOmschrijving                                            01\n"
              "03MS01 ROE  G 10 11   D 20240514BBRON  0                      01\n"
              "04I1        N3        X123470000Y456800000Z     -500          01\n"
              "05F112      N3        X123470000Y456800000Z     -500          01\n"
              "05F012ROE   N3        X123470000Y456800000Z     -500X12346929300\n"
              "05Y456800707Z     -500                                        01\n"
              "06A20TRioolput                                                01\n"
              "03MQ20      G 10 11   D 20240514BBRON  0                      01\n"
              "04I1        X123480000Y456810000Z     1000                    01\n"
              "05F112      X123480000Y456810000Z     1000                    01\n"
              "06A20TONBEKEND PUNTOBJECT                                     01\n"
              "03MB01      G 30 11   D 20240514BBRON  0                      01\n"
              "04I1        NGP1      X123456789Y456789012Z     2345I2        00\n"
              "04N2        X123460000Y456790500                              01\n"
              "03MB01      G 40 11   D 20240514BBRON  0                      01\n"
              "04I1        N2        X123460000Y456790500I4        N3        00\n"
              "04X123470000Y456800000Z     -500                              01\n"
              "03MA01      G 30 11   D 20240514BBRON  0                      01\n"
              "04I1        N3        X123470000Y456800000Z     -500I2        00\n"
              "04NGP1      X123456789Y456789012Z     2345K  1  2  3          01\n"
              "03MZ01           11   D 20240514BBRON  0                      01\n"
              "05F111      NGP1      X123456789Y456789012Z     2345X12345778900\n"
              "05Y456789012Z     2345QZ01                                    01\n"
              "06A14TCaf\xE9 't Hoekje                                          01\n"
              "03MZ31           11   D 20240514BBRON  0                      01\n"
              "05F111      NGP1      X123456789Y456789012Z     2345X12345749600\n"
              "05Y456789719Z     2345QZ31                                    01\n"
              "06A09T2,35                                                    01\n"
              "99                                                              \n");
}

}  // namespace
}  // namespace korvande::testing
