#include "picture/DifferenceReasons.h"

#include <algorithm>
#include <array>

#include "translation/Translation.h"

namespace korvande {

namespace {

constexpr std::size_t longestText = 40;  // of what an exchange file takes

const Drawing& DrawingOf(const ComparedDrawing& drawing) { return drawing.translation.drawing; }

const PictureCode& CodeOf(const ComparedDrawing& drawing, const ComparedObject& object) {
    return drawing.objects.codes[object.code];
}

// Nine columns of millimetres, of which a sign takes one.
bool FitsColumns(const ComparedPlace& place) {
    constexpr std::int64_t least = -99'999'999;
    constexpr std::int64_t most = 999'999'999;
    const std::array coordinates = {place.east, place.north, place.otherEast, place.otherNorth};
    return std::all_of(coordinates.begin(), coordinates.end(),
                       [](std::int64_t millimetres) { return millimetres >= least && millimetres <= most; });
}

Text TypeOfSegment(const ComparedDrawing& drawing, const ComparedObject& object) {
    const auto& lineType = DrawingOf(drawing).LineType(DrawingOf(drawing).Edges[object.index]);
    return Text(lineType.Trimmed());
}

bool IsWrittenType(TextView lineType) {
    constexpr std::array<TextView, 5> types = {u"STRAIGHT", u"CURVE_3RD", u"CURVE_4RD", u"ARC_CENT", u"CIRCLE_CENT"};
    return std::find(types.begin(), types.end(), lineType) != types.end();
}

}  // namespace

Text WhyMissing(const ComparedDrawing& first, const ComparedObject& object, ComparedKind kind) {
    if (object.refersToNothing) return u"verwijst naar niets";
    const PictureCode& code = CodeOf(first, object);
    if (!code.isWritten) {
        return code.type.empty() ? Text(u"de codetabel is leeg")
                                 : Concat(u"type ", code.type, u" in de controletabel wordt niet geschreven");
    }
    if (!FitsColumns(object.place)) return u"de coördinaat past niet in negen posities";
    if (kind == ComparedKind::Arc || kind == ComparedKind::Circle) {
        if (!first.translation.options.chkThreePointArcs) return u"een boog wordt segment voor segment geschreven";
        if (kind == ComparedKind::Circle) return u"een cirkel wordt als twee halve cirkels geschreven";
    }
    if (kind == ComparedKind::Segment) {
        const Text lineType = TypeOfSegment(first, object);
        if (!IsWrittenType(lineType)) return Concat(u"lijntype ", lineType, u" wordt niet geschreven");
        if (lineType.ends_with(u"_CENT")) return u"een boog wordt segment voor segment geschreven";
    }
    if (kind == ComparedKind::TextObject) {
        const auto& characters = DrawingOf(first).Texts[object.index].Characters();
        if (characters.IsBlank()) return u"lege tekst";
    }
    return code.isKnown ? Text() : Text(u"de code staat niet in de controletabel");
}

Text WhyChanged(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
                const ComparedObject& other, ComparedKind kind) {
    const PictureCode& code1 = CodeOf(first, one);
    const PictureCode& code2 = CodeOf(second, other);
    if (kind == ComparedKind::TextObject && one.content != other.content) {
        const auto& characters1 = DrawingOf(first).Texts[one.index].Characters();
        const auto& characters2 = DrawingOf(second).Texts[other.index].Characters();
        const Text before(characters1.Trimmed());
        const Text after(characters2.Trimmed());
        if (code1.lkiCode == u"Z01" && before.ends_with(after))
            return u"een plaatsnaam (Z01) wordt gelezen vanaf kolom 14";
        if (before.size() > longestText && TrimRight(TextView(before).substr(0, longestText)) == after) {
            return u"een tekst wordt op 40 tekens afgekapt";
        }
    }
    if (one.shared != other.shared) {
        if (!code1.isKnown) return u"de code staat niet in de controletabel";
        if (kind == ComparedKind::TextObject && code2.code == u"STNDRD") return u"IDEX wordt op een laag geschreven";
        if (code1.lkiCode == code2.lkiCode) return u"de LKI-code staat meer dan een keer in de controletabel";
    }
    if (kind == ComparedKind::Segment && one.content != other.content) {
        if (TypeOfSegment(first, one).starts_with(u"CURVE_")) return u"een kromme wordt recht geschreven";
    }
    const bool isComputed = second.translation.mode.direction == Direction::ToIdex;
    if (kind == ComparedKind::Arc && isComputed && one.content == other.content) {
        return u"drie punten op de millimeter geven een ander middelpunt";
    }
    const bool isTurned = one.direction != 0 && other.direction == 0;
    if (kind == ComparedKind::Point && isTurned) return u"een 03-groep heeft geen richting";
    return {};
}

Text WhyAdded(const ComparedDrawing& second, const ComparedObject& object, ComparedKind kind) {
    const Drawing& drawing = DrawingOf(second);
    if (object.refersToNothing) return u"verwijst naar niets";
    if (kind == ComparedKind::Point) {
        const auto& code = drawing.Code(drawing.Points[object.index]);
        if (Trim(code.View()) == u"100") return u"plaats van een tekst";
        CodeTable& lines = second.translation.codes.lines;
        const bool isOfLine =
            FindLiscadCode(lines, code) > 0 || (!lines.rows.empty() && lines.rows.front().LiscadCode == code);
        if (isOfLine && FindLiscadCode(second.translation.codes.points, code) == 0) return u"punt van een lijn of boog";
    }
    if (kind == ComparedKind::Segment) {
        const EdgeRec& edge = drawing.Edges[object.index];
        const bool isPoint = edge.StartPt >= 1 && edge.StartPt <= drawing.Points.UpperBound();
        const auto& code = drawing.Code(drawing.Points[isPoint ? edge.StartPt : 0]);
        if (isPoint && Trim(code.View()) == u"100") return u"lijn tussen de plaatsen van een tekst";
    }
    if (kind == ComparedKind::LineString) return u"lijnstring zonder segmenten";
    return {};
}

}  // namespace korvande
