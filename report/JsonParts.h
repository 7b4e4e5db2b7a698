#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "core/Text.h"
#include "report/TranslationJson.h"

// The parts of which what a command came to is made, as JSON. Their members have Dutch names; kinds of problems have
// the names that the page on the log book has for them.
namespace korvande {

struct CodeTables;
struct Drawing;
struct Translation;
class ObjectAccount;
class Problems;

// Its members stay in the order in which they were added.
using Json = nlohmann::ordered_json;

Json JsonText(TextView text);

// null for an empty text, and for line 0.
Json TextOrNull(TextView text);
Json LineOrNull(std::int64_t line);

// On one line, in UTF-8. Bytes of a file name that are none become U+FFFD.
std::string OnOneLine(const Json& json);

// {"punten", "lijnstrings", "lijnsegmenten", "teksten"}.
Json CountsJson(const Drawing& drawing);

// Of each kind of object that occurs: {"object", "gelezen", "geschreven", "weggelaten", "redenen": [{"soort",
// "aantal"}]}.
Json AccountJson(const ObjectAccount& account);

// {"soort", "regel", "tekst"} each.
Json ErrorsJson(std::span<const Problem> errors);

// What is told at the end: {"soort", "lijst": "verlies" or "gewenst", "schade", "object", "aantal", "eersteRegel",
// "tekst"} each.
Json RemarksJson(const Problems& problems);

// By code, listed in the log book or not: {"tabel": "punt", "lijn" or "tekst", "code", "aantal"} each.
Json UnknownCodesJson(const Translation& translation);

// The rows of the code tables that were used: {"tabel", "liscad", "lki", "omschrijving", "aantal"} each.
Json UsedCodesJson(const CodeTables& codes);

}  // namespace korvande
