#include "core/modKORVANDE.h"

namespace korvande {

static_assert(sizeof(PointRec) == 232 && sizeof(LineRec) == 132 && sizeof(EdgeRec) == 40 && sizeof(TextRec) == 124);

void ResetDrawing(Drawing& drawing) {
    drawing.Points.Reset();
    drawing.Lines.Reset();
    drawing.Edges.Reset();
    drawing.Texts.Reset();
    drawing.PointIndex.Reset();
    drawing.IdexSeparator = ',';
    drawing.IdexTerminator = ';';
    drawing.DrawingDate.clear();
}

char* QuotedPointID(const PointRec& point, char* at) noexcept {
    const FixedText<9>& name = point.PointID();
    *at++ = '"';
    for (const char16_t character : name.Trimmed()) {
        *at++ = character < 0x80 ? static_cast<char>(character) : ToWindows1252(character);
    }
    *at++ = '"';
    return at;
}

}  // namespace korvande
