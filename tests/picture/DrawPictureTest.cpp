#include "picture/DrawPicture.h"

#include <algorithm>

#include "tests/picture/PictureTest.h"

namespace korvande::testing {

namespace {

// Keeps what is drawn on it, a letter for each call.
class LetterCanvas : public Canvas {
 public:
    explicit LetterCanvas(bool itsObjects) : isOfObjects(itsObjects) {}

    std::string letters;

    bool IsOfObjects() const override { return isOfObjects; }
    void BeginCode(const PictureCode&, const CodeStyle&) override { letters += '('; }
    void EndCode() override { letters += ')'; }
    void MoveTo(PicturePlace) override { letters += 'm'; }
    void LineTo(PicturePlace) override { letters += 'l'; }
    void ArcTo(PicturePlace, PicturePlace, bool) override { letters += 'a'; }
    void CurveTo(PicturePlace, PicturePlace, PicturePlace) override { letters += 'c'; }
    void Stroke() override { letters += 's'; }
    void Dot(PicturePlace, double) override { letters += 'd'; }
    void Write(const PictureText&, TextView) override { letters += 't'; }

 private:
    bool isOfObjects;
};

class DrawPictures : public PictureTest {
 protected:
    // What is drawn of a drawing, and behind it the counts of points, line strings, texts and unknown objects.
    std::string Drawn(const Rows& rows, bool isOfObjects) {
        const DisplayList list = Picture(rows);
        LetterCanvas canvas(isOfObjects);
        const PictureCounts counts = DrawPicture(last->drawing, list, WholeFrame(list), canvas);
        std::string drawn = canvas.letters;
        for (const std::int64_t count : {counts.points, counts.lineStrings, counts.texts, counts.unknown}) {
            drawn += " " + std::to_string(count);
        }
        return drawn;
    }

    static std::string Repeated(const std::string& letter, int count) {
        std::string all;
        for (int i = 0; i < count; ++i) all += letter;
        return all;
    }

    // A line string of so many segments.
    static Rows Long(const std::string& code, int segments) {
        Rows rows{.points = "1,\"\",0,0,\"HULP\",0,\"\"\n", .lines = "1,\"" + code + "\",0\n"};
        for (int i = 1; i <= segments; ++i) {
            rows.points += std::to_string(i + 1) + ",\"\"," + std::to_string(i) + ",0,\"HULP\",0,\"\"\n";
            rows.edges += "1," + std::to_string(i) + "," + std::to_string(i + 1) + ",STRAIGHT\n";
        }
        return rows;
    }
};

TEST_F(DrawPictures, WhatIsDrawnIsCounted) {
    const Rows rows{.points = "1,\"\",0,0,\"MV\",0,\"\"\n2,\"\",5,0,\"VREEMD\",0,\"\"\n3,\"\",5,5,\"LAMP\",0,\"\"\n",
                    .lines = "1,\"MUUR\",0\n2,\"ANDERS\",0\n",
                    .edges = "1,1,2,STRAIGHT\n1,2,3,STRAIGHT\n2,1,3,STRAIGHT\n",
                    .texts = "1,1,0,\"Kerk\"\n"};
    EXPECT_EQ(Drawn(rows, true), "(mlls)(mls)(d)(maamls)(d)(t) 3 2 1 2");
}

TEST_F(DrawPictures, ALongLineStringIsOnePieceOnACanvasOfObjectsAndDrawnInPartsOnAnother) {
    EXPECT_EQ(Drawn(Long("MUUR", 130), true), "(m" + Repeated("l", 130) + "s) 0 1 0 0");
    const std::string part = "m" + Repeated("l", 64) + "s";
    EXPECT_EQ(Drawn(Long("MUUR", 130), false), "(" + part + part + "mlls) 0 1 0 0");
    // The dashes of one that is not written go on from each other.
    EXPECT_EQ(Drawn(Long("PERC", 130), false), "(m" + Repeated("l", 130) + "s) 0 1 0 0");
}

TEST_F(DrawPictures, WhatLiesExactlyUnderTheNextIsDrawnOnceButOnACanvasOfObjects) {
    Rows rows{.points = "1,\"\",0,0,\"HULP\",0,\"\"\n2,\"\",10,0,\"HULP\",0,\"\"\n"};
    for (int i = 3; i <= 6; ++i) rows.points += std::to_string(i) + ",\"\",5,5,\"MV\",0,\"\"\n";
    rows.points +=
        "7,\"\",5,6,\"MV\",0,\"\"\n8,\"\",5,5,\"MV\",0,\"\"\n9,\"\",5,5,\"LAMP\",0,\"\"\n10,\"\",5,5,\"LAMP\",1,\"\"\n";
    rows.lines = "1,\"MUUR\",0\n2,\"MUUR\",0\n3,\"MUUR\",0\n4,\"GEVEL\",0\n";
    rows.edges = "1,1,2,STRAIGHT\n2,1,2,STRAIGHT\n3,2,1,STRAIGHT\n4,2,1,STRAIGHT\n";
    EXPECT_EQ(Drawn(rows, true), "(mlsmlsmls)(mls)(dddddd)(maamlsmaamls) 8 4 0 0");
    EXPECT_EQ(Drawn(rows, false), "(mlsmls)(mls)(ddd)(maamlsmaamls) 8 4 0 0");
}

}  // namespace

}  // namespace korvande::testing
