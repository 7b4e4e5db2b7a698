#include "picture/DrawMarked.h"

#include <algorithm>
#include <map>

namespace korvande {

namespace {

// Hands everything on, in one grey.
class PaleCanvas : public Canvas {
 public:
    explicit PaleCanvas(Canvas& itsCanvas) : canvas(itsCanvas) {}

    bool IsOfObjects() const override { return canvas.IsOfObjects(); }
    void BeginCode(const PictureCode& code, const CodeStyle& style) override {
        CodeStyle paleStyle = style;
        paleStyle.colour = ShownColour(style.colour, {.isPale = true});
        canvas.BeginCode(code, paleStyle);
    }
    void EndCode() override { canvas.EndCode(); }
    void MoveTo(PicturePlace place) override { canvas.MoveTo(place); }
    void LineTo(PicturePlace place) override { canvas.LineTo(place); }
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) override {
        canvas.ArcTo(centre, to, isAnticlockwise);
    }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) override {
        canvas.CurveTo(first, second, to);
    }
    void Stroke() override { canvas.Stroke(); }
    void Dot(PicturePlace place, double radius) override { canvas.Dot(place, radius); }
    void Write(const PictureText& text, TextView characters) override { canvas.Write(text, characters); }

 private:
    Canvas& canvas;
};

// Sizes are those of a mark on a screen, but of ones that can be seen on any paper.
class MarkDrawer {
 public:
    MarkDrawer(const PictureFrame& frame, Canvas& itsCanvas)
        : canvas(itsCanvas),
          pixel((static_cast<double>(frame.box.maxEast) - frame.box.minEast) / std::max(frame.pixels, 1)) {}

    void Draw(TextView name, const std::vector<const FrameMark*>& marks) {
        constexpr double leastWidth = 60;  // millimetres
        for (const bool isDot : {false, true}) {
            CodeStyle style;
            style.colour = marks.front()->colour;
            style.lineWidth = std::max(marks.front()->width * pixel, leastWidth);
            style.isFilled = isDot;
            PictureCode code;
            code.table = u'V';
            code.code = isDot ? Concat(name, u" (plaats)") : Text(name);
            code.isKnown = true;
            DrawGroup(code, style, marks);
        }
    }

 private:
    void DrawGroup(const PictureCode& code, const CodeStyle& style, const std::vector<const FrameMark*>& marks) {
        constexpr double leastRadius = 300;  // millimetres
        constexpr double radius = 4;         // pixels
        bool isBegun = false;
        for (const FrameMark* const mark : marks) {
            for (const std::vector<Position>& line : mark->outline) {
                if (line.empty() || (line.size() == 1) != style.isFilled) continue;
                if (!isBegun) canvas.BeginCode(code, style);
                isBegun = true;
                if (style.isFilled) {
                    canvas.Dot(PlaceAt(line.front()), std::max(radius * pixel, leastRadius));
                } else {
                    DrawLine(line);
                }
            }
        }
        if (isBegun) canvas.EndCode();
    }

    void DrawLine(const std::vector<Position>& line) {
        canvas.MoveTo(PlaceAt(line.front()));
        for (std::size_t i = 1; i < line.size(); ++i) canvas.LineTo(PlaceAt(line[i]));
        canvas.Stroke();
    }

    Canvas& canvas;
    double pixel;  // millimetres
};

}  // namespace

void DrawMarked(const FrameSource& source, const FrameMarks& marks, const PictureFrame& frame, Canvas& canvas) {
    PaleCanvas pale(canvas);
    DrawPicture(*source.drawing, *source.list, frame, pale, {source.index});
    // In the order in which they come: the last ones lie over the others.
    std::vector<TextView> names;
    std::map<TextView, std::vector<const FrameMark*>> seen;
    for (const FrameMark& mark : marks) {
        if (!mark.box.Overlaps(frame.box)) continue;
        std::vector<const FrameMark*>& named = seen[mark.name];
        if (named.empty()) names.push_back(mark.name);
        named.push_back(&mark);
    }
    MarkDrawer drawer(frame, canvas);
    for (const TextView name : names) drawer.Draw(name, seen[name]);
}

}  // namespace korvande
