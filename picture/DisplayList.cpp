#include "picture/DisplayList.h"

namespace korvande {

static_assert(sizeof(PicturePlace) == 8 && sizeof(PicturePoint) == 20 && sizeof(PictureLine) == 16 &&
              sizeof(PictureText) == 24 && sizeof(PictureStep) == 1);

double ReachOf(const PictureText& text) noexcept {
    constexpr double widthOfCharacter = 0.7;  // over the height; few characters are wider
    return textHeight * 1000 * (1 + widthOfCharacter * text.length);
}

std::size_t BytesOf(const DisplayList& list) noexcept {
    return list.points.capacity() * sizeof(PicturePoint) + list.lines.capacity() * sizeof(PictureLine) +
           list.places.capacity() * sizeof(PicturePlace) + list.steps.capacity() * sizeof(PictureStep) +
           list.texts.capacity() * sizeof(PictureText) + list.codes.capacity() * sizeof(PictureCode);
}

namespace {

struct BoxVisitor {
    PictureBox box;
    PicturePlace last;

    void Begin(PicturePlace place, bool) { Straight(place); }
    void Straight(PicturePlace to) {
        box.Add(to);
        last = to;
    }
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) {
        AddArc(box, ArcAbout(PositionOf(last), PositionOf(centre), PositionOf(to), isAnticlockwise));
        Straight(to);
    }
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
        box.Add(first);
        box.Add(second);
        Straight(to);
    }
};

}  // namespace

PictureBox BoxOf(const DisplayList& list, const PictureLine& line) noexcept {
    BoxVisitor visitor;
    WalkLine(list, line, visitor);
    return visitor.box;
}

PictureBox BoxOf(const PictureText& text) noexcept { return BoxAbout(text.at, ReachOf(text)); }

PictureBox BoxOf(const PicturePoint& point) noexcept {
    PictureBox box;
    box.Add(point.at);
    return box;
}

}  // namespace korvande
