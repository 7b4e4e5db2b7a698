#include "core/modKORVANDE.h"

#include <algorithm>

namespace korvande {

static_assert(sizeof(PointRec) == 56 && sizeof(LineRec) == 16 && sizeof(EdgeRec) == 20 && sizeof(TextRec) == 68);

void ResetDrawing(Drawing& drawing) {
    drawing.Points.Reset();
    drawing.Lines.Reset();
    drawing.Edges.Reset();
    drawing.Texts.Reset();
    drawing.PointIndex.Reset();
    drawing.PointKinds.Reset();
    drawing.LineKinds.Reset();
    drawing.LineTypes.Reset();
    drawing.TextCodes.Reset();
    drawing.IdexSeparator = ',';
    drawing.IdexTerminator = ';';
    drawing.DrawingDate.clear();
}

char* QuotedPointID(const PointRec& point, char* at) noexcept {
    const std::string_view name = point.PointIDBytes().Trimmed();
    *at++ = '"';
    at = std::copy(name.begin(), name.end(), at);
    *at++ = '"';
    return at;
}

}  // namespace korvande
