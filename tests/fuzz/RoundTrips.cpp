#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <set>

#include "core/RuntimeError.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modImportSUFNEN.h"
#include "run/TranslateFiles.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"
#include "translation/Translation.h"

namespace korvande::fuzz {

namespace {

// Whole millimetres.
struct Place {
    std::int64_t east = 0;
    std::int64_t north = 0;
    std::int64_t height = 0;
    auto operator<=>(const Place&) const = default;
};

struct PointKey {
    Place place;
    Text code;
    auto operator<=>(const PointKey&) const = default;
};

struct SegmentKey {
    Text code;
    Place start;
    Place end;
    auto operator<=>(const SegmentKey&) const = default;
};

struct TextKey {
    Place anchor;
    Text text;
    auto operator<=>(const TextKey&) const = default;
};

struct Content {
    std::multiset<PointKey> points;
    std::multiset<SegmentKey> segments;
    std::multimap<TextKey, double> texts;  // with their direction in grads
};

// The options of both ways in the input's first byte.
struct Choice {
    Mode mode;
    bool withHeight = false;
    bool withUnknowns = false;
    bool withNames = false;
    bool withSymbolRotation = false;
    bool withThreePointArcs = false;

    explicit Choice(unsigned char byte)
        : mode(modes[byte % modes.size()].mode),
          withHeight((byte & 4U) != 0),
          withUnknowns((byte & 8U) != 0),
          withNames((byte & 16U) != 0),
          withSymbolRotation((byte & 32U) != 0),
          withThreePointArcs((byte & 64U) != 0) {}
};

Options OptionsOf(const Choice& choice, Options options) {
    options.chkExport3D = choice.withHeight;
    options.chkExportUnknowns = options.chkImportUnknowns = choice.withUnknowns;
    options.chkExportPointnoAsField = choice.withNames;
    options.chkExportSymRotation = options.chkImportSymRotation = choice.withSymbolRotation;
    options.chkThreePointArcs = choice.withThreePointArcs;
    options.chkSelectXY = false;
    // Any two accents in a row may look like UTF-8.
    options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Windows1252)];
    return options;
}

// What of a drawing both formats hold: nothing that is rounded in two ways or too wide for nine columns.
class Carried {
 public:
    Carried(const Drawing& itsDrawing, CodeTables& itsCodes, const Choice& itsChoice, bool itCameBack)
        : drawing(itsDrawing), codes(itsCodes), choice(itsChoice), cameBack(itCameBack) {}

    Content All() {
        Content content;
        for (std::int32_t i = 1; i <= drawing.Points.UpperBound(); ++i) TakePoint(drawing.Points[i], content);
        for (std::int32_t i = 1; i <= drawing.Edges.UpperBound(); ++i) TakeSegment(drawing.Edges[i], content);
        for (std::int32_t i = 1; i <= drawing.Texts.UpperBound(); ++i) TakeText(drawing.Texts[i], content);
        return content;
    }

 private:
    bool Fits(double metres) const {
        const double millimetres = metres * 1000;
        // With a metre to spare for the reference place.
        if (!(millimetres > -99'998'000 && millimetres < 999'998'000)) return false;
        // The four decimals of IDEX in between turn what is almost a half into one.
        const double nearAHalf = choice.mode.direction == Direction::ToIdex ? 0.051 : 1e-5;
        return std::fabs(std::fabs(millimetres - std::trunc(millimetres)) - 0.5) > nearAHalf;
    }

    std::optional<Place> PlaceOf(const PointRec& point) const {
        const double height = choice.withHeight ? point.Elevation : 0;
        if (!Fits(point.East) || !Fits(point.North) || !Fits(height)) return std::nullopt;
        return Place{std::llround(point.East * 1000), std::llround(point.North * 1000), std::llround(height * 1000)};
    }

    void TakePoint(const PointRec& point, Content& content) {
        const auto code = drawing.Code(point);
        const std::int32_t row = FindLiscadCode(codes.points, code);
        const std::optional<Place> place = PlaceOf(point);
        if (row <= 0 || !place) return;
        const Text type(codes.points.rows[static_cast<std::size_t>(row)].Type.Trimmed());
        constexpr std::array written = {types::point, types::rotatedPoint, types::symbol, types::controlPoint};
        if (std::find(written.begin(), written.end(), type) == written.end()) return;
        content.points.insert({*place, Text(code.Trimmed())});
    }

    void TakeSegment(const EdgeRec& edge, Content& content) {
        const bool isThere =
            edge.LineNo > 0 && edge.LineNo <= drawing.Lines.UpperBound() && edge.StartPt > 0 && edge.EndPt > 0;
        if (!isThere || drawing.LineType(edge).Trimmed() != u"STRAIGHT") return;
        const auto code = drawing.Code(drawing.Lines[edge.LineNo]);
        const std::int32_t row = FindLiscadCode(codes.lines, code);
        const std::optional<Place> start = PlaceOf(drawing.Points[edge.StartPt]);
        const std::optional<Place> end = PlaceOf(drawing.Points[edge.EndPt]);
        if (row <= 0 || !start || !end) return;
        const Text type(codes.lines.rows[static_cast<std::size_t>(row)].Type.Trimmed());
        if (type != types::line && type != types::boundary) return;
        content.segments.insert({Text(code.Trimmed()), *start, *end});
    }

    // A text comes back on another layer, so its code counts on the way there only.
    void TakeText(const TextRec& text, Content& content) {
        constexpr std::size_t longest = 40;
        const std::int32_t anchor = drawing.PointIndex.Find(text.AnchorPointNo);
        if (anchor <= 0 || (!cameBack && !IsWholeText(text))) return;
        const std::optional<Place> place = PlaceOf(drawing.Points[anchor]);
        const Text characters(text.Characters().Trimmed());
        if (!place || characters.empty() || text.Characters().Trimmed().size() > longest) return;
        content.texts.insert({{*place, AsIdexHolds(characters)}, static_cast<double>(text.HzDirection)});
    }

    // Texts of Z01 lose their first characters.
    bool IsWholeText(const TextRec& text) {
        const std::int32_t row = FindLiscadCode(codes.texts, drawing.Code(text));
        return row > 0 && codes.texts.rows[static_cast<std::size_t>(row)].LkiCode.Trimmed() != u"Z01";
    }

    // The marks of IDEX in a text become others.
    static Text AsIdexHolds(Text text) {
        std::replace(text.begin(), text.end(), u'"', u'\'');
        std::replace(text.begin(), text.end(), u';', u',');
        return text;
    }

    const Drawing& drawing;
    CodeTables& codes;
    const Choice& choice;
    const bool cameBack;
};

template <class Keys>
void RequireContained(const Keys& expected, const Keys& actual, const char* what) {
    Require(std::includes(actual.begin(), actual.end(), expected.begin(), expected.end()), what);
}

// A round trip with one project and one choice of options.
class Trip {
 public:
    explicit Trip(const Choice& itsChoice) : choice(itsChoice), project(ProjectOf(screen, someTable)) {
        project.options = OptionsOf(choice, project.options);
    }

    // The bytes of the other format; nothing when the input is none of its own.
    std::optional<std::string> Translated(Mode mode, std::string_view input) {
        Translation translation(screen, project);
        translation.mode = mode;
        translation.modeText = NamesOf(mode).text;
        translation.inputBytes = input;
        translation.outputTo = OutputTo::Memory;
        translation.withDiagnosticFiles = false;
        Require(TranslateFiles(translation), "the run did not begin");
        if (translation.outcome.Failed()) return std::nullopt;
        return translation.outputBytes;
    }

    // What a drawing holds that must come back, or did.
    Content ContentOf(Mode mode, std::string_view input, bool cameBack) {
        Translation translation(screen, project);
        translation.mode = mode;
        translation.inputBytes = input;
        translation.outputTo = OutputTo::Nowhere;
        translation.withDiagnosticFiles = false;
        try {
            (mode.direction == Direction::FromIdex ? ReadIdexFile : ImportNenSuf)(translation);
        } catch (const RuntimeError& error) {
            // What stands before the damage was translated.
            Require(!cameBack, "what came back is damaged: " + ToUtf8(error.Description()));
        }
        return Carried(translation.drawing, translation.codes, choice, cameBack).All();
    }

 private:
    const Choice& choice;
    AnsweringScreen screen{Answer::Yes};
    Project project;
};

void RequireTexts(const Content& expected, const Content& actual) {
    for (const auto& text : expected.texts) {
        const TextKey& key = text.first;
        const double direction = text.second;
        const auto [first, last] = actual.texts.equal_range(key);
        Require(first != last, "a text is gone: " + ToUtf8(key.text));
        if (std::fabs(direction) > 4000) continue;  // a float has no tenths of a grad there
        Require(std::any_of(first, last,
                            [direction](const auto& found) {
                                const double turn = std::fabs(std::remainder(found.second - direction, 400.0));
                                return turn <= 0.1;
                            }),
                "a text turned: " + ToUtf8(key.text));
    }
}

}  // namespace

// A drawing in one of the four modes to the other format, and back.
void TryRoundTrip(std::string_view input) {
    const Choice choice(input.empty() ? 0 : static_cast<unsigned char>(input.front()));
    input = input.substr(input.empty() ? 0 : 1);
    const bool isFromIdex = choice.mode.direction == Direction::FromIdex;
    const Mode there = choice.mode;
    const Mode back{isFromIdex ? Direction::ToIdex : Direction::FromIdex, there.variant};
    Trip trip(choice);
    const std::optional<std::string> output = trip.Translated(there, input);
    if (!output) return;
    const std::optional<std::string> cameBack = trip.Translated(back, *output);
    Require(cameBack.has_value(), "the output cannot be translated back");
    const Content expected = trip.ContentOf(there, input, false);
    const Content actual = trip.ContentOf(there, *cameBack, true);
    RequireContained(expected.points, actual.points, "a point did not come back");
    RequireContained(expected.segments, actual.segments, "a segment did not come back");
    if (isFromIdex) RequireTexts(expected, actual);
}

}  // namespace korvande::fuzz
