#include "cli/Draw.h"

#include <algorithm>

#include "cli/Arguments.h"
#include "cli/Inputs.h"
#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "cli/Projects.h"
#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "host/modFileHandling.h"
#include "picture/MakeDisplayList.h"
#include "picture/PictureFile.h"
#include "picture/PixelView.h"
#include "picture/PngPicture.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

PictureFormat FormatOf(const Text& output) {
    if (const std::optional<PictureFormat> format = PictureFormatOf(output)) return *format;
    throw UsageError{Concat(u"De uitvoer moet op .svg of .png eindigen: ", output)};
}

constexpr int leastPixels = 16;
constexpr int usualPixels = 1600;

// The width asked for; nothing without one.
std::optional<int> PixelsOf(const std::string& value) {
    if (value.empty()) return {};
    try {
        const std::int32_t pixels = StrictWholeNumber(value);
        if (pixels >= leastPixels && pixels <= mostPixels) return pixels;
    } catch (const RuntimeError&) {  // no number
    }
    throw UsageError{Concat(u"Ongeldige waarde bij --breedte: ", FromUtf8(value), u" (", leastPixels, u" tot en met ",
                            mostPixels, u" pixels)")};
}

// Gives a frame the width asked for; without one the usual width, or a smaller one by which a high frame fits.
void TakePixels(const std::optional<int>& asked, PictureFrame& frame) {
    frame.pixels = asked.value_or(usualPixels);
    if (!asked && HeightInPixels(frame) > mostPixels) {
        frame.pixels =
            std::max(leastPixels, static_cast<int>(std::int64_t{usualPixels} * mostPixels / HeightInPixels(frame)));
    }
    if (HeightInPixels(frame) > mostPixels) {
        throw UsageError{Concat(u"De afbeelding wordt te hoog: ", HeightInPixels(frame),
                                u" pixels; kies een kleinere --breedte of een --kader.")};
    }
}

// The part of a drawing that was asked for.
PictureBox BoxFor(const PictureOrigin& origin, const Rectangle& asked) {
    const auto lower = origin.From(asked.minX, asked.minY);
    const auto upper = origin.From(asked.maxX, asked.maxY);
    if (!lower || !upper) throw UsageError{u"--kader reikt verder dan 2000 kilometer van de tekening."};
    PictureBox box;
    box.Add(*lower);
    box.Add(*upper);
    if (box.minEast == box.maxEast || box.minNorth == box.maxNorth) {
        throw UsageError{u"--kader heeft geen breedte of geen hoogte."};
    }
    return box;
}

void PrintPicture(const DisplayList& list, const PictureCounts& counts, const Text& output) {
    PrintLine(Concat(output, u": ", counts.points, u" punten, ", counts.lineStrings, u" lijnstrings, ", counts.texts,
                     u" teksten, ", counts.unknown, u" onbekende objecten"));
    if (list.notShown == 1) {
        PrintErrorLine(u"1 object is niet getekend: het verwijst naar niets of ligt te ver weg");
    } else if (list.notShown > 1) {
        PrintErrorLine(
            Concat(list.notShown, u" objecten zijn niet getekend: ze verwijzen naar niets of liggen te ver weg"));
    }
}

}  // namespace

int DrawDrawing(const DrawOptions& options) {
    const Text input = FromUtf8(options.input);
    const Text output = FromUtf8(options.output);
    const PictureFormat format = FormatOf(output);
    if (format == PictureFormat::Svg && !options.width.empty()) {
        throw UsageError{u"--breedte gaat samen met een .png; een .svg is in meters."};
    }
    const std::optional<int> pixels = PixelsOf(options.width);
    std::optional<Rectangle> asked;
    if (!options.frame.empty()) asked = RectangleOf(u"--kader", options.frame);
    RefuseClash(output, input, u"Invoer en uitvoer");
    RefuseClash(output, FromUtf8(options.project), u"Controletabel en uitvoer");

    Project project;
    ReadingScreen screen;
    TakeReading(options.reading, project.options);
    ConsoleScreen console(false);
    if (!LoadControlTable(console, project, options.project)) return status::failed;
    Translation translation(screen, project);
    const std::optional<InputDrawing> found = FindInput(screen, input);
    if (!found || !ReadInputDrawing(screen, *found, input, options.reading, translation)) return status::failed;
    const DisplayList list = MakeDisplayList(translation);
    PictureFrame frame = WholeFrame(list);
    if (frame.box.IsEmpty()) {
        PrintErrorLine(Concat(input, u": er is niets te tekenen."));
        return status::failed;
    }
    if (asked) frame.box = BoxFor(list.origin, *asked);
    frame.pixels = usualPixels;
    if (format == PictureFormat::Png) TakePixels(pixels, frame);
    PictureCounts counts;
    try {
        counts = WritePictureFile(translation.drawing, list, frame, {FileNameOf(input), output});
    } catch (const RuntimeError& error) {
        PrintErrorLine(Concat(u"Kon bestand: '", output, u"' niet opslaan;\nFoutcode: ", error.Number(), u"\n",
                              error.Description()));
        return status::failed;
    }
    PrintPicture(list, counts, output);
    return translation.problems.HasFaults() ? status::withErrors : status::done;
}

}  // namespace korvande
