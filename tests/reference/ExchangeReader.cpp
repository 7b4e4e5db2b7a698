#include "tests/reference/ExchangeReader.h"

#include <cmath>
#include <set>

#include "tests/reference/Arcs.h"
#include "tests/reference/Codes.h"
#include "tests/reference/Directions.h"
#include "tests/reference/Records.h"
#include "tests/reference/Texts.h"

namespace korvande::reference {

namespace {

// A person cancelled at a question.
class Cancelled {};

class Reader {
 public:
    Reader(const std::string& file, Format itsFormat, Settings& itsSettings, Result& itsResult)
        : format(itsFormat), settings(itsSettings), result(itsResult), records(LinesOf(file)) {}

    void Read() {
        try {
            if (ReadHeader()) ReadGroups();
        } catch (const Error& error) {
            result.log.push_back("FOUT:  " + std::string(error.what()) + " (regel " +
                                 std::to_string(records.LineNumber()) + ")");
        } catch (const Cancelled&) {
            result.isOfTheFormat = false;
        }
        if (result.isOfTheFormat) ForgetNamesThatComeTwice();
    }

 private:
    // Header

    bool ReadHeader() {
        const std::string first = records.TakeHeader("01");
        if (first.empty()) return MissHeader("01");
        drawing.projectName = Trimmed(Columns(first, 39, 62));
        if (drawing.projectName.empty()) drawing.projectName = Trimmed(Columns(first, 3, 14));
        drawing.projectDate = FirstOfMonth(Columns(first, 22, 27));
        const std::string second = records.TakeHeader("02");
        if (second.empty()) return MissHeader("02");
        AskForTheFormat(second);
        const double digit = LeadingNumber(format == Format::Nen1878 ? Columns(second, 7, 7) : Columns(second, 8, 8));
        const double scale = 1 / std::pow(10, 4 - digit);
        originX = 1000 * LeadingNumber(Columns(second, 13, 22));
        originY = 1000 * LeadingNumber(Columns(second, 23, 32));
        factorXY = scale * LeadingNumber(Columns(second, 33, 42));
        originZ = 1000 * LeadingNumber(Columns(second, 43, 52));
        factorZ = scale * LeadingNumber(Columns(second, 53, 62));
        return true;
    }

    bool MissHeader(const std::string& type) {
        result.log.push_back("FOUT:  NEN1878 bestand bevat geen '" + type + "' (KOP) record.");
        result.isOfTheFormat = false;
        return false;
    }

    Date FirstOfMonth(const std::string& text) const {
        if (text.size() != 6 || text.find_first_not_of("0123456789") != std::string::npos) return settings.today;
        const int year = std::stoi(text.substr(0, 4));
        const int month = std::stoi(text.substr(4));
        if (year == 0 || month < 1 || month > 12) return settings.today;
        return {year, month, 1};
    }

    void AskForTheFormat(const std::string& second) {
        if (format == Format::Nen1878 && Columns(second, 7, 7) == "0") {
            Ask("De NEN1878 file lijkt een oud formaat SUF2 bestand te zijn.", Format::Suf2, Format::Nen1878, "NEN1878",
                "Als SUF2 verder verwerken ?");
        }
        if (format == Format::Suf2 && Columns(second, 8, 8) > "1") {
            Ask("De SUF2 file lijkt een NEN1878 bestand te zijn.", Format::Nen1878, Format::Suf2, "SUF2",
                "Als NEN1878 verder verwerken ?");
        }
    }

    void Ask(const std::string& what, Format yes, Format no, const std::string& name, const std::string& question) {
        result.log.push_back(what);
        result.log.push_back(question);
        if (settings.answer == Answer::Cancel) {
            result.log.push_back("==>  " + name + " import afgebroken door gebruiker.");
            throw Cancelled();
        }
        format = settings.answer == Answer::Yes ? yes : no;
        result.log.push_back(std::string("==>  Verwerking vervolgd als ") +
                             (format == Format::Nen1878 ? "NEN1878" : "SUF2") + " bestand");
    }

    // Groups

    void ReadGroups() {
        for (;;) {
            const Group group = records.TakeGroup();
            if (group.type == "99") return;
            if (group.type == "03") ReadGeometry(group);
            if (group.type == "05") ReadPlacement(group);
            if (group.type == "07" && format == Format::Suf2) {
                Ask("De SUF2 file leek wel eerst een SUF2, maar bevat toch NEN1878 07-headers.", Format::Suf2,
                    Format::Nen1878, "SUF2", "Toch als SUF2 verder verwerken ?");
            }
        }
    }

    void ReadGeometry(const Group& group) {
        std::string code;
        std::set<double> kinds;
        for (const Field& field : group.fields) {
            if (field.letter == 'M') code = Trimmed(field.value);
            if (field.letter == 'G') kinds.insert(LeadingNumber(field.value.substr(0, 2)));
        }
        if (code.empty()) return;
        if (kinds.contains(1)) ReadPoint(code);
        if (kinds.contains(3) || kinds.contains(5) || kinds.contains(12)) ReadLine(code);
        if (kinds.contains(4) || kinds.contains(13)) ReadArcs(code);
    }

    void ReadPlacement(const Group& group) {
        std::string code;
        std::string placement;
        bool isSymbol = false;
        bool isText = false;
        for (const Field& field : group.fields) {
            if (field.letter == 'Q' || field.letter == 'K') code = Trimmed(field.value);
            if (field.letter != 'F') continue;
            placement = field.value;
            isText = isText || Columns(placement, 3, 3) == "1";
            isSymbol = isSymbol || Columns(placement, 3, 3) == "2";
        }
        if (code.empty()) return;
        if (isSymbol) ReadSymbol(group, code, Columns(placement, 4, 6));
        if (isText) ReadText(group, code, Columns(placement, 1, 1));
    }

    // The 04 group that must come; nothing when it is another.
    std::optional<Group> TakeCoordinates(const std::string& problem) {
        Group group = records.TakeGroup();
        if (group.type == "04") return group;
        result.log.push_back("FOUT:  " + problem);
        return std::nullopt;
    }

    // At most five places of a point, symbol or text.
    std::vector<Point> PlacesOf(const Group& group) const {
        std::vector<Point> places;
        std::string name;
        for (const Field& field : group.fields) {
            if (field.letter == 'N') name = field.value;
            if (field.letter == 'X') {
                if (places.size() == 5) break;
                Point place;
                place.east = East(field);
                place.name = Left(name, 9);
                name.clear();
                places.push_back(place);
            }
            if (field.letter == 'Y' && !places.empty()) places.back().north = North(field);
            if (field.letter == 'Z' && !places.empty()) places.back().height = Height(field);
        }
        return places;
    }

    void ReadPoint(const std::string& code) {
        const auto group = TakeCoordinates("Punt, 04 record ontbreekt");
        if (!group) return;
        const int row = LookUpByLki(settings.points, code);
        AddPointWithDirection(*group, row, false);
    }

    void ReadSymbol(const Group& placement, const std::string& code, const std::string& type) {
        const Group group = records.Look().substr(0, 2) == "04" ? records.TakeGroup() : placement;
        std::string wanted = code;
        const bool hasType = code == "S01" || code == "S02" || code == "S03";
        if (hasType && FindByLki(settings.points, code + " " + type) != 0) wanted = code + " " + type;
        const int row = LookUpByLki(settings.points, wanted);
        AddPointWithDirection(group, row, settings.importsToNorth);
    }

    void AddPointWithDirection(const Group& group, int row, bool isToNorth) {
        const std::vector<Point> places = PlacesOf(group);
        if (!IsTaken(settings.points, row) || places.empty() || !IsInside(places[0])) return;
        Point point = places[0];
        if (HasDirection(places)) {
            point.direction = DirectionOf(places);
            if (isToNorth) point.direction = Normalized(point.direction - 100);
        }
        point.code = RowOf(settings.points, row).liscad;
        point.description = Left(RowOf(settings.points, row).description, 80);
        AddPoint(point);
    }

    void ReadLine(const std::string& code) {
        const auto group = TakeCoordinates("Lijn, 04 record ontbreekt");
        if (!group) return;
        const int row = LookUpByLki(settings.lines, code);
        if (!IsTaken(settings.lines, row)) return;
        const std::size_t pointsBefore = drawing.points.size();
        const std::size_t edgesBefore = drawing.edges.size();
        AddLine(RowOf(settings.lines, row));
        std::string nameBefore;
        for (const Field& field : group->fields) {
            ReadVertexField(field, RowOf(settings.lines, row), nameBefore);
            nameBefore = field.letter == 'N' ? field.value : "";
            if (field.letter == 'X' && drawing.points.size() > pointsBefore + 1) {
                AddEdge(LastPoint() - 1, LastPoint(), "STRAIGHT");
            }
            if (field.letter == 'I' && LeadingNumber(field.value) == 4) {
                result.log.emplace_back("FOUT:  Boog in lijnstring wordt niet ondersteund");
            }
        }
        const bool hasPoint = drawing.points.size() > pointsBefore;
        if (settings.rectangle && (!hasPoint || !IsInside(drawing.points[pointsBefore]))) {
            for (std::size_t i = pointsBefore; i < drawing.points.size(); ++i) {
                drawing.placeOfNumber.erase(static_cast<std::int32_t>(i));
            }
            drawing.points.resize(pointsBefore);
            drawing.edges.resize(edgesBefore);
            drawing.lines.pop_back();
        }
    }

    // Y and Z belong to the last point of the drawing, whatever that is.
    void ReadVertexField(const Field& field, const Row& row, const std::string& name) {
        if (field.letter == 'X') {
            Point point;
            point.east = East(field);
            point.name = Left(name, 9);
            point.code = row.liscad;
            point.description = Left(row.description, 80);
            AddPoint(point);
        }
        if (field.letter == 'Y') drawing.points.back().north = North(field);
        if (field.letter == 'Z') drawing.points.back().height = Height(field);
    }

    void ReadArcs(const std::string& code) {
        const auto group = TakeCoordinates("Boog; 04 record ontbreekt");
        if (!group) return;
        const int row = LookUpByLki(settings.lines, code);
        if (!IsTaken(settings.lines, row)) return;
        std::size_t end = drawing.points.size() + 2;  // the third point of the arc
        AddLine(RowOf(settings.lines, row));
        for (const Field& field : group->fields) {
            ReadVertexField(field, RowOf(settings.lines, row), "");
            if (drawing.points.size() - 1 > end) {
                FinishArc(static_cast<std::int32_t>(end));
                AddLine(RowOf(settings.lines, row));
                end += 2;
            }
        }
        if (drawing.points.size() - 1 < end) {
            result.log.emplace_back("FOUT:  Ongeldige boog");
        } else {
            FinishArc(static_cast<std::int32_t>(end));
        }
    }

    void FinishArc(std::int32_t end) {
        const auto last = static_cast<std::size_t>(end);
        Point& middle = drawing.points[last - 1];
        const Point& from = drawing.points[last - 2];
        const Point& to = drawing.points[last];
        if (!IsInside(from) || !IsInside(middle) || !IsInside(to)) return;
        const std::optional<Centre> centre =
            CentreOfArc({from.east, from.north}, {middle.east, middle.north}, {to.east, to.north});
        const std::string type = centre ? "ARC_CENT" : "STRAIGHT";
        AddEdge(end - 2, end - 1, type);
        AddEdge(end - 1, end, type);
        if (!centre) return;
        middle.east = centre->place.east;
        middle.north = centre->place.north;
        middle.doubt = centre->doubt;
        if (centre->isAnticlockwise) drawing.lines.back().flags1 = 16;
    }

    void ReadText(const Group& placement, const std::string& code, const std::string& position) {
        const Group group = records.Look().substr(0, 2) == "04" ? records.TakeGroup() : placement;
        if (records.Look().substr(0, 2) != "06") {
            result.log.emplace_back("FOUT:  Tekst, 06 record ontbreekt");
            return;
        }
        const std::string characters = records.Take();
        const int row = LookUpByLki(settings.texts, code);
        const std::vector<Point> places = PlacesOf(group);
        if (!IsTaken(settings.texts, row) || places.empty() || !IsInside(places[0])) return;
        const auto first = static_cast<std::int32_t>(drawing.points.size());
        for (Point place : places) {
            place.code = Left("100", 7);
            place.description = Left("Onbekend Object", 80);
            AddPoint(place);
        }
        Label label;
        label.anchor = first;
        label.code = RowOf(settings.texts, row).liscad;
        label.text = Left(code == "Z01" ? Trimmed(Columns(characters, 14, 62)) : Columns(characters, 7, 62), 47);
        label.position = AnchorPosition(position);
        if (HasDirection(places)) {
            label.direction = static_cast<float>(DirectionOf(places));
            AddLine(RowOf(settings.texts, row));
            AddEdge(first, first + 1, "STRAIGHT");
        }
        drawing.labels.push_back(label);
    }

    static int AnchorPosition(const std::string& character) {
        const std::string known = "123456789";
        const int renumbered[] = {1, 4, 7, 2, 5, 8, 3, 6, 9};
        const std::size_t at = character.empty() ? std::string::npos : known.find(character);
        return at == std::string::npos ? 1 : renumbered[at];
    }

    // The drawing

    void AddPoint(Point point) {
        const auto place = static_cast<std::int32_t>(drawing.points.size());
        point.number = place;
        drawing.placeOfNumber[place] = place;
        drawing.points.push_back(point);
    }

    void AddLine(const Row& row) {
        Line line;
        line.code = row.liscad;
        line.description = Left(row.description, 53);
        drawing.lines.push_back(line);
    }

    void AddEdge(std::int32_t start, std::int32_t end, const std::string& type) {
        drawing.edges.push_back({static_cast<std::int32_t>(drawing.lines.size()) - 1, start, end, Left(type, 12)});
    }

    std::int32_t LastPoint() const { return static_cast<std::int32_t>(drawing.points.size()) - 1; }

    void ForgetNamesThatComeTwice() {
        std::set<std::string> met;
        for (std::size_t i = 1; i < drawing.points.size(); ++i) {
            std::string& name = drawing.points[i].name;
            if (Trimmed(name).empty()) continue;
            if (!met.insert(name).second) name = Left("", 9);
        }
    }

    // Values

    double East(const Field& field) const { return Finite(factorXY * LeadingNumber(field.value) + originX); }
    double North(const Field& field) const { return Finite(factorXY * LeadingNumber(field.value) + originY); }
    double Height(const Field& field) const { return Finite(factorZ * LeadingNumber(field.value) + originZ); }

    bool IsTaken(const Table& table, int row) const { return !table.empty() && (row != 0 || settings.acceptUnknown); }
    static const Row& RowOf(const Table& table, int row) { return table[static_cast<std::size_t>(row)]; }

    bool IsInside(const Point& point) const {
        if (!settings.rectangle) return true;
        const Rectangle& inside = *settings.rectangle;
        return inside.minX <= point.east && point.east <= inside.maxX && inside.minY <= point.north &&
               point.north <= inside.maxY;
    }

    static bool HasDirection(const std::vector<Point>& places) {
        return places.size() >= 2 &&
               Distance(places[1].east - places[0].east, places[1].north - places[0].north) >= 0.001;
    }
    static double DirectionOf(const std::vector<Point>& places) {
        return DirectionOfBearing(Bearing(places[1].east - places[0].east, places[1].north - places[0].north));
    }

    Format format;
    Settings& settings;
    Result& result;
    Drawing& drawing = result.drawing;
    Records records;
    double originX = 0;
    double originY = 0;
    double originZ = 0;
    double factorXY = 1;
    double factorZ = 1;
};

}  // namespace

void ReadExchange(const std::string& file, Format format, Settings& settings, Result& result) {
    Reader(file, format, settings, result).Read();
}

}  // namespace korvande::reference
