#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "geopackage/GeometryBytes.h"
#include "geopackage/LayerRows.h"
#include "picture/DisplayList.h"

namespace korvande {

struct Translation;

// What was written.
struct RowCounts {
    std::int64_t points = 0;
    std::int64_t lineStrings = 0;
    std::int64_t texts = 0;
    std::int64_t unknown = 0;  // of these, with a code that is unknown

    void Add(const RowCounts& other) noexcept;
};

struct RowChoice {
    std::int32_t referenceSystem = 0;
    bool isStraight = false;  // arcs are made of straight lines
    bool namesOwner = false;  // the control table tells whose the IDEX drawings are
};

// Adds the objects of drawings to the layers, one drawing after the other.
class DrawingRows {
 public:
    DrawingRows(Database& database, const RowChoice& itsChoice);

    // Adds what is in a picture of the drawing of a translation. The name of its file is UTF-8. Calls `onRows` every
    // thousand objects. What an IDEX drawing does not tell is that of the owner, when the control table names one.
    RowCounts Add(const Translation& translation, const DisplayList& list, const std::string& file,
                  const std::function<void()>& onRows);

    const LayerRows& Points() const noexcept { return points; }
    const LayerRows& Lines() const noexcept { return lines; }
    const LayerRows& Texts() const noexcept { return texts; }

    // Whether arcs were written, and lines of both arcs and straight parts.
    bool HasArcs() const noexcept { return hasArcs; }
    bool HasCompounds() const noexcept { return hasCompounds; }

 private:
    // What the objects of a code share: UTF-8.
    struct CodeValues {
        std::string code;
        std::string lkiCode;
        std::string description;
        CommonValues common;  // with those
    };
    // What the objects of a source share: UTF-8.
    struct SourceValues {
        std::string date;
        std::string name;
        std::string kind;
        std::string status;
    };
    struct Run;  // over one drawing

    void TakeCodes(const Translation& translation, const DisplayList& list, const std::string& file);
    void TakeSources(const Translation& translation);
    CommonValues ValuesOf(Run& run, std::uint32_t code, std::int32_t line, std::string_view ownDescription);
    void AddPoint(Run& run, const PicturePoint& point);
    void AddLine(Run& run, std::int32_t lineNo, std::uint32_t code, const LineShape& shape);
    void AddText(Run& run, const PictureText& text);
    void AddLines(Run& run);

    RowChoice choice;
    GeometryBytes geometry;
    LayerRows points;
    LayerRows lines;
    LayerRows texts;
    std::vector<CodeValues> codes;
    std::vector<SourceValues> sources;  // by their numbers in the drawing
    bool hasArcs = false;
    bool hasCompounds = false;
};

// The day of a drawing, yyyy-mm-dd; empty when it tells none.
std::string DateOf(const Translation& translation);

}  // namespace korvande
