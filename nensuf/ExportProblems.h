#pragma once

#include <string_view>

#include "nensuf/ExportRecords.h"

// What an export tells of objects that were written, but not as they were read. Each of them is called once for an
// object, and costs next to nothing when all of it fits.
namespace korvande {

struct Drawing;
struct EdgeRec;
struct ExportCode;
struct PointRec;
struct TextRec;
struct ThreePointArc;
struct Translation;

void TellPointWritten(Translation& translation, const PointRec& point, const ExportCode& code);
void TellArcWritten(Translation& translation, const ThreePointArc& arc, const EdgeRec& edge, const ExportCode& code);
void TellSegmentWritten(Translation& translation, const EdgeRec& edge, std::string_view lineType,
                        const ExportCode& code);

// With the row's code, or none for a generated text.
void TellTextWritten(Translation& translation, const TextRec& text, const PointRec& anchor, const ExportCode* code);

}  // namespace korvande
