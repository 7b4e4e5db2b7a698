#include "app/PreviewCodes.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>
#include <utility>

#include "core/Picture.h"
#include "picture/RdArea.h"

namespace korvande {

namespace {

std::size_t PlaceOfTable(char16_t table) noexcept { return TextView(u"PLT").find(table); }

template <class Object>
std::optional<std::uint32_t> NextPlace(const std::vector<Object>& objects, std::uint32_t code, std::size_t from) {
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const std::size_t place = (from + i) % objects.size();
        if (objects[place].code == code) return static_cast<std::uint32_t>(place);
    }
    return {};
}

void AddLine(Text& text, TextView line) {
    if (!text.empty()) AppendTo(text, u"\n");
    AppendTo(text, line);
}

}  // namespace

PreviewCodes::PreviewCodes(const DisplayList& itsList)
    : list(&itsList), rows(itsList.codes.size()), rowOfCode(rows.size()), isHidden(rows.size()) {
    std::iota(rows.begin(), rows.end(), 0);
    std::sort(rows.begin(), rows.end(), [this](std::uint32_t one, std::uint32_t other) {
        const PictureCode& first = list->codes[one];
        const PictureCode& second = list->codes[other];
        if (first.isKnown != second.isKnown) return !first.isKnown;
        if (first.table != second.table) return PlaceOfTable(first.table) < PlaceOfTable(second.table);
        return first.code < second.code;
    });
    for (std::size_t row = 0; row < rows.size(); ++row) rowOfCode[rows[row]] = row;
}

void PreviewCodes::ShowAll(bool isShown) { isHidden.assign(isHidden.size(), !isShown); }

void PreviewCodes::HideAlso(const PreviewCodes& others) {
    std::set<std::pair<char16_t, Text>> hidden;
    for (std::size_t row = 0; row < others.Count(); ++row) {
        if (!others.IsShown(row)) hidden.emplace(others.CodeAt(row).table, others.CodeAt(row).code);
    }
    for (std::size_t row = 0; row < Count(); ++row) {
        if (hidden.contains({CodeAt(row).table, CodeAt(row).code})) Show(row, false);
    }
}

std::optional<PictureRef> PreviewCodes::NextOf(std::size_t row, const std::optional<PictureRef>& after) const {
    const std::uint32_t code = rows[row];
    const char16_t table = list->codes[code].table;
    const PictureKind kind = table == u'L'   ? PictureKind::LineString
                             : table == u'T' ? PictureKind::TextObject
                                             : PictureKind::Point;
    const std::size_t from = after && after->kind == kind ? after->place + std::size_t{1} : 0;
    std::optional<std::uint32_t> place;
    if (kind == PictureKind::LineString) {
        place = NextPlace(list->lines, code, from);
    } else if (kind == PictureKind::TextObject) {
        place = NextPlace(list->texts, code, from);
    } else {
        place = NextPlace(list->points, code, from);
    }
    if (!place) return {};
    return PictureRef{kind, *place};
}

Text NameOf(const PictureCode& code) { return code.code.empty() ? Text(u"(zonder code)") : code.code; }

TextView KindOf(const PictureCode& code) noexcept {
    if (code.table == u'L') return u"Lijn";
    return code.table == u'T' ? u"Tekst" : u"Punt";
}

Text SummaryOf(const DisplayList& list) {
    const auto unknown = static_cast<std::int64_t>(
        std::count_if(list.codes.begin(), list.codes.end(), [](const PictureCode& code) { return !code.isKnown; }));
    const auto count = static_cast<std::int64_t>(list.codes.size());
    Text text = Concat(count, count == 1 ? u" code" : u" codes");
    if (unknown > 0) AppendTo(text, Concat(u", ", unknown, u" onbekend"));
    if (list.notShown > 0) {
        AppendTo(text, Concat(u"; ", list.notShown, list.notShown == 1 ? u" object" : u" objecten", u" niet getekend"));
    }
    if (const TextView remark = RdRemark(RdPlaceOf(list)); !remark.empty()) AppendTo(text, Concat(u"; ", remark));
    return text;
}

Text TextOf(const ObjectInfo& info) {
    constexpr TextView kinds[] = {u"Punt", u"Lijnstring", u"Tekst"};
    const auto kind = static_cast<std::size_t>(info.kind);
    Text text = Concat(kinds[kind], info.number.empty() ? u"" : u" ", info.number);
    if (info.kind == PictureKind::TextObject) AppendTo(text, Concat(u" \"", info.description, u"\""));
    AddLine(text, Concat(u"Code: ", info.code.empty() ? TextView(u"(geen)") : TextView(info.code),
                         info.isKnown ? u"" : u" (onbekend)"));
    if (!info.lkiCode.empty()) AddLine(text, Concat(u"LKI-code: ", info.lkiCode));
    if (info.kind != PictureKind::TextObject && !info.description.empty()) AddLine(text, info.description);
    if (info.isKnown && !info.isWritten) AddLine(text, u"Wordt niet geschreven");
    if (info.inputLine > 0) AddLine(text, Concat(u"Regel ", info.inputLine, u" van de invoer"));
    return text;
}

Text TextOfPlace(const DisplayList& list, Position millimetres) {
    const auto metres = [](std::int64_t origin, double offset) {
        return FromUtf8(FormatPicture((static_cast<double>(origin) + std::floor(offset + 0.5)) / 1000, "0.000"));
    };
    return Concat(u"X ", metres(list.origin.east, millimetres.east), u"   Y ",
                  metres(list.origin.north, millimetres.north));
}

}  // namespace korvande
