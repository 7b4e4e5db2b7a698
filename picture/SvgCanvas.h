#pragma once

#include <string>

#include "picture/Canvas.h"
#include "picture/DrawPicture.h"

namespace korvande {

class LineWriter;

// Writes a picture as SVG: in metres, east to the right and north up, from the top left corner of the frame, whose
// coordinates the root tells (data-east, data-north). Each code is a group with the id that CodeId makes, the code
// itself in data-code and its description as title, each object one element of it.
class SvgCanvas : public Canvas {
 public:
    // Writes the beginning; the writer is open. The title is the picture's.
    SvgCanvas(LineWriter& itsOutput, const DisplayList& list, const PictureFrame& itsFrame, TextView title);

    // Writes the end.
    void Finish();

    bool IsOfObjects() const override { return true; }
    void BeginCode(const PictureCode& code, const CodeStyle& style) override;
    void EndCode() override;
    void MoveTo(PicturePlace place) override;
    void LineTo(PicturePlace place) override;
    void ArcTo(PicturePlace centre, PicturePlace to, bool isAnticlockwise) override;
    void CurveTo(PicturePlace first, PicturePlace second, PicturePlace to) override;
    void Stroke() override;
    void Dot(PicturePlace place, double radius) override;
    void Write(const PictureText& text, TextView characters) override;

 private:
    char* PutPlace(char* at, PicturePlace place) const;

    LineWriter& output;
    PictureFrame frame;
    PicturePlace last;
    bool isInPath = false;
};

// "L-MUUR" for the line code MUUR: the table's letter and the code, in which every character that is no letter or digit
// of ASCII and no hyphen is written as "_", its number and a point: "S01 A01" is P-S01_32.A01. No two codes have the
// same.
std::string CodeId(const PictureCode& code);

// UTF-8 in which XML finds nothing to take apart. What XML cannot hold is "?".
std::string XmlText(TextView text);

}  // namespace korvande
