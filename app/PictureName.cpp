#include "app/PictureName.h"

#include "picture/PictureFile.h"

namespace korvande {

Text PictureNameOf(TextView chosen) {
    if (!PictureFormatOf(chosen)) return Concat(chosen, u".svg");
    const TextView typed = chosen.substr(0, chosen.rfind(u'.'));
    return Text(PictureFormatOf(typed) ? typed : chosen);
}

}  // namespace korvande
