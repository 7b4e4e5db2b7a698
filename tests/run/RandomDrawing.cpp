#include "tests/run/RandomDrawing.h"

#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

std::vector<RandomCode> MakeCodes(const std::string& liscad, const std::string& lki,
                                  const std::vector<std::string>& types, int count) {
    std::vector<RandomCode> codes;
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        const std::string code = liscad + number;
        codes.push_back(
            {code, lki + number, types[static_cast<std::size_t>(i) % types.size()], "OMSCHRIJVING VAN " + code});
    }
    return codes;
}

// Decimals of a whole number of tenths of a millimetre, as metres.
std::string Metres(std::int64_t tenths) {
    const std::int64_t size = tenths < 0 ? -tenths : tenths;
    std::string fraction = std::to_string(size % 10000);
    fraction.insert(0, 4 - fraction.size(), '0');
    return (tenths < 0 ? "-" : "") + std::to_string(size / 10000) + "." + fraction;
}

std::string Rows(const std::vector<RandomCode>& codes, bool withType) {
    std::string rows;
    int quality = 0;
    for (const RandomCode& code : codes) {
        rows += code.liscad + " = " + code.lki + ", " + (withType ? code.type + ", " : "") + code.description + ", " +
                std::to_string(quality++ % 4) + ", 0, 0\n";
    }
    return rows;
}

}  // namespace

std::string Chance::Characters(std::size_t length) {
    constexpr std::string_view inside = " abcdefghijklmnopqrstuvwxyzABCXYZ0123456789'.,-/()#\xE9\xEB\xC7\xDF\x80";
    std::string text;
    while (text.size() < length) {
        const bool isAtAnEnd = text.empty() || text.size() + 1 == length;
        text.push_back(inside[isAtAnEnd ? 1 + Below(26) : Below(inside.size())]);
    }
    return text;
}

const std::vector<RandomCode>& PointCodesOfTable() {
    static const auto codes = MakeCodes("PUNT", "P1", {"PUNT", "GRONDSL", "SYMBOOL", "ROT.PNT", "DUMMY", "GRENS"}, 12);
    return codes;
}

const std::vector<RandomCode>& LineCodesOfTable() {
    static const auto codes = MakeCodes("LIJN", "L1", {"LIJN", "GRENS", "LIJN", "DUMMY", "PUNT"}, 10);
    return codes;
}

const std::vector<RandomCode>& TextCodesOfTable() {
    static const auto codes = MakeCodes("TEKST", "T1", {""}, 5);
    return codes;
}

std::string RandomTable() {
    return WithCrLf(
        "[Points]\nUnknown = STANDRD, Q20, PUNT, ONBEKEND PUNTOBJECT, 0, 0, 0\n" + Rows(PointCodesOfTable(), true) +
        "[Lines]\nUnknown = STANDRD, Q00, LIJN, ONBEKEND LIJNOBJECT, 0, 0, 0\n" + Rows(LineCodesOfTable(), true) +
        "[Texts]\nUnknown = STANDRD, Z19, ONBEKEND TEKSTOBJECT, 0, 0, 0\n" + Rows(TextCodesOfTable(), false) +
        "[End]\n");
}

RandomDrawing::RandomDrawing(unsigned seed) {
    Chance chance(seed);
    const auto codeOf = [&chance](const std::vector<RandomCode>& codes) {
        return chance.Once(8) ? std::string("VREEMD") : codes[chance.Below(codes.size())].liscad;
    };
    std::int32_t number = 0;
    const std::size_t pointCount = 2 + chance.Below(40);
    for (std::size_t i = 0; i < pointCount; ++i) {
        Point& point = points.emplace_back();
        number += static_cast<std::int32_t>(1 + chance.Below(5));
        point.number = number;
        // Within what nine columns of millimetres hold.
        point.east = chance.Between(-999'999'990, 9'999'999'980);
        point.north = chance.Between(-999'999'990, 9'999'999'980);
        point.height = chance.Once(3) ? 0 : chance.Between(-99'999, 999'999);
        if (!chance.Once(3)) point.name = "N" + std::to_string(i) + chance.Characters(1 + chance.Below(4));
        point.code = codeOf(PointCodesOfTable());
    }
    const std::size_t lineCount = chance.Below(10);
    std::int32_t lineNumber = 0;
    for (std::size_t i = 0; i < lineCount; ++i) {
        lineNumber += static_cast<std::int32_t>(1 + chance.Below(3));
        lines.push_back({lineNumber, codeOf(LineCodesOfTable())});
        const std::size_t edgeCount = chance.Below(6);
        for (std::size_t j = 0; j < edgeCount; ++j) {
            const std::vector<std::string> types = {"STRAIGHT", "STRAIGHT",    "CURVE_3RD", "CURVE_4RD",
                                                    "ARC_CENT", "CIRCLE_CENT", "SPIRAAL"};
            edges.push_back(
                {lineNumber, chance.Below(pointCount), chance.Below(pointCount), types[chance.Below(types.size())]});
        }
    }
    const std::size_t labelCount = chance.Below(8);
    for (std::size_t i = 0; i < labelCount; ++i) {
        Label& label = labels.emplace_back();
        label.anchor = chance.Below(pointCount);
        label.direction = chance.Between(0, 399'999);
        label.layer = codeOf(TextCodesOfTable());
        label.text = std::to_string(i) + "a" + (chance.Once(4) ? "" : chance.Characters(1 + chance.Below(43)));
    }
}

std::string RandomDrawing::AsIdex() const {
    std::string idex =
        "HEADER\nSEPARATOR ','\nTERMINATOR ';'\nFIELD_DATE 20240514\nEND HEADER\nLAYERS (LayerNo,Name)\n";
    std::vector<std::string> layers = {"VREEMD"};
    for (const RandomCode& code : TextCodesOfTable()) layers.push_back(code.liscad);
    for (std::size_t i = 0; i < layers.size(); ++i) idex += std::to_string(i) + ",\"" + layers[i] + "\";\n";
    idex += "END LAYERS\nDATABASE\nPOINTS (PointNo,PointID,East,North,Elevation,Code,SymDir)\n";
    for (const Point& point : points) {
        idex += std::to_string(point.number) + ",\"" + point.name + "\"," + Metres(point.east) + "," +
                Metres(point.north) + "," + Metres(point.height) + ",\"" + point.code + "\",33.3;\n";
    }
    idex += "END POINTS\nLINES (LineNo,Code,Flags1,Flags2)\n";
    for (const Line& line : lines) idex += std::to_string(line.number) + ",\"" + line.code + "\",0,0;\n";
    idex += "EDGES (LineNo,StartPt,EndPt,LINETYPE)\n";
    for (const Edge& edge : edges) {
        idex += std::to_string(edge.line) + "," + std::to_string(points[edge.start].number) + "," +
                std::to_string(points[edge.end].number) + "," + edge.type + ";\n";
    }
    idex += "END EDGES\nEND LINES\nTEXT\nBOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\n";
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const Label& label = labels[i];
        std::size_t layer = 0;
        while (layers[layer] != label.layer) ++layer;
        idex += std::to_string(i + 1) + "," + std::to_string(points[label.anchor].number) + ",1," +
                std::to_string(layer) + "," + Metres(label.direction * 10) + ";\n";
    }
    idex += "END BOX_ON_POINT\nITEMS (TextBoxNo,LineNo,TextItem)\n";
    for (std::size_t i = 0; i < labels.size(); ++i) {
        idex += std::to_string(i + 1) + ",1,\"" + labels[i].text + "\";\n";
    }
    return WithCrLf(idex + "END ITEMS\nEND TEXT\nEND DATABASE\n");
}

}  // namespace korvande::testing
