#include "app/PictureName.h"

#include "picture/PictureFile.h"

namespace korvande {

Text PictureNameOf(TextView chosen, MayBeGeoPackage mayBeGeoPackage) {
    const auto hasEnding = [mayBeGeoPackage](TextView name) {
        const bool isGeoPackage = mayBeGeoPackage == MayBeGeoPackage::Yes && ToCapitals(name).ends_with(u".GPKG");
        return isGeoPackage || PictureFormatOf(name);
    };
    if (!hasEnding(chosen)) return Concat(chosen, u".svg");
    const TextView typed = chosen.substr(0, chosen.rfind(u'.'));
    return Text(hasEnding(typed) ? typed : chosen);
}

}  // namespace korvande
