#include "core/modKORVANDE.h"

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
    drawing.Sources.Reset();
    drawing.IdexSeparator = ',';
    drawing.IdexTerminator = ';';
    drawing.DrawingDate.clear();
}

}  // namespace korvande
