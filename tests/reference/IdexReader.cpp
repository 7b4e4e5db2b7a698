#include "tests/reference/IdexReader.h"

#include <cstdio>
#include <limits>
#include <set>

#include "tests/reference/IdexLines.h"
#include "tests/reference/Texts.h"

namespace korvande::reference {

namespace {

using Fields = std::vector<std::string>;

struct Box {
    std::int32_t anchor = 0;
    int position = 0;
    float direction = 0;
    std::string code;
};

class Reader {
 public:
    Reader(const std::string& file, const Settings& itsSettings, Result& itsResult)
        : settings(itsSettings), result(itsResult), lines(file) {}

    void Read() {
        try {
            ReadFile();
        } catch (const Error& error) {
            Log(std::string(error.what()) + " (regel " + std::to_string(lines.Number()) + ")");
        }
    }

 private:
    void ReadFile() {
        if (!lines.Skip([](const std::string& line) { return Contains(Capitals(line), "HEADER"); })) {
            result.isOfTheFormat = false;
            return Log("Geen HEADER gevonden in het IDEX bestand");
        }
        ReadHeader();
        const auto isDatabase = [](const std::string& line) { return Contains(Capitals(line), "DATABASE"); };
        const bool hasLayers = lines.Skip([this, &isDatabase](const std::string& line) {
            result.lacksLayers = result.lacksLayers || isDatabase(line);
            return Starts(line, "LAYERS");
        });
        if (!hasLayers) return Log("Geen LAYERS gevonden in het IDEX bestand");
        ReadLayers();
        if (!lines.Skip(isDatabase)) return Log("Geen DATABASE gevonden in het IDEX bestand");
        ReadDatabase();
    }

    void Log(const std::string& problem) { result.log.push_back("FOUT:  " + problem); }

    // Header and layers

    void ReadHeader() {
        drawing.date.clear();
        while (!lines.IsAtEnd()) {
            const std::string line = lines.Take();
            const std::string keyword = KeywordOf(line);
            const std::string rest = RestOf(line);
            if (keyword == "SEPARATOR") lines.separator = SecondOf(rest);
            if (keyword == "TERMINATOR") lines.terminator = SecondOf(rest);
            if (keyword == "FIELD_DATE") drawing.date = DateOf(rest);
            if ((keyword == "END" && rest == "HEADER") || keyword == "EOF") break;
        }
        if (settings.dateFrom == DateFrom::Today) {
            char today[40];
            std::snprintf(today, sizeof today, "%04d%02d%02d", settings.today.year, settings.today.month,
                          settings.today.day);
            drawing.date = DateOf(today);
        }
        if (settings.dateFrom == DateFrom::Project) drawing.date = DateOf(Right(Trimmed(settings.projectDate), 8));
    }

    static char SecondOf(const std::string& rest) { return rest.size() < 2 ? ' ' : rest[1]; }

    static std::string DateOf(const std::string& text) {
        std::string date = Trimmed(Unquoted(text), idexBlanks);
        if (date.size() != 8 || date.find_first_not_of("0123456789") != std::string::npos) return date;
        return date.substr(6) + "-" + date.substr(4, 2) + "-" + date.substr(0, 4);
    }

    void ReadLayers() {
        const TableColumns column = lines.ColumnsOfTable();
        int rows = 0;
        for (std::string row = lines.TakeRow(); !Starts(row, "END"); row = lines.TakeRow()) {
            const Fields fields = lines.Split(Capitals(row));
            const std::int32_t number = Index(column(fields, "LAYERNO"), ++rows);
            if (number > highestLayer) highestLayer = number;
            layers[number] = Unquoted(column(fields, "NAME"));
        }
    }

    // A number that something is kept by: not negative, and not far above what was read.
    static std::int32_t Index(const std::string& field, int rows) {
        const std::int32_t number = WholeNumber(field);
        const bool isTooHigh = number > 1000000 && number > 10LL * rows;
        if (number < 0 || isTooHigh) throw Error("Index buiten bereik");
        return number;
    }

    // Tables

    void ReadDatabase() {
        while (!lines.IsAtEnd()) {
            std::string keyword = KeywordOf(lines.Take());
            if (keyword == "EOF") return;
            keyword = keyword.substr(0, keyword.find('('));
            if (keyword == "POINTS") ReadPoints();
            if (keyword == "LINES") ReadLines();
            if (keyword == "POLYGONS") {
                lines.ColumnsOfTable();
                lines.SkipTo("END");
            }
            if (keyword == "TEXT") ReadTexts();
        }
    }

    void ReadPoints() {
        TableColumns column = lines.ColumnsOfTable();
        bool updates = false;
        std::size_t place = 0;
        for (std::string row = lines.TakeRow(); !Starts(row, "END"); row = lines.TakeRow()) {
            if (Starts(row, "EXTRAINFO")) {
                column = lines.ColumnsOfTable();
                updates = true;
                continue;
            }
            if (!lines.BlockOf(row).empty()) {
                if (lines.IsEndedByBlock(lines.BlockOf(row))) break;
                continue;
            }
            const Fields fields = lines.Split(Escaped(Capitals(lines.WithNextLine(row))));
            const std::string number = column(fields, "POINTNO");
            ++place;
            if (updates) place = PlaceOf(WholeNumber(number));
            StorePoint(place, PointOf(column, fields, place));
        }
        AddGeneratedTexts();
    }

    static std::string Escaped(std::string row) {
        for (std::size_t at = 0; (at = row.find("\\\"", at)) != std::string::npos; at += 3) row.replace(at, 2, "\\@\\");
        return row;
    }

    static std::string WithoutEscapes(std::string text) {
        for (std::size_t at = 0; (at = text.find("\\@\\", at)) != std::string::npos; ++at) text.replace(at, 3, "\"");
        return text;
    }

    // The first point of this number, or else a new one.
    std::size_t PlaceOf(std::int32_t number) const {
        for (std::size_t i = 1; i < drawing.points.size(); ++i) {
            if (drawing.points[i].number == number) return i;
        }
        return drawing.points.size();
    }

    static Point PointOf(const TableColumns& column, const Fields& fields, std::size_t place) {
        Point point;
        const std::string number = column(fields, "POINTNO");
        point.number = number.empty() ? static_cast<std::int32_t>(place) : WholeNumber(number);
        if (point.number < 0) throw Error("Index buiten bereik");
        point.name = Left(Unquoted(column(fields, "POINTID")), 9);
        point.code = Left(Unquoted(column(fields, "CODE")), 7);
        point.description = Left(Unquoted(WithoutEscapes(column(fields, "DESCRIPTION"))), 80);
        point.east = LeadingNumber(column(fields, "EAST"));
        point.north = LeadingNumber(column(fields, "NORTH"));
        point.height = LeadingNumber(column(fields, "ELEVATION"));
        point.direction = LeadingNumber(column(fields, "SYMDIR"));
        return point;
    }

    void StorePoint(std::size_t place, const Point& point) {
        if (place >= drawing.points.size()) drawing.points.resize(place + 1);
        drawing.points[place] = point;
        drawing.placeOfNumber[point.number] = static_cast<std::int32_t>(place);
    }

    void AddGeneratedTexts() {
        for (std::size_t i = 1; settings.namesAsText && i < drawing.points.size(); ++i) {
            const Point& point = drawing.points[i];
            if (!Trimmed(point.name).empty()) AddGenerated(point.number, point.name, 9, 0, settings.nameCode);
        }
        for (std::size_t i = 1; settings.heightsAsText && i < drawing.points.size(); ++i) {
            const Point& point = drawing.points[i];
            if (point.height == 0) continue;
            std::string height = Right(Written(point.height, 2), 7);
            if (Contains(height, ".")) height[height.find('.')] = ',';
            AddGenerated(point.number, height, 5, 50, settings.heightCode);
        }
    }

    void AddGenerated(std::int32_t anchor, const std::string& text, int position, float direction,
                      const std::string& code) {
        Label label;
        label.anchor = anchor;
        label.position = position;
        label.direction = direction;
        label.code = Left("\xFF" + code, 7);
        label.text = Left(text, 47);
        drawing.labels.push_back(label);
    }

    void ReadLines() {
        const TableColumns column = lines.ColumnsOfTable();
        for (std::string row = lines.TakeRow(); !Starts(row, "END"); row = lines.TakeRow()) {
            if (Starts(row, "EDGES")) {
                ReadEdges();
                continue;
            }
            if (!lines.BlockOf(row).empty()) {
                if (lines.IsEndedByBlock(lines.BlockOf(row))) break;
                continue;
            }
            const Fields fields = lines.Split(Capitals(row));
            ++lineRows;
            const auto number = static_cast<std::size_t>(Index(column(fields, "LINENO"), lineRows));
            if (drawing.lines.size() <= number) drawing.lines.resize(number + 1);
            Line& line = drawing.lines[number];
            line.code = Left(Unquoted(column(fields, "CODE")), 7);
            line.description = Left(Unquoted(column(fields, "DESCRIPTION")), 53);
            line.flags1 = FlagsOf(column(fields, "FLAGS1"));
            line.flags2 = FlagsOf(column(fields, "FLAGS2"));
        }
    }

    static std::int32_t FlagsOf(const std::string& field) {
        std::uint32_t flags = 0;
        for (const char c : field) {
            if (c == ' ') continue;
            flags = flags * 2 + (c == '1' ? 1 : 0);
        }
        return static_cast<std::int32_t>(flags);
    }

    void ReadEdges() {
        const TableColumns column = lines.ColumnsOfTable();
        for (std::string row = lines.TakeRow(); !Starts(row, "END"); row = lines.TakeRow()) {
            if (Starts(row, "EXTRAINFO")) {
                lines.SkipTo("END");
                continue;
            }
            if (!lines.BlockOf(row).empty()) {
                if (lines.IsEndedByBlock(lines.BlockOf(row))) break;
                continue;
            }
            const Fields fields = lines.Split(Capitals(row));
            Edge edge;
            edge.line = WholeNumber(column(fields, "LINENO"));
            edge.start = PlaceNamed(column(fields, "STARTPT"));
            edge.end = PlaceNamed(column(fields, "ENDPT"));
            edge.type = Left(column(fields, "LINETYPE"), 12);
            drawing.edges.push_back(edge);
        }
    }

    std::int32_t PlaceNamed(const std::string& field) const {
        if (!IsNumber(field)) throw Error("Typen komen niet overeen");
        const std::int32_t number = WholeNumber(field);
        const std::int32_t highest = drawing.placeOfNumber.empty() ? 0 : drawing.placeOfNumber.rbegin()->first;
        if (number < 0 || number > highest) throw Error("Index buiten bereik");
        const auto found = drawing.placeOfNumber.find(number);
        return found == drawing.placeOfNumber.end() ? 0 : found->second;
    }

    static bool IsNumber(const std::string& field) {
        std::size_t at = 0;
        const auto skipDigits = [&field, &at] {
            const std::size_t from = at;
            while (at < field.size() && field[at] >= '0' && field[at] <= '9') ++at;
            return at - from;
        };
        const auto skipSign = [&field, &at] {
            if (at < field.size() && (field[at] == '+' || field[at] == '-')) ++at;
        };
        skipSign();
        std::size_t digits = skipDigits();
        if (at < field.size() && field[at] == '.') {
            ++at;
            digits += skipDigits();
        }
        if (digits == 0) return false;
        if (at < field.size() && (field[at] == 'E' || field[at] == 'D')) {
            ++at;
            skipSign();
            if (skipDigits() == 0) return false;
        }
        return at == field.size();
    }

    void ReadTexts() {
        lines.SkipTo("BOX_ON_POINT");
        const std::map<std::int32_t, Box> boxes = ReadBoxes();
        lines.SkipTo("ITEMS");
        const TableColumns column = lines.ColumnsOfTable();
        for (std::string row = lines.TakeRow(); !Starts(row, "END"); row = lines.TakeRow()) {
            const Fields fields = lines.Split(row);
            const std::string text = Unquoted(column(fields, "TEXTITEM"));
            if (LeadingNumber(column(fields, "LINENO")) == 1) {
                const auto box = boxes.find(WholeNumber(column(fields, "TEXTBOXNO")));
                if (box == boxes.end()) throw Error("Index buiten bereik");
                Label label;
                label.anchor = box->second.anchor;
                label.position = box->second.position;
                label.direction = box->second.direction;
                label.code = Left(box->second.code, 7);
                label.text = Left(text, 47);
                drawing.labels.push_back(label);
            } else if (drawing.labels.size() == 1) {
                Log("Tekstregel zonder tekst (regel " + std::to_string(lines.Number()) + ")");
            } else {
                Label& label = drawing.labels.back();
                label.text = Left(Trimmed(label.text) + " " + text, 47);
            }
        }
    }

    std::map<std::int32_t, Box> ReadBoxes() {
        std::map<std::int32_t, Box> boxes;
        const TableColumns column = lines.ColumnsOfTable();
        int rows = 0;
        for (std::string row = lines.TakeRow(); !Starts(row, "END"); row = lines.TakeRow()) {
            const Fields fields = lines.Split(row);
            const std::int32_t number = Index(row, ++rows);
            Box box;
            box.anchor = WholeNumber(column(fields, "ANCHORPOINTNO"));
            box.position = WholeNumber(column(fields, "ANCHORPOSITION"));
            if (box.position < -32768 || box.position > 32767) throw Error("Overloop");
            const double direction = LeadingNumber(column(fields, "HZDIRECTION"));
            if (direction > std::numeric_limits<float>::max() || direction < std::numeric_limits<float>::lowest()) {
                throw Error("Overloop");
            }
            box.direction = static_cast<float>(direction);
            const std::int32_t layer = WholeNumber(column(fields, "LAYERNO"));
            if (layer < 0 || layer > highestLayer) throw Error("Index buiten bereik");
            box.code = layers[layer];
            boxes[number] = box;
        }
        return boxes;
    }

    const Settings& settings;
    Result& result;
    Drawing& drawing = result.drawing;
    IdexLines lines;
    std::map<std::int32_t, std::string> layers;
    std::int32_t highestLayer = -1;
    int lineRows = 0;
};

}  // namespace

void ReadIdex(const std::string& file, const Settings& settings, Result& result) {
    Reader(file, settings, result).Read();
}

}  // namespace korvande::reference
