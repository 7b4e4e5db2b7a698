#include <cairo.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>

#include "host/FileReplacement.h"
#include "picture/PixelView.h"
#include "picture/PngPicture.h"
#include "tests/picture/PictureTest.h"
#include "tests/run/SampleRun.h"

namespace korvande::testing {

namespace {

struct Destroy {
    void operator()(cairo_surface_t* surface) const noexcept { cairo_surface_destroy(surface); }
};

// The pixels of a PNG.
class Pixels {
 public:
    explicit Pixels(const std::string& bytes) {
        Rest rest{bytes};
        surface.reset(cairo_image_surface_create_from_png_stream(Next, &rest));
        EXPECT_EQ(cairo_surface_status(surface.get()), CAIRO_STATUS_SUCCESS);
    }

    int Width() const { return cairo_image_surface_get_width(surface.get()); }
    int Height() const { return cairo_image_surface_get_height(surface.get()); }

    // Red, green and blue; white outside.
    Colour At(int x, int y) const {
        if (x < 0 || y < 0 || x >= Width() || y >= Height()) return 0xFFFFFF;
        const unsigned char* const row = cairo_image_surface_get_data(surface.get()) +
                                         static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface.get());
        return reinterpret_cast<const std::uint32_t*>(row)[x] & 0xFFFFFF;
    }

 private:
    struct Rest {
        std::string_view bytes;
    };
    static cairo_status_t Next(void* closure, unsigned char* data, unsigned int length) {
        Rest& rest = *static_cast<Rest*>(closure);
        if (rest.bytes.size() < length) return CAIRO_STATUS_READ_ERROR;
        rest.bytes.copy(reinterpret_cast<char*>(data), length);
        rest.bytes.remove_prefix(length);
        return CAIRO_STATUS_SUCCESS;
    }

    std::unique_ptr<cairo_surface_t, Destroy> surface;
};

class PngDrawings : public PictureTest {
 protected:
    std::string Drawn(const DisplayList& list, const PictureFrame& frame) const {
        return PngBytes(frame, [&](Canvas& canvas) { DrawPicture(last->drawing, list, frame, canvas); });
    }

    // The colour of the pixel on which a place lies.
    static Colour ColourAt(const Pixels& pixels, const DisplayList& list, const PictureFrame& frame, double east,
                           double north) {
        const auto place = list.origin.From(east, north);
        const PixelView view(frame);
        return pixels.At(static_cast<int>(view.X(place->east)), static_cast<int>(view.Y(place->north)));
    }
};

TEST_F(PngDrawings, LinesArcsAndPointsLieWhereTheDrawingHasThem) {
    const DisplayList list = Picture({.points = "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",10,0,\"HULP\",0,\"\"\n"
                                                "3,\"\",10,5,\"HULP\",0,\"\"\n4,\"\",15,5,\"HULP\",0,\"\"\n"
                                                "5,\"\",2,8,\"VREEMD\",0,\"\"\n6,\"\",10,10,\"MV\",0,\"\"\n",
                                      .lines = "1,\"MUUR\",0\n2,\"GEVEL\",10000\n",
                                      .edges = "1,1,2,STRAIGHT\n2,2,3,ARC_CENT\n2,3,4,ARC_CENT\n"});
    PictureFrame frame = WholeFrame(list);
    frame.pixels = 4000;  // a line is 12 pixels wide
    const Pixels pixels(Drawn(list, frame));
    const auto colourAt = [&](double east, double north) { return ColourAt(pixels, list, frame, east, north); };
    const auto styleOf = [&](TextView code) {
        for (const PictureCode& one : list.codes) {
            if (one.code == code) return StyleOf(one, frame).colour;
        }
        return Colour{0};
    };
    EXPECT_EQ(colourAt(5, 0), styleOf(u"MUUR"));
    EXPECT_EQ(colourAt(5, 0.2), 0xFFFFFFU);
    // Anticlockwise from south to east about (10, 5), and nowhere else on that circle.
    const double diagonal = 5 * std::sqrt(0.5);
    EXPECT_EQ(colourAt(10 + diagonal, 5 - diagonal), styleOf(u"GEVEL"));
    EXPECT_EQ(colourAt(10 - diagonal, 5 - diagonal), 0xFFFFFFU);
    EXPECT_EQ(colourAt(10 - diagonal, 5 + diagonal), 0xFFFFFFU);
    EXPECT_EQ(colourAt(2, 8), 0xD00000U);
    EXPECT_EQ(colourAt(2.25, 8), 0xD00000U);
    EXPECT_EQ(colourAt(10, 10), styleOf(u"MV"));
    EXPECT_EQ(colourAt(10.25, 10), 0xFFFFFFU);
}

TEST_F(PngDrawings, ATextIsWrittenAlongItsDirection) {
    const DisplayList list = Picture(
        {.points = "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",10,10,\"MV\",0,\"\"\n", .texts = "1,1,100,\"HHHHHH\"\n"});
    PictureFrame frame = WholeFrame(list);
    frame.pixels = 1400;
    const Pixels pixels(Drawn(list, frame));
    const auto darkIn = [&](double east, double north, double width, double height) {
        int dark = 0;
        for (double e = east; e < east + width; e += 0.02) {
            for (double n = north; n < north + height; n += 0.02) {
                if (ColourAt(pixels, list, frame, e, n) == 0x202020) ++dark;
            }
        }
        return dark;
    };
    // From its bottom left at the place it goes north, its capitals to the west.
    EXPECT_GT(darkIn(-0.7, 0.2, 0.6, 3), 100);
    EXPECT_EQ(darkIn(0.1, -1, 4, 5), 0);
    EXPECT_EQ(darkIn(-1.5, -1.5, 1.5, 1.4), 0);
}

// A picture of ten metres, in which a metre is 160 pixels, of lines of hundreds of kilometres.
TEST_F(PngDrawings, LinesThatGoOnFarBeyondThePictureLieInItWhereTheyShould) {
    const Rows rows{.points =
                        "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",300000,300000,\"HULP\",0,\"\"\n"
                        "3,\"\",150005,150000,\"HULP\",0,\"\"\n4,\"\",450005,150000,\"HULP\",0,\"\"\n"
                        "5,\"\",750005,150000,\"HULP\",0,\"\"\n6,\"\",150000,150002,\"HULP\",0,\"\"\n"
                        "7,\"\",450000,150002,\"HULP\",0,\"\"\n8,\"\",750000,150002,\"HULP\",0,\"\"\n",
                    .lines = "1,\"MUUR\",0\n2,\"GEVEL\",0\n3,\"ANDERS\",0\n",
                    .edges = "1,1,2,STRAIGHT\n2,3,4,ARC_CENT\n2,4,5,ARC_CENT\n3,6,7,CURVE_3RD\n3,7,8,CURVE_3RD\n"};
    const DisplayList list = Picture(rows);
    PictureFrame frame;
    frame.box.Add(*list.origin.From(150000, 150000));
    frame.box.Add(*list.origin.From(150010, 150010));
    frame.pixels = 1600;
    const Pixels pixels(Drawn(list, frame));
    const auto isDrawn = [&](double east, double north) {
        return ColourAt(pixels, list, frame, east, north) != 0xFFFFFF;
    };
    for (const double way : {1.0, 3.0, 8.0}) {
        EXPECT_TRUE(isDrawn(150000 + way, 150000 + way)) << way;
        EXPECT_FALSE(isDrawn(150000 + way, 150000 + way + 0.3)) << way;
        // From west of its centre an arc goes straight to the north, in ten metres of a radius of 300 kilometres.
        EXPECT_TRUE(isDrawn(150005, 150000 + way + 0.5)) << way;
        EXPECT_FALSE(isDrawn(150005.3, 150000 + way + 0.5)) << way;
        EXPECT_TRUE(isDrawn(150000 + way + 0.5, 150002)) << way;
    }
}

// The mean of red, green and blue over 4 by 4 pixels.
std::array<double, 3> MeanOf(const Pixels& pixels, int left, int top) {
    std::array<double, 3> mean{};
    for (int x = left; x < left + 4; ++x) {
        for (int y = top; y < top + 4; ++y) {
            const Colour colour = pixels.At(x, y);
            for (std::size_t part = 0; part < 3; ++part) mean[part] += (colour >> (8 * part) & 0xFF) / 16.0;
        }
    }
    return mean;
}

// How many of the squares of 4 by 4 pixels differ by more than a fifth in a colour. Letters are those of whatever fonts
// the machine has.
double PartThatDiffers(const Pixels& one, const Pixels& other) {
    int differing = 0;
    int all = 0;
    for (int x = 0; x < one.Width(); x += 4) {
        for (int y = 0; y < one.Height(); y += 4) {
            ++all;
            const auto mean1 = MeanOf(one, x, y);
            const auto mean2 = MeanOf(other, x, y);
            double apart = 0;
            for (std::size_t part = 0; part < 3; ++part) apart = std::max(apart, std::fabs(mean1[part] - mean2[part]));
            if (apart > 51) ++differing;
        }
    }
    return static_cast<double>(differing) / all;
}

// With KORVANDE_RENEW_PICTURES set the kept pictures are made anew, which fails all the same: look at them.
TEST_F(PngDrawings, TheSamplesLookAsTheyDid) {
    ASSERT_TRUE(LoadProjectFile(screen, project, FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    for (const auto& [mode, name] : {std::pair(idexToNen, "straat.idx"), std::pair(nenToIdex, "kruispunt.sfn")}) {
        const DisplayList list = Picture(mode, SampleBytes(name));
        PictureFrame frame = WholeFrame(list);
        frame.pixels = 700;
        const std::string bytes = Drawn(list, frame);
        const Text kept = FromUtf8(std::string(KORVANDE_SOURCE_DIR "/tests/picture/verwacht/") + name + ".png");
        if (std::getenv("KORVANDE_RENEW_PICTURES") != nullptr) ReplaceFile(kept, bytes);
        const Pixels drawn(bytes);
        const Pixels expected(FileBytes(kept));
        ASSERT_EQ(drawn.Width(), expected.Width());
        ASSERT_EQ(drawn.Height(), expected.Height());
        EXPECT_LT(PartThatDiffers(drawn, expected), 0.01) << name;
        // Something else is told from it.
        frame.box.maxEast += 3000;
        frame.box.minEast += 3000;
        EXPECT_GT(PartThatDiffers(Pixels(Drawn(list, frame)), expected), 0.03) << name;
    }
    EXPECT_EQ(std::getenv("KORVANDE_RENEW_PICTURES"), nullptr);
}

}  // namespace

}  // namespace korvande::testing
