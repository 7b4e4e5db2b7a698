#include "cli/Compare.h"

#include <array>

#include "cli/Arguments.h"
#include "cli/Inputs.h"
#include "cli/JsonDocument.h"
#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "cli/Projects.h"
#include "picture/DifferenceSentence.h"
#include "report/ComparisonJson.h"
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
bool WasReadWhole(const Translation& translation) { return !translation.problems.HasFaults(); }

void Tell(const Comparison& comparison, bool areWhole) {
    PrintCounts(comparison);
    if (comparison.AreEqual()) {
        PrintLine(areWhole ? u"Geen verschillen." : u"Geen verschillen in wat er te lezen is.");
        return;
    }
    PrintLine(u"Verschillen:");
    for (const Difference& difference : comparison.differences) PrintDifference(difference);
}

void TellAsJson(const Comparison& comparison, JsonDocument& document) {
    document.Member("gelijk", comparison.AreEqual() ? "true" : "false");
    document.Member("tellingen", ComparisonCountsJson(comparison));
    document.BeginList("verschillen");
    std::size_t place = 0;
    for (const Difference& difference : comparison.differences) {
        document.Element(place++, DifferenceJson(difference));
    }
}

}  // namespace

int CompareDrawings(const CompareOptions& options) {
    Project project;
    ReadingScreen screen;
    TakeReading(options.reading, project.options);
    JsonDocument document(options.asJson, "vergelijk");
    ConsoleScreen console(false);
    if (!LoadControlTable(console, project, options.project)) return document.End(status::failed);
    const std::array<Text, 2> names = {FromUtf8(options.first), FromUtf8(options.second)};
    Translation first(screen, project);
    Translation second(screen, project);
    for (Translation* translation : {&first, &second}) {
        const bool isFirst = translation == &first;
        const Text& name = names[isFirst ? 0 : 1];
        const std::optional<InputDrawing> input = FindInput(screen, name);
        if (!input || !ReadInputDrawing(screen, *input, name, options.reading, *translation)) {
            return document.End(status::failed);
        }
        if (options.asJson) {
            document.Member(isFirst ? "eerste" : "tweede",
                            ComparedDrawingJson(name, input->format, WasReadWhole(*translation)));
        } else {
            PrintLine(Concat(isFirst ? u"Eerste: " : u"Tweede: ", name, u" (", NameOf(input->format), u")"));
        }
        // Its bytes go with the input.
        translation->inputBytes.reset();
    }
    const Comparison comparison = Compare(first, second);
    if (options.asJson) {
        TellAsJson(comparison, document);
    } else {
        Tell(comparison, WasReadWhole(first) && WasReadWhole(second));
    }
    return document.End(comparison.AreEqual() ? status::done : status::withErrors);
}

}  // namespace korvande
