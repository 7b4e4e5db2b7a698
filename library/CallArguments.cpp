#include "library/CallArguments.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <initializer_list>
#include <string_view>

#include "core/CharacterSet.h"
#include "project/Options.h"

namespace korvande {

namespace {

// The part of a caller's struct that the library knows: the caller may have been built with a later interface, and asks
// for nothing unknown as long as the rest is zero. No interface has had a smaller one.
template <class Struct>
Struct KnownPart(const Struct* given, TextView what) {
    constexpr std::size_t largest = 4096;  // anything larger is a size that was never set
    Struct known{};
    if (given == nullptr) return known;
    if (given->size < sizeof(Struct) || given->size > largest) {
        throw WrongUse{Concat(u"De grootte (size) van ", what, u" is ongeldig: ", given->size)};
    }
    const void* const start = given;
    const std::string_view bytes(static_cast<const char*>(start), given->size);
    if (bytes.substr(sizeof(Struct)).find_first_not_of('\0') != std::string_view::npos) {
        throw WrongUse{Concat(u"In ", what, u" staat iets wat deze versie van de bibliotheek niet kent.")};
    }
    std::memcpy(&known, start, sizeof(Struct));
    return known;
}

void RequireWithin(std::string_view member, std::int32_t value, std::int32_t last) {
    if (value >= 0 && value <= last) return;
    throw WrongUse{Concat(u"Ongeldige waarde van ", member, u": ", value, u" (0 tot en met ", last, u")")};
}

void RequireRectangle(const korvande_options& options) {
    const bool isFinite = std::isfinite(options.min_x) && std::isfinite(options.min_y) &&
                          std::isfinite(options.max_x) && std::isfinite(options.max_y);
    if (isFinite && options.min_x <= options.max_x && options.min_y <= options.max_y) return;
    throw WrongUse{u"De selectie is geen rechthoek in meters."};
}

// The shortest decimal form that gives the same number back.
Text NumberText(double number) {
    std::array<char, 32> digits{};
    const std::to_chars_result end = std::to_chars(digits.begin(), digits.end(), number);
    return FromWindows1252({digits.data(), static_cast<std::size_t>(end.ptr - digits.data())});
}

}  // namespace

korvande_options KnownOptions(const korvande_options* given) {
    const korvande_options options = KnownPart(given, u"korvande_options");
    RequireWithin("character_set", options.character_set, KORVANDE_CHARACTERS_CP850);
    RequireWithin("unknown_objects", options.unknown_objects, KORVANDE_UNKNOWN_LEFT_OUT);
    RequireWithin("source_kind", options.source_kind, static_cast<std::int32_t>(sourceKinds.size()) - 1);
    RequireWithin("without_zeroes", options.without_zeroes, 1);
    RequireWithin("from_instrument", options.from_instrument, 1);
    RequireWithin("three_point_arcs", options.three_point_arcs, 1);
    RequireWithin("without_log_book", options.without_log_book, 1);
    RequireWithin("has_selection", options.has_selection, 1);
    if (options.has_selection != 0) RequireRectangle(options);
    return options;
}

korvande_callbacks KnownCallbacks(const korvande_callbacks* given) { return KnownPart(given, u"korvande_callbacks"); }

Mode ModeOf(const char* name) {
    const std::string_view given = name == nullptr ? std::string_view() : name;
    for (const ModeNames& mode : modes) {
        if (mode.shortName == given) return mode.mode;
    }
    throw WrongUse{
        Concat(u"Onbekende modus: '", FromUtf8(given), u"' (idex-nen1878, idex-suf2, nen1878-idex of suf2-idex)")};
}

Text FileName(const char* name, TextView role) {
    if (name == nullptr || *name == '\0') throw WrongUse{Concat(u"Er ontbreekt een naam: ", role)};
    return FromUtf8(name);
}

void TakeOptions(const korvande_options& given, Options& options) {
    options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(given.character_set)];
    if (given.unknown_objects != KORVANDE_UNKNOWN_BY_TABLE) {
        options.chkExportUnknowns = options.chkImportUnknowns = given.unknown_objects == KORVANDE_UNKNOWN_TAKEN;
    }
    options.lstSource = given.source_kind;
    options.chkWithoutZeroes = given.without_zeroes != 0;
    if (given.three_point_arcs != 0) options.chkThreePointArcs = true;
    if (given.has_selection == 0) return;
    options.chkSelectXY = true;
    options.txtMinX = NumberText(given.min_x);
    options.txtMinY = NumberText(given.min_y);
    options.txtMaxX = NumberText(given.max_x);
    options.txtMaxY = NumberText(given.max_y);
}

}  // namespace korvande
