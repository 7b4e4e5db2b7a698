#pragma once

#include <functional>
#include <optional>

#include "picture/DrawPicture.h"

namespace korvande {

enum class PictureFormat { Svg, Png };

// The format that a file's name ends in; nothing for any other.
std::optional<PictureFormat> PictureFormatOf(TextView name);

struct PictureFileNames {
    Text title;  // of the picture
    Text file;   // ending in .svg or .png
};

// Writes what a frame shows as a picture, beside its place, which it takes when it is whole, and tells what is in it. A
// run-time error when it cannot be written.
PictureCounts WritePictureFile(const Drawing& drawing, const DisplayList& list, const PictureFrame& frame,
                               const PictureFileNames& names, const PictureChoice& choice = {});

// The same of something else that is drawn in the places of the list.
void WritePictureFile(const DisplayList& list, const PictureFrame& frame, const PictureFileNames& names,
                      const std::function<void(Canvas&)>& draw);

}  // namespace korvande
