#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "translation/Mode.h"

namespace korvande {

class LineWriter;
struct Drawing;
struct ExportCode;
struct Options;
struct PointRec;
struct TextRec;
struct Translation;

// What a 03 record holds behind the LKI code, by what the object is: G marker (7 columns, blank for a text, which has
// no geometry of its own), source kind (1), "1   ", fieldwork date (10, or nothing) and source block (10).
struct CodeRecordTails {
    std::string point;
    std::string line;
    std::string arc;
    std::string text;
};

// What the records of all objects of one export have in common.
struct RecordStyle {
    const Options& options;
    Variant variant{};
    CodeRecordTails tails;
};

// A fieldwork date that is none is told in the log book.
RecordStyle PrepareRecordStyle(Translation& translation);

// Of a text this many characters are written.
inline constexpr std::size_t longestText = 40;

// The places that symbols and texts are written with beside their own: one metre from it, at its height and without a
// name.
PointRec ReferencePlaceOf(const Options& options, const PointRec& symbol);
PointRec InsertionPlaceOf(const TextRec& text, const PointRec& anchor);

// Write the records of an object with the code that it was found to have: of a point, with a reference position when it
// is a symbol; of a segment from one point to another, as an arc or straight; and of a text on its point.
void WritePoint(LineWriter& output, const RecordStyle& style, const PointRec& point, const ExportCode& code);

enum class SegmentShape { Straight, Arc };
void WriteSegment(LineWriter& output, const RecordStyle& style, const PointRec& start, const PointRec& end,
                  SegmentShape shape, const ExportCode& code);

// An arc of three points: its start, a place on it, which has no name, and its end.
void WriteArc(LineWriter& output, const RecordStyle& style, const PointRec& start, const PointRec& middle,
              const PointRec& end, const ExportCode& code);

void WriteText(LineWriter& output, const RecordStyle& style, const PointRec& anchor, const TextRec& text,
               const ExportCode& code);

// The same for a text that the reader made from point data, which holds its LKI code itself.
void WriteGeneratedText(LineWriter& output, const RecordStyle& style, const PointRec& anchor, const Drawing& drawing,
                        const TextRec& text);

}  // namespace korvande
