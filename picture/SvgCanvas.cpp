#include "picture/SvgCanvas.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "core/Digits.h"
#include "core/LineWriter.h"
#include "core/Picture.h"
#include "picture/TextLayout.h"

namespace korvande {

namespace {

constexpr std::size_t roomForPlace = 24 + roomBehindDigits;

// A whole number of 10^decimals as a decimal, without zeros behind its last digit.
char* PutDecimal(char* at, std::int64_t scaled, int decimals) noexcept {
    auto size = static_cast<std::uint64_t>(std::llabs(scaled));
    if (scaled < 0) *at++ = '-';
    while (decimals > 0 && size % 10 == 0) {
        size /= 10;
        --decimals;
    }
    std::uint64_t unit = 1;
    for (int i = 0; i < decimals; ++i) unit *= 10;
    at = WriteWhole(at, static_cast<std::int64_t>(size / unit));
    if (decimals == 0) return at;
    *at++ = '.';
    std::uint64_t rest = size % unit;
    for (int i = decimals; i-- > 0; rest /= 10) at[i] = static_cast<char>('0' + rest % 10);
    return at + decimals;
}

char* PutBytes(char* at, std::string_view bytes) noexcept { return at + bytes.copy(at, bytes.size()); }

std::string Decimal(double value, int decimals) {
    std::array<char, roomForPlace> room{};
    const double scaled = std::round(value * std::pow(10.0, decimals));
    char* const end = PutDecimal(room.data(), static_cast<std::int64_t>(scaled), decimals);
    return {room.data(), end};
}

std::string Metres(double millimetres) { return Decimal(millimetres / 1000, 3); }

std::string ColourText(Colour colour) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) text.push_back(digits[colour >> shift & 0xF]);
    return text;
}

}  // namespace

std::string CodeId(const PictureCode& code) {
    std::string id = {ToWindows1252(code.table), '-'};
    for (const char16_t character : code.code) {
        const bool isLetter = (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z');
        const bool isDigit = character >= u'0' && character <= u'9';
        if (isLetter || isDigit || character == u'-') {
            id.push_back(static_cast<char>(character));
        } else {
            id += "_" + FormatPicture(character, "0") + ".";
        }
    }
    return id;
}

std::string XmlText(TextView text) {
    Text plain;
    std::string escaped;
    const auto flush = [&] {
        escaped += ToUtf8(plain);
        plain.clear();
    };
    for (const char16_t character : text) {
        std::string_view entity;
        if (character == u'&') entity = "&amp;";
        if (character == u'<') entity = "&lt;";
        if (character == u'>') entity = "&gt;";
        if (character == u'"') entity = "&quot;";
        const bool isNone = character < u' ' || character >= 0xFFFE || (character >= 0xD800 && character < 0xE000);
        if (entity.empty()) {
            plain.push_back(isNone ? u'?' : character);
            continue;
        }
        flush();
        escaped += entity;
    }
    flush();
    return escaped;
}

SvgCanvas::SvgCanvas(LineWriter& itsOutput, const DisplayList& list, const PictureFrame& itsFrame, TextView title)
    : output(itsOutput), frame(itsFrame) {
    const PictureBox& box = frame.box;
    const Position corner = list.origin.Metres({box.minEast, box.maxNorth});
    const double width = static_cast<double>(box.maxEast) - box.minEast;
    const double height = static_cast<double>(box.maxNorth) - box.minNorth;
    output.Put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    output.Put(R"(<svg xmlns="http://www.w3.org/2000/svg" version="1.1" viewBox="0 0 )" + Metres(width) + " " +
               Metres(height) + "\" data-east=\"" + Decimal(corner.east, 3) + "\" data-north=\"" +
               Decimal(corner.north, 3) + "\">\n");
    output.Put("<title>" + XmlText(title) + "</title>\n");
    output.Put("<desc>Eenheid: meter. De linkerbovenhoek ligt op " + Decimal(corner.east, 3) + " oost, " +
               Decimal(corner.north, 3) + " noord.</desc>\n");
    output.Put("<rect width=\"" + Metres(width) + "\" height=\"" + Metres(height) + "\" fill=\"#ffffff\"/>\n");
    output.Put(
        "<g fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\" font-family=\"Arial, Liberation Sans, "
        "sans-serif\" "
        "font-size=\"" +
        Decimal(textHeight, 3) + "\">\n");
}

void SvgCanvas::Finish() { output.Put("</g>\n</svg>\n"); }

void SvgCanvas::BeginCode(const PictureCode& code, const CodeStyle& style) {
    std::string group = "<g id=\"" + CodeId(code) + "\" data-code=\"" + XmlText(code.code) + "\" data-lki=\"" +
                        XmlText(code.lkiCode) + "\" class=\"" + (code.isKnown ? "bekend" : "onbekend") + "\"";
    const std::string colour = ColourText(style.colour);
    if (style.isFilled) {
        group += " fill=\"" + colour + "\"";
    } else {
        group += " stroke=\"" + colour + "\" stroke-width=\"" + Metres(style.lineWidth) + "\"";
    }
    if (style.isDashed) {
        group += " stroke-dasharray=\"" + Metres(style.lineWidth * 8) + " " + Metres(style.lineWidth * 4) + "\"";
    }
    const TextView title = code.isKnown ? TextView(code.description) : TextView(u"onbekende code");
    output.Put(group + "><title>" + XmlText(title) + "</title>\n");
}

void SvgCanvas::EndCode() { output.Put("</g>\n"); }

char* SvgCanvas::PutPlace(char* at, PicturePlace place) const {
    at = PutDecimal(at, std::int64_t{place.east} - frame.box.minEast, 3);
    *at++ = ' ';
    return PutDecimal(at, std::int64_t{frame.box.maxNorth} - place.north, 3);
}

void SvgCanvas::MoveTo(PicturePlace place) {
    char* const begin = output.Reserve(roomForPlace + 16);
    char* at = begin;
    at = PutBytes(at, isInPath ? "M" : "<path d=\"M");
    isInPath = true;
    at = PutPlace(at, place);
    output.Advance(static_cast<std::size_t>(at - begin));
    last = place;
}

void SvgCanvas::LineTo(PicturePlace place) {
    char* const begin = output.Reserve(roomForPlace + 16);
    char* at = begin;
    *at++ = 'L';
    at = PutPlace(at, place);
    output.Advance(static_cast<std::size_t>(at - begin));
    last = place;
}

void SvgCanvas::ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) {
    constexpr double halfTurn = 3.14159265358979 + 1e-6;  // half a circle is no large arc, whatever its rounding
    constexpr int radiusDecimals = 6;
    const Arc arc = ArcAbout(PositionOf(last), PositionOf(centre), PositionOf(to), isAnticlockwise);
    char* const begin = output.Reserve(3 * roomForPlace + 16);
    char* at = begin;
    *at++ = 'A';
    const auto radius = static_cast<std::int64_t>(std::round(arc.radius * 1000));
    at = PutDecimal(at, radius, radiusDecimals);
    *at++ = ' ';
    at = PutDecimal(at, radius, radiusDecimals);
    at = PutBytes(at, std::fabs(arc.sweep) > halfTurn ? " 0 1 " : " 0 0 ");
    at = PutBytes(at, isAnticlockwise ? "0 " : "1 ");
    at = PutPlace(at, to);
    output.Advance(static_cast<std::size_t>(at - begin));
    last = to;
}

void SvgCanvas::CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) {
    char* const begin = output.Reserve(3 * roomForPlace + 16);
    char* at = begin;
    *at++ = 'C';
    at = PutPlace(at, first);
    *at++ = ' ';
    at = PutPlace(at, second);
    *at++ = ' ';
    at = PutPlace(at, to);
    output.Advance(static_cast<std::size_t>(at - begin));
    last = to;
}

void SvgCanvas::Stroke() {
    if (isInPath) output.Put("\"/>\n");
    isInPath = false;
}

void SvgCanvas::Dot(PicturePlace place, double radius) {
    char* const begin = output.Reserve(3 * roomForPlace + 40);
    char* at = PutBytes(begin, "<circle cx=\"");
    at = PutDecimal(at, std::int64_t{place.east} - frame.box.minEast, 3);
    at = PutBytes(at, "\" cy=\"");
    at = PutDecimal(at, std::int64_t{frame.box.maxNorth} - place.north, 3);
    at = PutBytes(at, "\" r=\"");
    at = PutDecimal(at, static_cast<std::int64_t>(std::lround(radius)), 3);
    at = PutBytes(at, "\"/>\n");
    output.Advance(static_cast<std::size_t>(at - begin));
}

void SvgCanvas::Write(const PictureText& text, TextView characters) {
    constexpr double degreesPerGrad = 0.9;
    std::array<char, 2 * roomForPlace> room{};
    char* const end = PutPlace(room.data(), text.at);
    const std::string place(room.data(), end);
    const std::size_t blank = place.find(' ');
    std::string element = "<text x=\"" + place.substr(0, blank) + "\" y=\"" + place.substr(blank + 1) + "\"";
    if (PartBelow(text) > 0) element += " dy=\"" + Metres(-FrameOf(text).bottom) + "\"";
    if (PartLeftOf(text) > 0) element += PartLeftOf(text) > 0.5 ? " text-anchor=\"end\"" : " text-anchor=\"middle\"";
    const double turn = std::isfinite(text.direction) ? std::fmod(-degreesPerGrad * text.direction, 360.0) : 0;
    if (turn != 0) element += " transform=\"rotate(" + Decimal(turn, 4) + " " + place + ")\"";
    output.Put(element + ">" + XmlText(characters) + "</text>\n");
}

}  // namespace korvande
