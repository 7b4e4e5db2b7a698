#include "report/ComparisonJson.h"

#include "picture/DifferenceSentence.h"
#include "report/JsonParts.h"

namespace korvande {

namespace {

bool HasEnd(const Difference& difference) noexcept {
    return difference.object == ComparedKind::Segment || difference.object == ComparedKind::Arc;
}

Json PlaceJson(const Position& place) { return {{"x", place.east}, {"y", place.north}}; }

}  // namespace

std::string ComparedDrawingJson(TextView name, Format format, bool isWhole) {
    return OnOneLine({{"bestand", JsonText(name)}, {"formaat", JsonText(NameOf(format))}, {"heel", isWhole}});
}

std::string ComparisonCountsJson(const Comparison& comparison) {
    Json counts = Json::array();
    for (std::size_t kind = 0; kind < comparedKinds; ++kind) {
        const ComparisonCount& count = comparison.counts[kind];
        if (count.equal + count.changed + count.missing + count.added == 0) continue;
        counts.push_back({{"object", JsonText(NameOf(static_cast<ComparedKind>(kind)))},
                          {"gelijk", count.equal},
                          {"gewijzigd", count.changed},
                          {"ontbreekt", count.missing},
                          {"toegevoegd", count.added}});
    }
    return OnOneLine(counts);
}

std::string DifferenceJson(const Difference& difference) {
    const bool hasEnd = difference.hasPlace && HasEnd(difference);
    return OnOneLine({{"object", JsonText(NameOf(difference.object))},
                      {"soort", JsonText(NameOf(difference.kind))},
                      {"code", JsonText(difference.code)},
                      {"plaats", difference.hasPlace ? PlaceJson(difference.place) : Json()},
                      {"einde", hasEnd ? PlaceJson(difference.end) : Json()},
                      {"opgedeeld", difference.isSplit},
                      {"eersteRegel", LineOrNull(difference.firstLine)},
                      {"tweedeRegel", LineOrNull(difference.secondLine)},
                      {"wat", JsonText(difference.what)},
                      {"reden", TextOrNull(difference.reason)},
                      {"tekst", JsonText(SentenceOf(difference))}});
}

}  // namespace korvande
