#include "report/CheckJson.h"

#include <algorithm>

#include "picture/RdArea.h"
#include "report/JsonParts.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

Json FindingsJson(std::span<const CheckFinding> findings) {
    Json list = Json::array();
    for (const CheckFinding& finding : findings) {
        list.push_back(
            {{"soort", finding.kind}, {"regel", LineOrNull(finding.line)}, {"tekst", JsonText(finding.text)}});
    }
    return list;
}

Json ExtentJson(const std::optional<DrawingExtent>& extent) {
    if (!extent) return {};
    return {{"minX", extent->minX}, {"minY", extent->minY}, {"maxX", extent->maxX}, {"maxY", extent->maxY}};
}

}  // namespace

CheckFinding FindingOf(const Problem& problem) {
    return {.kind = NameOf(problem.kind), .line = problem.line, .text = Sentence(problem)};
}

CheckFinding FindingOfQuestion(TextView question, std::int64_t line) {
    CheckFinding finding{.kind = "Question", .line = line, .text = Text(question)};
    std::replace(finding.text.begin(), finding.text.end(), u'\n', u' ');
    return finding;
}

std::string CheckJson(const Translation& translation, TextView name, Format format, std::int64_t status,
                      std::span<const CheckFinding> findings) {
    const std::optional<DrawingExtent> extent = ExtentOf(translation.drawing);
    const TextView remark = extent ? RdRemark(RdPlaceOf(*extent)) : TextView();
    return OnOneLine({{"invoer", JsonText(name)},
                      {"formaat", JsonText(NameOf(format))},
                      {"status", status},
                      {"problemen", FindingsJson(findings)},
                      {"meldingen", RemarksJson(translation.problems)},
                      {"balans", AccountJson(translation.account)},
                      {"aantallen", CountsJson(translation.drawing)},
                      {"omvang", ExtentJson(extent)},
                      {"ligging", TextOrNull(remark)},
                      {"codes", UsedCodesJson(translation.codes)},
                      {"onbekendeCodes", UnknownCodesJson(translation)}});
}

std::string FailedCheckJson(TextView name, std::int64_t status) {
    return OnOneLine({{"invoer", JsonText(name)}, {"formaat", nullptr}, {"status", status}});
}

}  // namespace korvande
