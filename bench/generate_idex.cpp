#include "bench/Output.h"
#include "bench/generate.h"

namespace korvande::bench {

namespace {

constexpr std::string_view idexHead =
    "HEADER\r\n"
    "  VERSION     1.20\r\n"
    "  SYSTEM      \"GENERATOR\"\r\n"
    "  SEPARATOR   ','\r\n"
    "  TERMINATOR  ';'\r\n"
    "  UNITS\r\n"
    "    ANGULAR   GRADS\r\n"
    "    LINEAR    METRE\r\n"
    "    TEMP      CELSIUS\r\n"
    "    PRESS     HPA\r\n"
    "    TIME      DMY\r\n"
    "  END UNITS\r\n"
    "  PROJECT\r\n"
    "    NAME          \"Generator\"\r\n"
    "    FIELD_DATE    20240514\r\n"
    "  END PROJECT\r\n"
    "END HEADER\r\n"
    "\r\n"
    "DEFINITIONS\r\n"
    "  LAYERS (LayerNo,Name,Flags)\r\n"
    "    0,  \"STNDRD\",   00000001;\r\n";

void WriteLayers(Output& out, const std::vector<CodeRow>& texts) {
    out << idexHead;
    for (std::size_t row = 0; row < texts.size(); ++row) {
        out << "    " << static_cast<std::int64_t>(row + 1) << ",  \"" << texts[row].liscad << "\",   00000001;";
        out.EndRow();
    }
    out << "  END LAYERS\r\nEND DEFINITIONS\r\n\r\nDATABASE\r\n";
}

std::int64_t WritePoints(Output& out, ObjectStream objects, const std::vector<CodeRow>& rows) {
    out << "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\r\n";
    std::int64_t number = 0;
    DrawingObject object;
    while (objects.Next(object)) {
        // Only a point object has a code of its own: line vertices and text anchors carry the blank one.
        const auto isPoint = object.kind == ObjectKind::Point;
        const auto& row = rows[isPoint ? object.row : 0];
        for (std::size_t i = 0; i < static_cast<std::size_t>(object.vertexCount); ++i) {
            const auto& vertex = object.vertices[i];
            ++number;
            (out << "    ").Padded(number, 8) << ",\"P" << number << "\",";
            out.Decimal(vertex.east, "0", 15) << ",";
            out.Decimal(vertex.north, "0", 15) << ",";
            out.Decimal(vertex.height, "0", 15) << ",\"" << row.liscad << "\",\"";
            if (isPoint) out << row.description;
            (out << "\",").Decimal(isPoint ? object.direction : 0, "0", 9) << ";";
            out.EndRow();
        }
    }
    out << "  END POINTS\r\n";
    return number;
}

std::int64_t WriteLines(Output& out, ObjectStream objects, const std::vector<CodeRow>& rows) {
    out << "\r\n  LINES (LineNo,Code,Flags1,Flags2)\r\n";
    std::int64_t number = 0;
    DrawingObject object;
    while (objects.Next(object)) {
        if (object.kind != ObjectKind::LineString) continue;
        (out << "    ").Padded(++number, 8)
            << ",\"" << rows[object.row].liscad << "\",00000000 00000000,00000000 00000000;";
        out.EndRow();
    }
    return number;
}

void WriteEdge(Output& out, std::int64_t line, std::int64_t start) {
    (out << "      ").Padded(line, 6) << ",";
    out.Padded(start, 7) << ", \"P" << start << "\",";
    out.Padded(start + 1, 7) << ", \"P" << start + 1 << "\",STRAIGHT    ;";
    out.EndRow();
}

std::int64_t WriteEdges(Output& out, ObjectStream objects) {
    out << "\r\n    EDGES (LineNo,StartPt,StartPtID,EndPt,EndPtID,LINETYPE)\r\n";
    std::int64_t line = 0;
    std::int64_t point = 0;
    std::int64_t edges = 0;
    DrawingObject object;
    while (objects.Next(object)) {
        if (object.kind == ObjectKind::LineString) {
            ++line;
            for (int i = 1; i < object.vertexCount; ++i) WriteEdge(out, line, point + i);
            edges += object.vertexCount - 1;
        }
        point += object.vertexCount;
    }
    out << "    END EDGES\r\n  END LINES\r\n";
    return edges;
}

void WriteBoxes(Output& out, ObjectStream objects) {
    out << "\r\n  TEXT\r\n    PROPERTIES (TextPropertyNo)\r\n        1;\r\n    END PROPERTIES\r\n\r\n    BOXES\r\n"
           "      BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\r\n";
    std::int64_t box = 0;
    std::int64_t point = 0;
    DrawingObject object;
    while (objects.Next(object)) {
        point += object.vertexCount;
        if (object.kind != ObjectKind::Label) continue;
        (out << "          ").Padded(++box, 8)
            << ", " << point << " , 7 , " << static_cast<std::int64_t>(object.row + 1);
        (out << ",  ").Decimal(object.direction, "", 7) << ";";
        out.EndRow();
    }
    out << "      END BOX_ON_POINT\r\n    END BOXES\r\n";
}

std::int64_t WriteItems(Output& out, ObjectStream objects) {
    out << "\r\n    ITEMS (TextItemNo, TextBoxNo, TextPropertyNo, LineNo, TextItem)\r\n";
    std::int64_t box = 0;
    DrawingObject object;
    while (objects.Next(object)) {
        if (object.kind != ObjectKind::Label) continue;
        ++box;
        (out << "          ").Padded(box, 8) << ", " << box << " , 1, 1,\"" << object.text << "\";";
        out.EndRow();
    }
    out << "    END ITEMS\r\n  END TEXT\r\n\r\n";
    return box;
}

DrawingCounts WriteIdex(const GeneratorOptions& options, Output& out) {
    const auto tables = MakeCodeTables(options.tableRows);
    const ObjectStream objects(options, tables);
    DrawingCounts counts;
    WriteLayers(out, tables.texts);
    counts.points = WritePoints(out, objects, tables.points);
    counts.lineStrings = WriteLines(out, objects, tables.lines);
    counts.edges = WriteEdges(out, objects);
    WriteBoxes(out, objects);
    counts.texts = WriteItems(out, objects);
    out << "END DATABASE\r\n";
    out.Flush();
    return counts;
}

}  // namespace

DrawingCounts WriteIdexDrawing(const GeneratorOptions& options, std::FILE* file) {
    Output out(file);
    return WriteIdex(options, out);
}

std::string IdexDrawing(const GeneratorOptions& options) {
    Output out(nullptr);
    WriteIdex(options, out);
    return out.Take();
}

}  // namespace korvande::bench
