#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "geopackage/Database.h"
#include "geopackage/LineShape.h"

namespace korvande {

// What an object of any layer has: UTF-8.
struct CommonValues {
    std::string_view code;
    std::string_view lkiCode;
    std::string_view description;
    std::string_view date;        // yyyy-mm-dd
    std::string_view source;      // who made it
    std::string_view sourceKind;  // how it was measured
    std::string_view status;
    std::string_view file;
    bool isKnown = false;
    bool hasQuality = false;  // the next three
    std::int64_t p = 0;
    std::int64_t i = 0;
    std::int64_t b = 0;
    std::int32_t line = 0;  // of the file; 0: it was made
};

// Adds rows to one layer, and each to the layer's index. An empty text is no text.
class LayerRows {
 public:
    // The layer's columns behind those that all have.
    LayerRows(Database& database, std::string_view layer, std::string_view ownColumns);

    // Begins a row; Own takes the values of the columns of the layer's own, and Add, with all of them, what the
    // geometry covers.
    void Begin(const CommonValues& values, std::string_view geometry);
    void Own(std::string_view value);
    void Own(std::int64_t value) { rows.Put(value); }
    void Own(const std::optional<double>& value);
    void OwnNothing() { rows.PutNothing(); }
    void Add(const Envelope& envelope);

    const Envelope& Extent() const noexcept { return extent; }

 private:
    Statement rows;
    Statement index;
    Envelope extent;
    std::int64_t count = 0;
};

}  // namespace korvande
