#include <cstring>

#include "bench/floor/Drawing.h"
#include "bench/floor/Files.h"

namespace korvande::floor {

namespace {

constexpr std::string_view head =
    "HEADER\r\n  VERSION     1.20\r\n  SYSTEM      \"FLOOR\"\r\n  SEPARATOR   ','\r\n  TERMINATOR  ';'\r\nEND "
    "HEADER\r\n"
    "\r\n\r\nDEFINITIONS\r\n  LAYERS (LayerNo,Name,Flags)\r\n    0,  \"STNDRD\",   00000001;\r\n  END LAYERS\r\n"
    "END DEFINITIONS\r\n\r\n\r\nDATABASE\r\n";

// More than a row can need.
constexpr std::size_t rowRoom = 600;

// Fills one row in the writer's own room.
class Row {
 public:
    explicit Row(Writer& writer) : writer_(writer), at_(writer.Room(rowRoom)) {}

    Row& operator<<(std::string_view text) {
        std::memcpy(at_, text.data(), text.size());
        at_ += text.size();
        return *this;
    }

    Row& operator<<(std::int32_t number) {
        at_ = std::to_chars(at_, at_ + 12, number).ptr;
        return *this;
    }

    // Four decimals, on the left of so many columns.
    Row& Decimal(double value, std::ptrdiff_t width) {
        char* const start = at_;
        auto scaled = static_cast<std::int64_t>(value * 10000 + (value < 0 ? -0.5 : 0.5));
        if (scaled < 0) {
            *at_++ = '-';
            scaled = -scaled;
        }
        at_ = std::to_chars(at_, at_ + 20, scaled / 10000).ptr;
        *at_++ = '.';
        const auto rest = scaled % 10000;
        for (const auto digit : {rest / 1000, rest / 100 % 10, rest / 10 % 10, rest % 10})
            *at_++ = static_cast<char>('0' + digit);
        while (at_ < start + width) *at_++ = ' ';
        return *this;
    }

    void End(std::string_view last) {
        *this << last << "\r\n";
        writer_.Take(at_);
    }

 private:
    Writer& writer_;
    char* at_;
};

void WritePoints(const Drawing& drawing, Writer& writer) {
    writer.Write("  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\r\n");
    for (const auto& point : drawing.points) {
        Row row(writer);
        row << "    " << point.number << ",\"" << drawing.Kept(point.id, point.idLength) << "\",";
        row.Decimal(point.east, 15) << ",";
        row.Decimal(point.north, 15) << ",";
        row.Decimal(point.height, 15) << ",\"" << drawing.codes[point.code] << "\",\""
                                      << drawing.Kept(point.description, point.descriptionLength) << "\",";
        row.Decimal(point.direction, 9).End(";");
    }
    writer.Write("  END POINTS\r\n");
}

void WriteLines(const Drawing& drawing, Writer& writer) {
    writer.Write("\r\n  LINES (LineNo,Code,Flags1,Flags2)\r\n");
    std::int32_t number = 0;
    for (const auto& line : drawing.lines) {
        Row row(writer);
        row << "    " << ++number << ",\"" << drawing.codes[line.code];
        row.End("\",00000000 00000000,00000000 00000000;");
    }
}

void WriteEdges(const Drawing& drawing, Writer& writer) {
    writer.Write("\r\n    EDGES (LineNo,StartPt,StartPtID,EndPt,EndPtID,LINETYPE)\r\n");
    for (const auto& edge : drawing.edges) {
        const auto& start = drawing.points[static_cast<std::size_t>(edge.start)];
        const auto& end = drawing.points[static_cast<std::size_t>(edge.end)];
        Row row(writer);
        row << "      " << edge.line << "," << start.number << ", \"" << drawing.Kept(start.id, start.idLength) << "\","
            << end.number << ", \"" << drawing.Kept(end.id, end.idLength);
        row.End("\",STRAIGHT    ;");
    }
    writer.Write("    END EDGES\r\n  END LINES\r\n");
}

void WriteTexts(const Drawing& drawing, Writer& writer) {
    writer.Write(
        "\r\n  TEXT\r\n    BOXES\r\n"
        "      BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\r\n");
    std::int32_t number = 0;
    for (const auto& label : drawing.labels) {
        Row row(writer);
        row << "          " << ++number << ", " << drawing.points[static_cast<std::size_t>(label.point)].number;
        row.End(" , 7 , 0,  0.000  ;");
    }
    writer.Write(
        "      END BOX_ON_POINT\r\n    END BOXES\r\n\r\n"
        "    ITEMS (TextItemNo, TextBoxNo, TextPropertyNo, LineNo, TextItem)\r\n");
    number = 0;
    for (const auto& label : drawing.labels) {
        ++number;
        Row row(writer);
        row << "          " << number << ", " << number << " , 1, 1,\"" << drawing.Kept(label.text, label.length);
        row.End("\";");
    }
    writer.Write("    END ITEMS\r\n  END TEXT\r\n\r\n");
}

}  // namespace

void WriteIdex(const Drawing& drawing, const char* name) {
    Writer writer(name);
    writer.Write(head);
    WritePoints(drawing, writer);
    WriteLines(drawing, writer);
    WriteEdges(drawing, writer);
    WriteTexts(drawing, writer);
    writer.Write("END DATABASE\r\n");
}

}  // namespace korvande::floor
