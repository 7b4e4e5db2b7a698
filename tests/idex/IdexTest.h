#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/TranslationState.h"

namespace korvande::testing {

// A fixed-width text in UTF-8, without the blanks behind it.
template <std::size_t N>
std::string Shown(const FixedText<N>& text) {
    return ToUtf8(text.TrimmedRight());
}

// An IDEX file with these tables in its database: a header, layers 0 "STNDRD" and 1 "TEKSTEN", then the tables.
std::string FileWith(std::string_view tables);

// The line of such a file on which the tables begin.
inline constexpr int firstLineOfTables = 8;

// Reads a file of these bytes, which are in memory only. What escapes is told as "error 9 in line 12", nothing as "".
std::string ReadInto(Translation& translation, std::string_view bytes);

// A test that reads IDEX files, with no drive D: for the diagnostic files.
class IdexTest : public TranslationTest {
 protected:
    std::string Read(std::string_view bytes) { return ReadInto(translation, bytes); }
    std::string ReadTables(std::string_view tables) { return Read(FileWith(tables)); }

    // "error 9 in line k" for the k-th line of the tables.
    static std::string ErrorAt(int number, int lineOfTables);

    // What was told at the end, in UTF-8: what did not come across, and what goes so.
    using Told = std::vector<std::string>;
    Told Lost() const { return LinesOf(ProblemList::Loss); }
    Told Wanted() const { return LinesOf(ProblemList::Wanted); }
    bool HasDamage() const { return translation.problems.HasDamage(); }

    const PointRec& Point(std::int32_t index) const { return drawing.Points[index]; }
    const LineRec& Line(std::int32_t number) const { return drawing.Lines[number]; }
    const EdgeRec& Edge(std::int32_t index) const { return drawing.Edges[index]; }
    const TextRec& TextAt(std::int32_t index) const { return drawing.Texts[index]; }

    Drawing& drawing = translation.drawing;

 private:
    Told LinesOf(ProblemList list) const {
        Told lines;
        for (const Text& line : translation.problems.Lines(list)) lines.push_back(ToUtf8(line));
        return lines;
    }

    EnvironmentValue noDriveD{"KORVANDE_DRIVE_D", std::nullopt};
};

}  // namespace korvande::testing
