#include "core/modKORVANDE.h"

namespace korvande {

static_assert(sizeof(PointRec) == 232 && sizeof(LineRec) == 128 && sizeof(EdgeRec) == 36 && sizeof(TextRec) == 120);

void UnknownCodeTally::Count(const FixedText<8>& code) {
    const auto [place, isNew] = places.try_emplace(Text(code.View()), entries.size());
    if (isNew) entries.push_back({code, 0});
    ++entries[place->second].Count;
}

void UnknownCodeTally::Reset() {
    entries.clear();
    places.clear();
}

Drawing& TheDrawing() noexcept {
    static Drawing drawing;
    return drawing;
}

void ResetDrawing() {
    Drawing& drawing = TheDrawing();
    drawing.Points.Reset();
    drawing.Lines.Reset();
    drawing.Edges.Reset();
    drawing.Texts.Reset();
    drawing.PointIndex.Reset();
    drawing.UnknownCodes.Reset();
    drawing.IdexSeparator = ',';
    drawing.IdexTerminator = ';';
    drawing.DrawingDate.clear();
}

void CountUnknownCode(const FixedText<8>& code) { TheDrawing().UnknownCodes.Count(code); }

std::string QuotedPointID(std::int32_t pointIndex) {
    PointRec& point = TheDrawing().Points[pointIndex];
    const Text trimmed(point.PointID.Trimmed());
    point.PointID = trimmed;
    return "\"" + ToWindows1252(trimmed) + "\"";
}

}  // namespace korvande
