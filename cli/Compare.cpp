#include "cli/Compare.h"

#include <array>

#include "cli/Arguments.h"
#include "cli/Inputs.h"
#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "cli/Projects.h"
#include "core/Picture.h"
#include "picture/Comparison.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

struct KindWords {
    TextView heading;
    TextView one;
};

const KindWords& WordsOf(std::size_t kind) {
    static constexpr std::array<KindWords, comparedKinds> words = {{{u"Punten", u"punt"},
                                                                    {u"Lijnsegmenten", u"lijnsegment"},
                                                                    {u"Bogen", u"boog"},
                                                                    {u"Cirkels", u"cirkel"},
                                                                    {u"Teksten", u"tekst"},
                                                                    {u"Lijnstrings", u"lijnstring"},
                                                                    {u"Hoekpunten", u"hoekpunt"}}};
    return words[kind];
}

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
        Text line(WordsOf(kind).heading);
        line.resize(15, u' ');
        for (const std::int64_t number : {count.equal, count.changed, count.missing, count.added}) {
            AppendTo(line, Padded(Concat(number), width));
        }
        PrintLine(line);
    }
}

Text PlaceText(Position place) {
    return Concat(FormatPicture(place.east, "0.000"), u" ", FormatPicture(place.north, "0.000"));
}

// "(regel 12 en 7)", of the first and the second drawing, as far as they have it.
Text LinesText(const Difference& difference) {
    if (difference.firstLine > 0 && difference.secondLine > 0) {
        return Concat(u" (regel ", difference.firstLine, u" en ", difference.secondLine, u")");
    }
    const std::int32_t line = difference.firstLine > 0 ? difference.firstLine : difference.secondLine;
    return line > 0 ? Concat(u" (regel ", line, u")") : Text();
}

void PrintDifference(const Difference& difference) {
    constexpr std::array<TextView, 3> kinds = {u"gewijzigd   ", u"ontbreekt   ", u"toegevoegd  "};
    Text line = Concat(kinds[static_cast<std::size_t>(difference.kind)],
                       WordsOf(static_cast<std::size_t>(difference.object)).one);
    if (difference.object != ComparedKind::Vertex) AppendTo(line, Concat(u" '", difference.code, u"'"));
    if (difference.object != ComparedKind::LineString) AppendTo(line, Concat(u" op ", PlaceText(difference.place)));
    if (difference.object == ComparedKind::Segment || difference.object == ComparedKind::Arc) {
        AppendTo(line, Concat(u" naar ", PlaceText(difference.end)));
    }
    AppendTo(line, LinesText(difference));
    if (!difference.what.empty()) AppendTo(line, Concat(u": ", difference.what));
    if (!difference.reason.empty()) AppendTo(line, Concat(u" [", difference.reason, u"]"));
    PrintLine(line);
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
        PrintLine(u"Geen verschillen.");
        return status::done;
    }
    PrintLine(u"Verschillen:");
    for (const Difference& difference : comparison.differences) PrintDifference(difference);
    return status::withErrors;
}

}  // namespace korvande
