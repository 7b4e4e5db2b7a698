#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "picture/DisplayList.h"

namespace korvande {

class Database;

// How the layers of a GeoPackage look in QGIS, as the picture shows them: by code, what is unknown red, what is not
// written grey, and texts in their direction.
class Styles {
 public:
    // Takes the codes of a picture that were not met before.
    void Add(const DisplayList& list);

    // Writes a style for each layer, which it opens with.
    void Write(Database& database, std::string_view moment) const;

    // The style of a layer, by the letter of its table, as QGIS keeps it.
    std::string Qml(char16_t table) const;

 private:
    std::map<std::pair<char16_t, Text>, PictureCode> codes;  // the known ones
};

}  // namespace korvande
