#pragma once

namespace korvande {

struct Drawing;

// "D:\DEBUG_LINES.TXT" and "D:\DEBUG_EDGES.TXT": the lines and edges of the drawing as read. Nothing is said when they
// cannot be written, for the drawing is complete.
void WriteDiagnosticFiles(const Drawing& drawing);

}  // namespace korvande
