#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "nensuf/modImportSUFNEN.h"
#include "tests/support/TranslationState.h"

namespace korvande::testing {

// A line of 64 columns: type and payload (up to 62 columns), and the end code.
std::string Record(std::string_view typeAndPayload, std::string_view endCode = "01");

// A group: the payload over as many records as it needs, "00" behind all but the last.
std::string Group(std::string_view type, std::string_view payload);

// Fields of ten columns; coordinates are whole numbers, right-aligned.
std::string Field(char key, std::string_view value);
std::string Field(char key, std::int64_t value);
std::string At(std::int64_t x, std::int64_t y);
std::string At(std::int64_t x, std::int64_t y, std::int64_t z);
std::string N(std::string_view number);

// The groups of an object: a 03 group with code and kind of geometry, and the 04 group of its coordinates.
std::string Head(std::string_view code, std::string_view kind);
std::string Geometry(std::string_view fields);
std::string Point(std::string_view code, std::string_view fields);
std::string Line(std::string_view code, std::string_view fields);
std::string Arc(std::string_view code, std::string_view fields);

// A 05 group: placement (the F field), code (the K field) and other fields.
std::string Placement(std::string_view placement, std::string_view code, std::string_view fields = {});
std::string Symbol(std::string_view code, std::string_view fields, std::string_view type = "");

// A 06 record, and a text with its coordinates in the 05 group.
std::string TextRecord(std::string_view text);
std::string TextGroups(std::string_view code, std::string_view fields, std::string_view text);

// The two header lines of each variant, whose coordinates are millimetres.
std::string NenHeader();
std::string Suf2Header();

// A 02 line from its columns 3 to 12 and the five header values.
std::string SecondLine(std::string_view columns3To12, std::string_view originX = "0", std::string_view originY = "0",
                       std::string_view factor = "1", std::string_view originZ = "0", std::string_view factorZ = "1");
std::string FirstLine(std::string_view columns3To62 = "0NEN1878    V202405202405       0101S05");

// What a drawing holds, a line for each element: number|code|east north height|direction; code|flags (when not 0);
// line: start-end type; code|anchor point|anchor position|direction|text.
std::string PointsOf(const Drawing& drawing);
std::string LinesOf(const Drawing& drawing);
std::string EdgesOf(const Drawing& drawing);
std::string TextsOf(const Drawing& drawing);

// Imports drawings from memory and tells what they brought. The tables hold, beside their unknown rows, a tree and a
// lamp, two kinds of line, and two kinds of text. After every import the account must balance and the drawing be sound.
class ImportTest : public TranslationTest {
 protected:
    ImportTest();

    // Makes any translation one as this test's own.
    static void Prepare(Translation& translation);

    static void AddRow(CodeTable& table, TextView liscad, TextView lki, TextView description);

    // Imports what the translation has for input; these bytes; or a header, these groups and a closing record.
    void ImportInput();
    void ImportBytes(std::string_view bytes);
    void Import(std::string_view groups, std::string_view header = NenHeader());

    std::string Points() const { return PointsOf(translation.drawing); }
    std::string Lines() const { return LinesOf(translation.drawing); }
    std::string Edges() const { return EdgesOf(translation.drawing); }
    std::string Texts() const { return TextsOf(translation.drawing); }
    std::string PointDescription(std::int32_t point) const;
    std::string LineDescription(std::int32_t line) const;

    // Expects this account of a kind: read, kept, and left out for this reason alone.
    void ExpectAccount(ObjectKind kind, int read, int kept);
    void ExpectLeft(ObjectKind kind, LeftOut reason, int count = 1);

    EnvironmentValue today{"SOURCE_DATE_EPOCH", "1715731200"};  // 15 May 2024
};

}  // namespace korvande::testing
