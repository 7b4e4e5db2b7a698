#include "picture/PictureFile.h"

#include "core/LineWriter.h"
#include "host/FileReplacement.h"
#include "picture/PngPicture.h"
#include "picture/SvgCanvas.h"

namespace korvande {

std::optional<PictureFormat> PictureFormatOf(TextView name) {
    const Text capitals = ToCapitals(name);
    if (capitals.ends_with(u".SVG")) return PictureFormat::Svg;
    if (capitals.ends_with(u".PNG")) return PictureFormat::Png;
    return {};
}

PictureCounts WritePictureFile(const Drawing& drawing, const DisplayList& list, const PictureFrame& frame,
                               const PictureFileNames& names, const PictureChoice& choice) {
    FileReplacement replacement(names.file);
    LineWriter output;
    PictureCounts counts;
    replacement.Open(output);
    if (PictureFormatOf(names.file) == PictureFormat::Svg) {
        SvgCanvas canvas(output, list, frame, names.title);
        counts = DrawPicture(drawing, list, frame, canvas, choice);
        canvas.Finish();
    } else {
        output.Put(
            PngBytes(frame, [&](Canvas& canvas) { counts = DrawPicture(drawing, list, frame, canvas, choice); }));
    }
    output.Close();
    replacement.PutInPlace();
    return counts;
}

}  // namespace korvande
