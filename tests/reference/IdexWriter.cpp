#include "tests/reference/IdexWriter.h"

#include <cstdio>

#include "tests/reference/Texts.h"

namespace korvande::reference {

namespace {

const std::string lineEnd = "\r\n";

// A text between quotes, without what a reader would take for structure.
std::string Quoted(std::string text) {
    // One that was never filled holds nothing but characters 0.
    if (text.find_first_not_of('\0') == std::string::npos) text.clear();
    for (char& c : text) {
        if (c == '"') c = '\'';
        if (c == ';') c = ',';
    }
    return "\"" + text + "\"";
}

std::string DateOf(const Date& date) {
    char text[40];
    std::snprintf(text, sizeof text, "%02d-%02d-%04d/00:00:00.0", date.day, date.month, date.year);
    return text;
}

std::string FlagsOf(std::int32_t flags) {
    std::string digits;
    for (int weight = 32768; weight > 0; weight /= 2) {
        digits += flags > 65535 || (flags > 0 && flags / weight % 2 == 1) ? '1' : '0';
    }
    return digits.substr(0, 8) + " " + digits.substr(8);
}

std::string HeaderOf(const Drawing& drawing) {
    std::string text;
    for (const std::string& line : {std::string("HEADER"),
                                    std::string("  VERSION     1.20"),
                                    std::string("  SYSTEM      \"NEN1878 - LISCAD 7.00\""),
                                    std::string("  SEPARATOR   ','"),
                                    std::string("  TERMINATOR  ';'"),
                                    std::string("  UNITS"),
                                    std::string("    ANGULAR   GRADS"),
                                    std::string("    LINEAR    METRE"),
                                    std::string("    TEMP      CELSIUS"),
                                    std::string("    PRESS     HPA"),
                                    std::string("    TIME      DMY"),
                                    std::string("  END UNITS"),
                                    std::string("  PROJECT"),
                                    "    NAME          " + Quoted(Trimmed(drawing.projectName)),
                                    "    CREATION_DATE " + DateOf(drawing.projectDate),
                                    std::string("  END PROJECT"),
                                    std::string("END HEADER"),
                                    std::string(),
                                    std::string(),
                                    std::string("DEFINITIONS"),
                                    std::string("  LAYERS (LayerNo,Name,Flags)"),
                                    std::string("    0,  \"STNDRD\",   00000001;"),
                                    std::string("  END LAYERS"),
                                    std::string("END DEFINITIONS"),
                                    std::string(),
                                    std::string(),
                                    std::string("DATABASE")}) {
        text += line + lineEnd;
    }
    return text;
}

std::string PointsOf(const Drawing& drawing) {
    std::string text = "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)" + lineEnd;
    for (std::size_t i = 1; i < drawing.points.size(); ++i) {
        const Point& point = drawing.points[i];
        text += "    " + std::to_string(i) + "," + Quoted(Trimmed(point.name)) + "," +
                Left(Written(point.east, 4), 15) + "," + Left(Written(point.north, 4), 15) + "," +
                Left(Written(point.height, 4), 15) + "," + Quoted(TrimmedRight(point.code)) + "," +
                Quoted(TrimmedRight(point.description)) + "," + Left(Written(point.direction, 4), 9) + ";" + lineEnd;
    }
    return text + "  END POINTS" + lineEnd;
}

std::string LinesOf(const Drawing& drawing) {
    if (drawing.lines.size() == 1) return "";
    std::string text = lineEnd + "  LINES (LineNo,Code,Flags1,Flags2)" + lineEnd;
    for (std::size_t i = 1; i < drawing.lines.size(); ++i) {
        const Line& line = drawing.lines[i];
        text += "    " + std::to_string(i) + "," + Quoted(Trimmed(line.code)) + "," + FlagsOf(line.flags1) + "," +
                FlagsOf(line.flags2) + ";" + lineEnd;
    }
    return text;
}

std::string PlaceAndName(const Drawing& drawing, std::int32_t place) {
    return std::to_string(place) + ", " + Quoted(Trimmed(drawing.points[static_cast<std::size_t>(place)].name));
}

std::string EdgesOf(const Drawing& drawing) {
    if (drawing.edges.size() == 1) return "";
    std::string text = lineEnd + "    EDGES (LineNo,StartPt,StartPtID,EndPt,EndPtID,LINETYPE)" + lineEnd;
    for (std::size_t i = 1; i < drawing.edges.size(); ++i) {
        const Edge& edge = drawing.edges[i];
        text += "      " + std::to_string(edge.line) + "," + PlaceAndName(drawing, edge.start) + "," +
                PlaceAndName(drawing, edge.end) + "," + Left(edge.type, 12) + ";" + lineEnd;
    }
    return text + "    END EDGES" + lineEnd;
}

std::string TextsOf(const Drawing& drawing) {
    if (drawing.labels.size() == 1) return "";
    std::string text = lineEnd + "  TEXT" + lineEnd + "    PROPERTIES (TextPropertyNo)" + lineEnd + "        1;" +
                       lineEnd + "    END PROPERTIES" + lineEnd + lineEnd + "    BOXES" + lineEnd +
                       "      BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)" + lineEnd;
    for (std::size_t i = 1; i < drawing.labels.size(); ++i) {
        const Label& label = drawing.labels[i];
        text += "          " + std::to_string(i) + ", " + std::to_string(label.anchor) + " , " +
                std::to_string(label.position) + " , 0," + Left("  " + Written(label.direction, 3), 9) + ";" + lineEnd;
    }
    text += "      END BOX_ON_POINT" + lineEnd + "    END BOXES" + lineEnd + lineEnd +
            "    ITEMS (TextItemNo, TextBoxNo, TextPropertyNo, LineNo, TextItem)" + lineEnd;
    for (std::size_t i = 1; i < drawing.labels.size(); ++i) {
        text += "          " + std::to_string(i) + ", " + std::to_string(i) + " , 1, 1," +
                Quoted(Trimmed(drawing.labels[i].text)) + ";" + lineEnd;
    }
    return text + "    END ITEMS" + lineEnd + "  END TEXT" + lineEnd + lineEnd;
}

}  // namespace

std::string WriteIdex(const Drawing& drawing) {
    return HeaderOf(drawing) + PointsOf(drawing) + LinesOf(drawing) + EdgesOf(drawing) + "  END LINES" + lineEnd +
           TextsOf(drawing) + "END DATABASE" + lineEnd;
}

}  // namespace korvande::reference
