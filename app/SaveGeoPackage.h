#pragma once

#include "core/Text.h"

namespace korvande {

class Screen;
struct ShownDrawing;

// Saves a drawing that is shown, all of it, as a GeoPackage of this name, in place of an earlier file. One outside RD
// is saved without a coordinate system when a person wants that. What fails is told.
void SaveGeoPackage(Screen& screen, const ShownDrawing& drawing, TextView name);

}  // namespace korvande
