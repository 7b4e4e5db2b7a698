#include "picture/DifferenceSentence.h"

#include "core/Picture.h"

namespace korvande {

namespace {

struct KindWords {
    TextView heading;
    TextView one;
};

const KindWords& WordsOf(ComparedKind kind) noexcept {
    static constexpr std::array<KindWords, comparedKinds> words = {{{u"Punten", u"punt"},
                                                                    {u"Lijnsegmenten", u"lijnsegment"},
                                                                    {u"Bogen", u"boog"},
                                                                    {u"Cirkels", u"cirkel"},
                                                                    {u"Teksten", u"tekst"},
                                                                    {u"Lijnstrings", u"lijnstring"},
                                                                    {u"Hoekpunten", u"hoekpunt"}}};
    return words[static_cast<std::size_t>(kind)];
}

// "(regel 12 en 7)", of the first and the second drawing, as far as they have it.
Text LinesText(const Difference& difference) {
    if (difference.firstLine > 0 && difference.secondLine > 0) {
        return Concat(u" (regel ", difference.firstLine, u" en ", difference.secondLine, u")");
    }
    const std::int32_t line = difference.firstLine > 0 ? difference.firstLine : difference.secondLine;
    return line > 0 ? Concat(u" (regel ", line, u")") : Text();
}

}  // namespace

TextView HeadingOf(ComparedKind kind) noexcept { return WordsOf(kind).heading; }

TextView NameOf(ComparedKind kind) noexcept { return WordsOf(kind).one; }

TextView NameOf(DifferenceKind kind) noexcept {
    constexpr std::array<TextView, 3> kinds = {u"gewijzigd", u"ontbreekt", u"toegevoegd"};
    return kinds[static_cast<std::size_t>(kind)];
}

Text TextOfMetres(Position place) {
    return Concat(FormatPicture(place.east, "0.000"), u" ", FormatPicture(place.north, "0.000"));
}

Text SentenceOf(const Difference& difference) {
    Text line(NameOf(difference.object));
    if (difference.object != ComparedKind::Vertex) AppendTo(line, Concat(u" '", difference.code, u"'"));
    const bool hasPlace = difference.hasPlace && difference.object != ComparedKind::LineString;
    if (hasPlace) AppendTo(line, Concat(u" op ", TextOfMetres(difference.place)));
    if (hasPlace && (difference.object == ComparedKind::Segment || difference.object == ComparedKind::Arc)) {
        AppendTo(line, Concat(u" naar ", TextOfMetres(difference.end)));
    }
    AppendTo(line, LinesText(difference));
    if (!difference.what.empty()) AppendTo(line, Concat(u": ", difference.what));
    if (!difference.reason.empty()) AppendTo(line, Concat(u" [", difference.reason, u"]"));
    return line;
}

}  // namespace korvande
