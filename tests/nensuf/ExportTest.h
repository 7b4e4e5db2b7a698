#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "nensuf/modExportSUFNEN.h"
#include "tests/core/ErrorOf.h"
#include "tests/support/TranslationState.h"

namespace korvande::testing {

// Physical lines from a text that marks the end code of each with "|": "03M...|00" is padded to 62 columns of data.
std::string Records(std::string_view marked);

// Texts split at line feeds, without the empty one behind the last.
std::vector<std::string> SplitLines(std::string_view text);

// A drawing to be exported to NEN1878 in memory on 15 May 2024, with the owner's source BRON, no fieldwork date and,
// beside the unknown row, one code of each kind in the tables.
class ExportTest : public TranslationTest {
 protected:
    struct RowOf {
        TextView liscad;
        TextView lki;
        TextView type;
        TextView description = u"Omschrijving";
        std::int16_t p = 0;
        std::int16_t i = 0;
        std::int16_t b = 0;
    };
    struct PointOf {
        TextView code;
        double east = 100;
        double north = 200;
        double elevation = 0;
        double symDir = 0;
        TextView name = {};
        std::int32_t number = 0;  // 0: its index
    };
    struct SegmentOf {
        TextView type = u"STRAIGHT";
        std::int32_t line = 1;
        std::int32_t start = 1;  // indices of points
        std::int32_t end = 2;
    };
    struct TextOf {
        TextView text;
        TextView code = u"TEKST";
        float direction = 0;
        std::int16_t position = 1;
        std::int32_t anchor = 1;  // the point's number
    };

    ExportTest();

    // Makes any translation one as this test's own.
    static void Prepare(Translation& translation);

    static void AddRow(CodeTable& table, const RowOf& row);
    static void AddPoint(Drawing& drawing, const PointOf& point);
    static void AddLine(Drawing& drawing, TextView code);
    static void AddSegment(Drawing& drawing, const SegmentOf& segment);
    static void AddText(Drawing& drawing, const TextOf& text);

    void AddPoint(const PointOf& point) { AddPoint(translation.drawing, point); }
    void AddLine(TextView code) { AddLine(translation.drawing, code); }
    void AddSegment(const SegmentOf& segment) { AddSegment(translation.drawing, segment); }
    void AddText(const TextOf& text) { AddText(translation.drawing, text); }

    // Two points that nothing is written for, for lines and texts to refer to: 10.000, 20.000 and 11.000, 22.000.
    void AddBarePoints();

    // Exports and gives the whole file, or what stands between its header and its closing record; lines end in a line
    // feed.
    static std::string Export(Translation& translation);
    std::string Export() { return Export(translation); }
    std::string ExportObjects();

    // The same in the variant that is not the default one.
    std::string ExportObjectsAsSuf2();

    EnvironmentValue today{"SOURCE_DATE_EPOCH", "1715731200"};
};

}  // namespace korvande::testing
