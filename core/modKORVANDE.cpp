#include "core/modKORVANDE.h"

#include <algorithm>

namespace korvande {

static_assert(sizeof(PointRec) == 232 && sizeof(LineRec) == 128 && sizeof(EdgeRec) == 36 && sizeof(TextRec) == 120);

void UnknownCodeTally::Count(const FixedText<8>& code) {
    const auto [place, isNew] = places.try_emplace(code, entries.size());
    if (isNew) entries.push_back({code, 0});
    ++entries[place->second].Count;
}

void UnknownCodeTally::Reset() {
    entries.clear();
    places.clear();
}

void UnknownCodeTally::Sort() {
    // Codes occur once, so any sorting puts them in the same order.
    std::sort(entries.begin(), entries.end(),
              [](const UnknownCodeRec& a, const UnknownCodeRec& b) { return a.Code.View() < b.Code.View(); });
    for (std::size_t place = 0; place < entries.size(); ++place) places[entries[place].Code] = place;
}

Drawing& TheDrawing() {
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

char* QuotedPointID(std::int32_t pointIndex, char* at) noexcept {
    auto& name = TheDrawing().Points[pointIndex].PointID;
    if (name.characters.front() == u' ') name = name.Trimmed();
    *at++ = '"';
    for (const char16_t character : name.TrimmedRight()) {
        *at++ = character < 0x80 ? static_cast<char>(character) : ToWindows1252(character);
    }
    *at++ = '"';
    return at;
}

}  // namespace korvande
