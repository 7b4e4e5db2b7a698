#include "geopackage/LayerRows.h"

#include <algorithm>

#include "geopackage/Schema.h"

namespace korvande {

namespace {

void PutText(Statement& statement, std::string_view text) {
    if (text.empty()) {
        statement.PutNothing();
    } else {
        statement.Put(text);
    }
}

std::string InsertInto(std::string_view layer, std::string_view ownColumns) {
    constexpr std::string_view common =
        "fid, geom, code, lki_code, omschrijving, bekend, p, i, b, datum, bron, inwinning, status, bestand, "
        "regel, ";
    std::string columns(common);
    columns += ownColumns;
    std::string marks = "?";
    for (std::ptrdiff_t i = std::count(columns.begin(), columns.end(), ','); i > 0; --i) marks += ", ?";
    return "INSERT INTO " + std::string(layer) + " (" + columns + ") VALUES (" + marks + ")";
}

}  // namespace

LayerRows::LayerRows(Database& database, std::string_view layer, std::string_view ownColumns)
    : rows(database, InsertInto(layer, ownColumns)),
      index(database, "INSERT INTO " + IndexOf(layer) + " VALUES (?, ?, ?, ?, ?)") {}

void LayerRows::Begin(const CommonValues& values, std::string_view geometry) {
    rows.Put(++count).PutBytes(geometry);
    PutText(rows, values.code);
    PutText(rows, values.lkiCode);
    PutText(rows, values.description);
    rows.Put(std::int64_t{values.isKnown ? 1 : 0});
    for (const std::int64_t quality : {values.p, values.i, values.b}) {
        if (values.hasQuality) {
            rows.Put(quality);
        } else {
            rows.PutNothing();
        }
    }
    for (const std::string_view text : {values.date, values.source, values.sourceKind, values.status}) {
        PutText(rows, text);
    }
    rows.Put(values.file);
    if (values.line > 0) {
        rows.Put(std::int64_t{values.line});
    } else {
        rows.PutNothing();
    }
}

void LayerRows::Own(std::string_view value) { PutText(rows, value); }

void LayerRows::Own(const std::optional<double>& value) {
    if (value) {
        rows.Put(*value);
    } else {
        rows.PutNothing();
    }
}

void LayerRows::Add(const Envelope& envelope) {
    rows.Run();
    index.Put(count).Put(envelope.minEast).Put(envelope.maxEast).Put(envelope.minNorth).Put(envelope.maxNorth).Run();
    extent.Add(envelope);
}

}  // namespace korvande
