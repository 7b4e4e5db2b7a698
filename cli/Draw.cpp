#include "cli/Draw.h"

#include <array>

#include "cli/Arguments.h"
#include "cli/Inputs.h"
#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "cli/Projects.h"
#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "host/modFileHandling.h"
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

int PixelsOf(const std::string& value) {
    constexpr int usual = 1600;
    constexpr int least = 16;
    if (value.empty()) return usual;
    try {
        const std::int32_t pixels = StrictWholeNumber(value);
        if (pixels >= least && pixels <= mostPixels) return pixels;
    } catch (const RuntimeError&) {  // no number
    }
    throw UsageError{Concat(u"Ongeldige waarde bij --breedte: ", FromUtf8(value), u" (", least, u" tot en met ",
                            mostPixels, u" pixels)")};
}

void RefuseClash(const Text& output, const Text& input, TextView words) {
    if (!input.empty() && FileIdentity(output) == FileIdentity(input)) {
        throw UsageError{Concat(words, u" zijn hetzelfde bestand:\n", output)};
    }
}

// The frame that was asked for, or everything; nothing when there is nothing to draw.
std::optional<PictureFrame> FrameFor(const DisplayList& list, const std::optional<Rectangle>& asked, int pixels) {
    PictureFrame frame = WholeFrame(list);
    if (asked) {
        const auto lower = list.origin.From(asked->minX, asked->minY);
        const auto upper = list.origin.From(asked->maxX, asked->maxY);
        if (!lower || !upper) return {};
        frame.box = PictureBox{};
        frame.box.Add(*lower);
        frame.box.Add(*upper);
    }
    frame.pixels = pixels;
    const bool isFlat =
        frame.box.IsEmpty() || frame.box.minEast == frame.box.maxEast || frame.box.minNorth == frame.box.maxNorth;
    return isFlat ? std::nullopt : std::optional(frame);
}

void PrintPicture(const DisplayList& list, const Text& output) {
    std::int64_t unknown = 0;
    for (const PictureCode& code : list.codes) unknown += code.isKnown ? 0 : code.count;
    std::int64_t strings = 0;
    for (const PictureLine& line : list.lines) strings += list.steps[line.firstPlace] == PictureStep::Resume ? 0 : 1;
    PrintLine(Concat(output, u": ", list.points.size(), u" punten, ", strings, u" lijnstrings, ", list.texts.size(),
                     u" teksten, ", unknown, u" onbekende objecten"));
    if (list.notShown > 0) {
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
    const int pixels = PixelsOf(options.width);
    std::optional<Rectangle> asked;
    if (!options.frame.empty()) asked = RectangleOf(u"--kader", options.frame);
    RefuseClash(output, input, u"Invoer en uitvoer");
    RefuseClash(output, FromUtf8(options.project), u"Controletabel en uitvoer");

    Project project;
    ReadingScreen screen;
    TakeReading(options.reading, project.options);
    if (!LoadControlTable(screen, project, options.project)) return status::failed;
    Translation translation(screen, project);
    const std::optional<InputDrawing> found = FindInput(screen, input);
    if (!found || !ReadInputDrawing(screen, *found, input, options.reading, translation)) return status::failed;
    const DisplayList list = MakeDisplayList(translation);
    const std::optional<PictureFrame> frame = FrameFor(list, asked, pixels);
    if (!frame) {
        PrintErrorLine(Concat(input, u": er is niets te tekenen."));
        return status::failed;
    }
    if (format == PictureFormat::Png && HeightInPixels(*frame) > mostPixels) {
        throw UsageError{Concat(u"De afbeelding wordt te hoog: ", HeightInPixels(*frame),
                                u" pixels; kies een kleinere "
                                u"--breedte of een --kader.")};
    }
    try {
        WritePictureFile(translation.drawing, list, *frame, {FileNameOf(input), output});
    } catch (const RuntimeError& error) {
        PrintErrorLine(Concat(u"Kon bestand: '", output, u"' niet opslaan;\nFoutcode: ", error.Number(), u"\n",
                              error.Description()));
        return status::failed;
    }
    PrintPicture(list, output);
    const Problems& problems = translation.problems;
    return problems.errors > 0 || problems.HasDamage() ? status::withErrors : status::done;
}

}  // namespace korvande
