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
    PictureCounts counts;
    WritePictureFile(list, frame, names,
                     [&](Canvas& canvas) { counts = DrawPicture(drawing, list, frame, canvas, choice); });
    return counts;
}

void WritePictureFile(const DisplayList& list, const PictureFrame& frame, const PictureFileNames& names,
                      const std::function<void(Canvas&)>& draw) {
    FileReplacement replacement(names.file);
    LineWriter output;
    replacement.Open(output);
    if (PictureFormatOf(names.file) == PictureFormat::Svg) {
        SvgCanvas canvas(output, list, frame, names.title);
        draw(canvas);
        canvas.Finish();
    } else {
        output.Put(PngBytes(frame, draw));
    }
    output.Close();
    replacement.PutInPlace();
}

}  // namespace korvande
