#include "tests/reference/ExchangeWriter.h"

#include <cmath>
#include <cstdio>

#include "tests/reference/Codes.h"
#include "tests/reference/Dates.h"
#include "tests/reference/Directions.h"
#include "tests/reference/Texts.h"

namespace korvande::reference {

namespace {

class Writer {
 public:
    Writer(Format format, Settings& itsSettings, Result& itsResult)
        : isNen(format == Format::Nen1878), settings(itsSettings), result(itsResult), drawing(itsResult.drawing) {}

    void Write() {
        WriteHeader();
        dateField = FieldOfDate();
        for (std::size_t i = 1; i < drawing.points.size(); ++i) WritePoint(drawing.points[i]);
        for (std::size_t i = 1; i < drawing.edges.size(); ++i) WriteEdge(i);
        for (std::size_t i = 1; i < drawing.labels.size(); ++i) WriteText(i);
        Line("99", "  ");
    }

 private:
    // Lines and records

    void Line(const std::string& text, const std::string& endCode) {
        result.output += Left(text, 62) + endCode + "\r\n";
    }

    void Record(std::string text, bool closesGroup) {
        while (text.size() > 65) {
            Line(text, "00");
            text = text.substr(0, 2) + text.substr(62);
        }
        Line(text, isNen && !closesGroup ? "00" : "01");
    }

    void WriteHeader() {
        char month[40];
        std::snprintf(month, sizeof month, "%04d%02d", settings.today.year, settings.today.month);
        const std::string today = month;
        if (!isNen) {
            Line(Left("010", 14) + "V" + Left("", 6) + today + Left("", 7) + "VAIKLI, LisCAD", "01");
            Line("02010201             0         0         1         0         1", "01");
            return;
        }
        Line(Left("010NEN1878", 14) + "V" + today + today + Left("", 7) + "0101S05", "01");
        Line("020102150201         0         0         1         0         1", "01");
        Line("07N" + Left(settings.nameLong, 35) + Left("", 14) + "K" + Left(settings.nameShort, 8), "00");
        Line("07A" + Left(settings.street, 24) + Left(settings.number, 5) + Left(settings.suffix, 5) + Left("", 15) +
                 "P" + Left(settings.zipCode, 6),
             "00");
        Line("07W" + Left(settings.town, 24), "01");
    }

    // Fields

    std::string FieldOfDate() {
        if (Trimmed(drawing.date).empty()) return "";
        const std::optional<Date> date = DateOf(drawing.date);
        if (!date) {
            result.log.emplace_back("Tekening bevat ongeldige veldwerkdatum, wordt weggelaten...");
            return "";
        }
        char field[40];
        std::snprintf(field, sizeof field, "D %04d%02d%02d", date->year, date->month, date->day);
        return field;
    }

    std::string Code(const std::string& lki, const std::string& nenKind, const std::string& sufKind) const {
        const std::string source = Trimmed(settings.source);
        return "03M" + Left(lki, 7) + "  " + (isNen ? nenKind : sufKind) + std::to_string(settings.sourceKind) +
               "1   " + dateField + (source.empty() ? Left("", 10) : "B" + Left(source, 5) + " 0  ");
    }

    static std::string Millimetres(char letter, double metres) { return letter + Right(Written(metres * 1000, 0), 9); }

    std::string PlaceOf(const Point& point) const {
        std::string fields;
        if (settings.namesAsField && !Trimmed(point.name).empty()) fields += "N" + Left(point.name, 9);
        fields += Millimetres('X', point.east) + Millimetres('Y', point.north);
        if (settings.heights && point.height != 0) fields += Millimetres('Z', point.height);
        return fields;
    }

    // A metre away, in a direction of the drawing.
    static Point MetreFrom(const Point& point, double grads) {
        const double bearing = BearingOfDirection(grads);
        Point place;
        place.east = point.east + std::sin(bearing);
        place.north = point.north + std::cos(bearing);
        place.height = point.height;
        return place;
    }

    std::string QualityOf(const Row& row) const {
        if (row.p == 0 && row.i == 0 && row.b == 0) return "";
        const auto digit = [](int number) { return "  " + std::to_string(std::abs(number) % 10); };
        return (isNen ? "Q" : "K") + digit(row.p) + digit(row.i) + digit(row.b);
    }

    static std::string Characters(std::size_t count, const std::string& text) {
        return "06A" + Right("0" + std::to_string(count), 2) + "T" + text;
    }

    // Whether objects of this row are written, going by the code alone.
    bool IsKnownEnough(const Table& table, int row) const {
        return !table.empty() && (row != 0 || settings.includeUnknown);
    }

    // Objects

    void WritePoint(const Point& point) {
        const int at = LookUpByLiscad(settings.points, point.code);
        if (!IsKnownEnough(settings.points, at)) return;
        const Row& row = settings.points[static_cast<std::size_t>(at)];
        const std::string type = TrimmedRight(row.type);
        const bool isSymbol = type == "ROT.PNT" || type == "SYMBOOL";
        if (!isSymbol && type != "PUNT" && type != "GRONDSL") return;
        const std::string place = PlaceOf(point);
        Record(Code(row.lki, "G0101", "G 10 "), false);
        Record("04I1        " + place + QualityOf(row), false);
        Record("05F112      " + place, false);
        if (isSymbol) {
            const double direction = point.direction + (settings.exportsToNorth ? 100 : 0);
            Record("05F012" + Right(row.lki, 3) + "   " + place + PlaceOf(MetreFrom(point, direction)), false);
        }
        Record(Characters(20, row.description), true);
    }

    const Point& PointAt(std::int32_t place) const { return drawing.points[static_cast<std::size_t>(place)]; }

    void WriteEdge(std::size_t index) {
        const Edge& edge = drawing.edges[index];
        const std::string problem = "FOUT:  Lijnsegment " + std::to_string(index) + " verwijst naar een onbekend";
        if (edge.start == 0 || edge.end == 0) {
            result.log.push_back(problem + " punt");
            return;
        }
        if (edge.line < 1 || edge.line >= static_cast<std::int32_t>(drawing.lines.size())) {
            result.log.push_back(problem + "e lijn");
            return;
        }
        const int at = LookUpByLiscad(settings.lines, drawing.lines[static_cast<std::size_t>(edge.line)].code);
        if (!IsKnownEnough(settings.lines, at)) return;
        const Row& row = settings.lines[static_cast<std::size_t>(at)];
        const std::string rowType = TrimmedRight(row.type);
        const std::string type = TrimmedRight(edge.type);
        const bool isArc = type == "ARC_CENT" || type == "CIRCLE_CENT";
        const bool isStraight = type == "STRAIGHT" || type == "CURVE_3RD" || type == "CURVE_4RD";
        if ((rowType != "LIJN" && rowType != "GRENS") || (!isArc && !isStraight)) return;
        Record(isArc ? Code(row.lki, "G1301", "G 40 ") : Code(row.lki, "G1201", "G 30 "), false);
        Record("04I1        " + PlaceOf(PointAt(edge.start)) + (isArc ? "I4        " : "I2        ") +
                   PlaceOf(PointAt(edge.end)) + QualityOf(row),
               true);
    }

    void WriteText(std::size_t index) {
        const Label& label = drawing.labels[index];
        const std::string text = Trimmed(label.text).substr(0, 40);
        if (text.empty()) return;
        const auto anchor = drawing.placeOfNumber.find(label.anchor);
        if (anchor == drawing.placeOfNumber.end()) {
            result.log.push_back("FOUT:  Tekst " + std::to_string(index) + " verwijst naar een onbekend punt");
            return;
        }
        const bool isGenerated = BeginsWith(label.code, "\xFF");
        std::string lki = Left(label.code.substr(1), 7);
        if (!isGenerated) {
            const int at = LookUpByLiscad(settings.texts, label.code);
            if (!IsKnownEnough(settings.texts, at)) return;
            lki = settings.texts[static_cast<std::size_t>(at)].lki;
        }
        const Point& point = PointAt(anchor->second);
        Record(Code(lki, "     ", "     "), false);
        Record("05F111      " + PlaceOf(point) + PlaceOf(MetreFrom(point, label.direction)) + (isNen ? "K" : "Q") +
                   lki + "  ",
               false);
        Record(Characters(isGenerated && label.position == 5 ? 9 : text.size(), text), true);
    }

    bool isNen;
    Settings& settings;
    Result& result;
    const Drawing& drawing;
    std::string dateField;
};

}  // namespace

void WriteExchange(Format format, Settings& settings, Result& result) { Writer(format, settings, result).Write(); }

}  // namespace korvande::reference
