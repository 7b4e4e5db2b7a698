#include "cli/Compare.h"

#include <array>

#include "cli/Arguments.h"
#include "cli/Inputs.h"
#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "cli/Projects.h"
#include "picture/DifferenceSentence.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

Text Padded(Text text, std::size_t width) {
    if (text.size() < width) text.insert(0, width - text.size(), u' ');
    return text;
}

void PrintCounts(const Comparison& comparison) {
    constexpr std::size_t width = 12;
    PrintLine(u"                     gelijk   gewijzigd   ontbreekt  toegevoegd");
    for (std::size_t kind = 0; kind < comparedKinds; ++kind) {
        const ComparisonCount& count = comparison.counts[kind];
        if (count.equal + count.changed + count.missing + count.added == 0) continue;
        Text line(HeadingOf(static_cast<ComparedKind>(kind)));
        line.resize(15, u' ');
        for (const std::int64_t number : {count.equal, count.changed, count.missing, count.added}) {
            AppendTo(line, Padded(Concat(number), width));
        }
        PrintLine(line);
    }
}

void PrintDifference(const Difference& difference) {
    constexpr std::size_t width = 12;
    Text kind(NameOf(difference.kind));
    kind.resize(width, u' ');
    PrintLine(Concat(kind, SentenceOf(difference)));
}

// What a damaged file has lost may be a difference.
bool WasReadWhole(const Translation& translation) {
    return translation.problems.errors == 0 && !translation.problems.HasDamage();
}

}  // namespace

int CompareDrawings(const CompareOptions& options) {
    Project project;
    ReadingScreen screen;
    TakeReading(options.reading, project.options);
    if (!LoadControlTable(screen, project, options.project)) return status::failed;
    const std::array<Text, 2> names = {FromUtf8(options.first), FromUtf8(options.second)};
    Translation first(screen, project);
    Translation second(screen, project);
    for (Translation* translation : {&first, &second}) {
        const Text& name = names[translation == &first ? 0 : 1];
        const std::optional<InputDrawing> input = FindInput(screen, name);
        if (!input || !ReadInputDrawing(screen, *input, name, options.reading, *translation)) return status::failed;
        PrintLine(Concat(translation == &first ? u"Eerste: " : u"Tweede: ", name, u" (", NameOf(input->format), u")"));
        // Its bytes go with the input.
        translation->inputBytes.reset();
    }
    const Comparison comparison = Compare(first, second);
    PrintCounts(comparison);
    if (comparison.AreEqual()) {
        const bool isWhole = WasReadWhole(first) && WasReadWhole(second);
        PrintLine(isWhole ? u"Geen verschillen." : u"Geen verschillen in wat er te lezen is.");
        return status::done;
    }
    PrintLine(u"Verschillen:");
    for (const Difference& difference : comparison.differences) PrintDifference(difference);
    return status::withErrors;
}

}  // namespace korvande
