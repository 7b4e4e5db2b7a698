#include "report/CheckJson.h"

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
