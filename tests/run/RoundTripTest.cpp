#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "idex/modImportIDEX.h"
#include "tests/run/FileRun.h"
#include "tests/run/RandomDrawing.h"

// What a drawing keeps when it goes to another format and comes back.
namespace korvande::testing {

namespace {

// Whole millimetres, halves away from zero, as the exchange formats have them.
std::int64_t Millimetres(std::int64_t tenths) { return tenths < 0 ? -((-tenths + 5) / 10) : (tenths + 5) / 10; }
std::int64_t Millimetres(double metres) { return std::llround(metres * 1000); }

struct Place {
    std::int64_t east = 0;
    std::int64_t north = 0;
    std::int64_t height = 0;
    auto operator<=>(const Place&) const = default;
};

Place PlaceOf(const RandomVertex& vertex, bool withHeight) {
    return {Millimetres(vertex.east), Millimetres(vertex.north), withHeight ? Millimetres(vertex.height) : 0};
}

Place PlaceOf(const PointRec& point) {
    return {Millimetres(point.East), Millimetres(point.North), Millimetres(point.Elevation)};
}

struct PointKey {
    Place place;
    std::string name;
    std::string code;
    std::string description;
    auto operator<=>(const PointKey&) const = default;
};

struct SegmentKey {
    std::string code;
    Place start;
    Place end;
    auto operator<=>(const SegmentKey&) const = default;
};

struct TextKey {
    Place anchor;
    std::string text;
    auto operator<=>(const TextKey&) const = default;
};

// Points, straight segments and texts, without their order.
struct Content {
    std::multiset<PointKey> points;
    std::multiset<SegmentKey> segments;
    std::map<TextKey, double> texts;  // with their direction in grads; the drawings' texts are all different
};

template <class Set>
void ExpectContained(const Set& expected, const Set& actual, const char* what) {
    EXPECT_TRUE(std::includes(actual.begin(), actual.end(), expected.begin(), expected.end())) << what;
}

const RandomCode* Find(const std::vector<RandomCode>& codes, const std::string& liscad) {
    for (const RandomCode& code : codes) {
        if (code.liscad == liscad) return &code;
    }
    return nullptr;
}

bool IsWrittenPoint(const RandomCode& code) { return code.type != "DUMMY" && code.type != "GRENS"; }

bool IsWrittenLine(const RandomCode& code) { return code.type == "LIJN" || code.type == "GRENS"; }

class RoundTrip : public FileRunTest {
 protected:
    RoundTrip() {
        LoadTable(RandomTable());
        // Any two accents in a row may look like UTF-8.
        options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Windows1252)];
    }

    struct Choice {
        bool withHeight = false;
        bool withNames = false;
        bool withUnknowns = false;
    };

    Choice Choose(unsigned seed) {
        const Choice choice{seed % 2 == 0, seed % 3 != 0, seed % 5 == 0};
        options.chkExport3D = choice.withHeight;
        options.chkExportPointnoAsField = choice.withNames;
        options.chkExportUnknowns = options.chkImportUnknowns = choice.withUnknowns;
        options.chkExportSymRotation = options.chkImportSymRotation = seed % 7 == 0;
        return choice;
    }

    // The part of a drawing that its translation carries over and that must come back.
    static Content Carried(const RandomDrawing& drawing, const Choice& choice) {
        Content content;
        for (const auto& point : drawing.points) {
            const RandomCode* const code = Find(PointCodesOfTable(), point.code);
            if (code == nullptr || !IsWrittenPoint(*code)) continue;
            content.points.insert({PlaceOf(point, choice.withHeight),
                                   choice.withNames ? ToCapitals(point.name) : std::string(), point.code,
                                   code->description});
        }
        for (const auto& edge : drawing.edges) {
            const RandomCode* const code = Find(LineCodesOfTable(), CodeOfLine(drawing, edge.line));
            const bool isStraight = edge.type == "STRAIGHT" || edge.type.starts_with("CURVE_");
            if (code == nullptr || !isStraight || !IsWrittenLine(*code)) continue;
            content.segments.insert({code->liscad, PlaceOf(drawing.points[edge.start], choice.withHeight),
                                     PlaceOf(drawing.points[edge.end], choice.withHeight)});
        }
        for (const auto& label : drawing.labels) {
            const bool isKnown = Find(TextCodesOfTable(), label.layer) != nullptr;
            if (!isKnown || label.text.size() > 40) continue;
            content.texts[{PlaceOf(drawing.points[label.anchor], choice.withHeight), label.text}] =
                static_cast<double>(label.direction) / 1000;
        }
        return content;
    }

    // What an IDEX file holds, by the reader of such files.
    Content ContentOf(std::string_view idex) {
        ReadIdexFile(BeginInMemory(idexToNen, idex));
        Content content;
        const Drawing& drawing = last->drawing;
        for (std::int32_t i = 1; i <= drawing.Points.UpperBound(); ++i) {
            const PointRec& point = drawing.Points[i];
            content.points.insert({PlaceOf(point), ToWindows1252(point.PointID().Trimmed()),
                                   ToWindows1252(drawing.Code(point).Trimmed()),
                                   ToWindows1252(drawing.Description(point).Trimmed())});
        }
        for (std::int32_t i = 1; i <= drawing.Edges.UpperBound(); ++i) {
            const EdgeRec& edge = drawing.Edges[i];
            if (drawing.LineType(edge).Trimmed() != u"STRAIGHT") continue;
            content.segments.insert({ToWindows1252(drawing.Code(drawing.Lines[edge.LineNo]).Trimmed()),
                                     PlaceOf(drawing.Points[edge.StartPt]), PlaceOf(drawing.Points[edge.EndPt])});
        }
        for (std::int32_t i = 1; i <= drawing.Texts.UpperBound(); ++i) {
            const TextRec& text = drawing.Texts[i];
            const PointRec& anchor = drawing.Points[drawing.PointIndex.Find(text.AnchorPointNo)];
            content.texts[{PlaceOf(anchor), ToWindows1252(text.Characters().Trimmed())}] =
                static_cast<double>(text.HzDirection);
        }
        return content;
    }

    std::string Translated(Mode mode, const std::string& bytes) {
        const Translation& translation = TranslateBytes(mode, bytes);
        EXPECT_FALSE(translation.outcome.Failed());
        return translation.outputBytes;
    }

    static std::string CodeOfLine(const RandomDrawing& drawing, std::int32_t number) {
        for (const auto& line : drawing.lines) {
            if (line.number == number) return line.code;
        }
        return {};
    }

    void ExpectTheDrawingToComeBack(unsigned seed, Mode there, Mode back) {
        const Choice choice = Choose(seed);
        const RandomDrawing drawing(seed);
        const std::string original = drawing.AsIdex();
        const std::string exchange = Translated(there, original);
        EXPECT_EQ(last->drawing.Points.UpperBound(), static_cast<std::int32_t>(drawing.points.size()));
        const std::string cameBack = Translated(back, exchange);

        const Content expected = Carried(drawing, choice);
        const Content actual = ContentOf(cameBack);
        ExpectContained(expected.points, actual.points, "points");
        ExpectContained(expected.segments, actual.segments, "segments");
        for (const auto& [key, direction] : expected.texts) {
            const auto found = actual.texts.find(key);
            if (found == actual.texts.end()) {
                ADD_FAILURE() << "text " << Windows1252ToUtf8(key.text) << " is gone";
                continue;
            }
            const double turn = std::fabs(found->second - direction);
            EXPECT_LE(std::min(turn, 400 - turn), 0.1) << Windows1252ToUtf8(key.text);
        }
        carriedPoints += expected.points.size();
        carriedSegments += expected.segments.size();
        carriedTexts += expected.texts.size();
    }

    std::size_t carriedPoints = 0;
    std::size_t carriedSegments = 0;
    std::size_t carriedTexts = 0;
};

constexpr unsigned drawings = 60;

TEST_F(RoundTrip, OfIdexByNen1878KeepsPointsStraightSegmentsAndTexts) {
    for (unsigned seed = 1; seed <= drawings; ++seed) {
        SCOPED_TRACE(seed);
        ExpectTheDrawingToComeBack(seed, idexToNen, nenToIdex);
    }
    // The drawings were worth the trip.
    EXPECT_GT(carriedPoints, 500U);
    EXPECT_GT(carriedSegments, 100U);
    EXPECT_GT(carriedTexts, 100U);
}

TEST_F(RoundTrip, OfIdexBySuf2KeepsTheSame) {
    for (unsigned seed = 1001; seed <= 1000 + drawings; ++seed) {
        SCOPED_TRACE(seed);
        ExpectTheDrawingToComeBack(seed, idexToSuf, sufToIdex);
    }
    EXPECT_GT(carriedPoints, 500U);
}

// Exchange files as another program may write them: points and lines of several vertices, over continuation lines.
class ExchangeFile {
 public:
    explicit ExchangeFile(bool isNen1878)
        : isNen(isNen1878),
          text(isNen ? "010NEN1878    V202405202405       0101S05                     01\r\n"
                       "020102150201         0         0         1         0         101\r\n"
                     : "010           V      202405       VAIKLI, LisCAD              01\r\n"
                       "02010201             0         0         1         0         101\r\n") {}

    void Put(const std::string& code, bool isPoint, const std::vector<Place>& places) {
        std::string kind = isPoint ? "G0101" : "G1201";
        if (!isPoint && !isNen) kind = "G 30 ";
        if (isPoint && !isNen) kind = "G 10 ";
        std::string head = "M" + code;
        head.resize(10, ' ');
        PutRecord("03", head + kind, "00");
        std::string payload;
        for (const Place& place : places) {
            payload += (payload.empty() ? "I1        " : isPoint ? "" : "I2        ");
            payload += Field('X', place.east) + Field('Y', place.north);
            if (place.height != 0) payload += Field('Z', place.height);
        }
        PutRecord("04", payload, "01");
    }

    std::string End() const { return text + "99" + std::string(62, ' ') + "\r\n"; }

 private:
    static std::string Field(char key, std::int64_t value) {
        const std::string digits = std::to_string(value);
        return key + std::string(9 - digits.size(), ' ') + digits;
    }

    void PutRecord(const std::string& type, std::string payload, const std::string& endCode) {
        while (payload.size() > 60) {
            text += type + payload.substr(0, 60) + "00\r\n";
            payload.erase(0, 60);
        }
        payload.resize(60, ' ');
        text += type + payload + (isNen ? endCode : "01") + "\r\n";
    }

    bool isNen;
    std::string text;
};

using CodeAndPlaces = std::pair<std::string, std::vector<Place>>;

// X and Y and Z in fields of ten columns.
std::vector<Place> PlacesIn(const std::string& payload) {
    std::vector<Place> places;
    for (std::size_t field = 0; field + 10 <= payload.size(); field += 10) {
        const auto number = [&] { return std::stoll(payload.substr(field + 1, 9)); };
        if (payload[field] == 'X') places.push_back({number(), 0, 0});
        if (payload[field] == 'Y') places.back().north = number();
        if (payload[field] == 'Z') places.back().height = number();
    }
    return places;
}

// The points and straight segments in a file that the program wrote: every record one group.
struct Exchanged {
    std::multiset<CodeAndPlaces> points;
    std::multiset<CodeAndPlaces> segments;
};

Exchanged Exchange(const std::string& bytes) {
    Exchanged content;
    std::string code;
    bool isPoint = false;
    for (std::size_t at = 0; at + 66 <= bytes.size(); at += 66) {
        const std::string type = bytes.substr(at, 2);
        std::string payload = bytes.substr(at + 2, 60);
        if (type == "03") {
            code = payload.substr(1, 7);
            code.erase(code.find_last_not_of(' ') + 1);
            isPoint = payload.substr(10, 3) == "G01" || payload.substr(10, 3) == "G 1";
        } else if (type == "04") {
            while (bytes.substr(at + 62, 2) == "00" && bytes.substr(at + 66, 2) == "04") {
                at += 66;
                payload += bytes.substr(at + 2, 60);
            }
            (isPoint ? content.points : content.segments).insert({code, PlacesIn(payload)});
        }
    }
    return content;
}

class ExchangeRoundTrip : public RoundTrip {
 protected:
    static Place AnyPlace(Chance& chance, bool withHeight) {
        Place place{chance.Between(-99'999'998, 999'999'998), chance.Between(-99'999'998, 999'999'998), 0};
        if (withHeight) place.height = chance.Between(-9'999, 99'999);
        return place;
    }

    // The LKI code of a row whose objects go through in both directions.
    static std::string AnyCode(Chance& chance, const std::vector<RandomCode>& codes,
                               bool (*isWritten)(const RandomCode&)) {
        while (true) {
            const RandomCode& code = codes[chance.Below(codes.size())];
            if (isWritten(code)) return code.lki;
        }
    }

    void ExpectTheFileToComeBack(unsigned seed, bool isNen) {
        const Choice choice = Choose(seed);
        options.chkExportUnknowns = options.chkImportUnknowns = false;
        Chance chance(seed);
        ExchangeFile file(isNen);
        Exchanged expected;
        const std::size_t objects = chance.Below(40);
        for (std::size_t i = 0; i < objects; ++i) {
            if (chance.Once(2)) {
                const CodeAndPlaces point = {AnyCode(chance, PointCodesOfTable(), IsWrittenPoint),
                                             {AnyPlace(chance, choice.withHeight)}};
                file.Put(point.first, true, point.second);
                expected.points.insert(point);
                continue;
            }
            const std::string code = AnyCode(chance, LineCodesOfTable(), IsWrittenLine);
            std::vector<Place> vertices;
            const std::size_t count = 2 + chance.Below(20);
            for (std::size_t j = 0; j < count; ++j) vertices.push_back(AnyPlace(chance, choice.withHeight));
            file.Put(code, false, vertices);
            for (std::size_t j = 1; j < count; ++j) expected.segments.insert({code, {vertices[j - 1], vertices[j]}});
        }
        const std::string original = file.End();
        const std::string idex = Translated(isNen ? nenToIdex : sufToIdex, original);
        const std::string cameBack = Translated(isNen ? idexToNen : idexToSuf, idex);
        const Exchanged actual = Exchange(cameBack);
        EXPECT_TRUE(actual.points == expected.points) << original << cameBack;
        EXPECT_TRUE(actual.segments == expected.segments) << original << cameBack;
        carriedPoints += expected.points.size();
        carriedSegments += expected.segments.size();
    }
};

TEST_F(ExchangeRoundTrip, OfNen1878ByIdexKeepsPointsAndLinesExactly) {
    for (unsigned seed = 1; seed <= drawings; ++seed) {
        SCOPED_TRACE(seed);
        ExpectTheFileToComeBack(seed, true);
    }
    EXPECT_GT(carriedPoints, 300U);
    EXPECT_GT(carriedSegments, 3000U);
}

TEST_F(ExchangeRoundTrip, OfSuf2ByIdexKeepsThemToo) {
    for (unsigned seed = 1001; seed <= 1000 + drawings; ++seed) {
        SCOPED_TRACE(seed);
        ExpectTheFileToComeBack(seed, false);
    }
    EXPECT_GT(carriedSegments, 3000U);
}

}  // namespace

}  // namespace korvande::testing
