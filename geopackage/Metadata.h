#pragma once

#include <string>

#include "geopackage/DrawingRows.h"

namespace korvande {

class Database;
struct Translation;

// What the file of a drawing says of itself, in the terms of Dublin Core: its project and day, and how many objects
// were taken; of an IDEX drawing also its owner, when the control table names one. XML in UTF-8.
std::string MetadataOf(const Translation& translation, const RowCounts& counts, bool namesOwner);

// Adds it to a GeoPackage, to be read as metadata of all of it.
void AddMetadataOf(Database& database, const std::string& metadata, const std::string& moment);

// The name of a file as it stands in a GeoPackage: UTF-8, with "?" for what is none.
std::string FileNameIn(TextView name);

}  // namespace korvande
