#pragma once

#include "core/Text.h"

namespace korvande {

// The name that a picture is saved under, of the name that a file dialog gave: the ending that a person typed decides.
// Behind one that it does not take for an ending some systems' dialog adds that of the kind that is chosen there
// ("beeld.png.svg"), which is taken away again. SVG when there is none of a picture, or of a GeoPackage where the
// drawing may be saved as one.
enum class MayBeGeoPackage { No, Yes };
Text PictureNameOf(TextView chosen, MayBeGeoPackage mayBeGeoPackage);

}  // namespace korvande
