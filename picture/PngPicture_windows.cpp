#include <memory>

#include "core/RuntimeError.h"
#include "picture/GdiPlusText_windows.h"
#include "picture/PngPicture.h"

namespace korvande {

namespace {

constexpr double degreesPerRadian = 180 / 3.14159265358979;

class GdiPlusCanvas : public Canvas {
 public:
    GdiPlusCanvas(Gdiplus::Graphics& itsGraphics, const PictureFrame& frame)
        : graphics(itsGraphics), view(frame), letters(graphics, view) {
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    }

    void BeginCode(const PictureCode&, const CodeStyle& style) override {
        const auto width = static_cast<float>(style.lineWidth * view.scale);
        pen = std::make_unique<Gdiplus::Pen>(GdiPlusColour(style.colour), width);
        pen->SetLineCap(Gdiplus::LineCapRound, Gdiplus::LineCapRound, Gdiplus::DashCapRound);
        pen->SetLineJoin(Gdiplus::LineJoinRound);
        const float dashes[] = {8, 4};
        if (style.isDashed) pen->SetDashPattern(dashes, 2);
        brush = std::make_unique<Gdiplus::SolidBrush>(GdiPlusColour(style.colour));
    }
    void EndCode() override {}

    void MoveTo(PicturePlace place) override {
        path.StartFigure();
        last = place;
    }
    void LineTo(PicturePlace place) override {
        path.AddLine(PointAt(last), PointAt(place));
        last = place;
    }
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) override {
        const Arc arc = ArcAbout(PositionOf(last), PositionOf(centre), PositionOf(to), isAnticlockwise);
        const double radius = arc.radius * view.scale;
        const auto side = static_cast<float>(2 * radius);
        // Angles clockwise from east, in degrees.
        if (side > 0) {
            path.AddArc(static_cast<float>(view.X(arc.centre.east) - radius),
                        static_cast<float>(view.Y(arc.centre.north) - radius), side, side,
                        static_cast<float>(arc.bearing * degreesPerRadian - 90),
                        static_cast<float>(arc.sweep * degreesPerRadian));
        }
        last = to;
    }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) override {
        path.AddBezier(PointAt(last), PointAt(first), PointAt(second), PointAt(to));
        last = to;
    }
    void Stroke() override {
        graphics.DrawPath(pen.get(), &path);
        path.Reset();
    }

    void Dot(PicturePlace place, double radius) override {
        constexpr double leastPixels = 1;
        const double pixels = std::max(radius * view.scale, leastPixels);
        const Gdiplus::PointF centre = PointAt(place);
        const auto side = static_cast<float>(2 * pixels);
        graphics.FillEllipse(brush.get(), centre.X - side / 2, centre.Y - side / 2, side, side);
    }

    void Write(const PictureText& text, TextView characters) override {
        constexpr double leastPixels = 1.5;
        if (textHeight * 1000 * view.scale < leastPixels) return;
        letters.Write(text, characters, *brush);
    }

 private:
    Gdiplus::PointF PointAt(PicturePlace place) const {
        return {static_cast<float>(view.X(place.east)), static_cast<float>(view.Y(place.north))};
    }

    Gdiplus::Graphics& graphics;
    PixelView view;
    GdiPlusText letters;
    Gdiplus::GraphicsPath path;
    std::unique_ptr<Gdiplus::Pen> pen;
    std::unique_ptr<Gdiplus::SolidBrush> brush;
    PicturePlace last;
};

struct Release {
    void operator()(IStream* stream) const noexcept { stream->Release(); }
};

// All that was written to a stream.
std::string BytesOf(IStream& stream) {
    STATSTG state{};
    if (stream.Stat(&state, STATFLAG_NONAME) != S_OK) throw RuntimeError(errors::outOfMemory);
    std::string bytes(static_cast<std::size_t>(state.cbSize.QuadPart), '\0');
    const LARGE_INTEGER start{};
    ULONG count = 0;
    const bool isRead = stream.Seek(start, STREAM_SEEK_SET, nullptr) == S_OK &&
                        stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &count) == S_OK;
    if (!isRead || count != bytes.size()) throw RuntimeError(errors::outOfMemory);
    return bytes;
}

}  // namespace

std::string PngBytes(const PictureFrame& frame, const std::function<void(Canvas&)>& draw) {
    const std::int64_t height = HeightInPixels(frame);
    if (height > mostPixels || frame.pixels > mostPixels) throw RuntimeError(errors::outOfMemory);
    const GdiPlusLibrary library;
    Gdiplus::Bitmap bitmap(frame.pixels, static_cast<INT>(height), PixelFormat24bppRGB);
    {
        Gdiplus::Graphics graphics(&bitmap);
        graphics.Clear(GdiPlusColour(0xFFFFFF));
        GdiPlusCanvas canvas(graphics, frame);
        draw(canvas);
    }
    // The system's encoder of PNG.
    const CLSID encoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    IStream* made = nullptr;
    if (::CreateStreamOnHGlobal(nullptr, TRUE, &made) != S_OK) throw RuntimeError(errors::outOfMemory);
    const std::unique_ptr<IStream, Release> stream(made);
    if (bitmap.Save(stream.get(), &encoder, nullptr) != Gdiplus::Ok) throw RuntimeError(errors::outOfMemory);
    return BytesOf(*stream);
}

}  // namespace korvande
