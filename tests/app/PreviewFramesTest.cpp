#include "app/PreviewFrames.h"

#include <algorithm>

#include "app/PreviewDifferences.h"
#include "tests/app/PreviewTest.h"

namespace korvande::testing {

namespace {

class PreviewFramesTest : public PreviewTest {
 protected:
    std::vector<FrameSource> Sources() const {
        const ShownDrawing& drawing = preview->drawing;
        return {{&drawing.translation.drawing, &drawing.list, &drawing.index}};
    }
    PictureView All(int width, int height) const {
        return Fitting(Resized({}, width, height), preview->drawing.list.extent, 1000);
    }
    static bool Has(const Pixels& pixels, Colour colour) {
        return std::find(pixels.values.begin(), pixels.values.end(), colour) != pixels.values.end();
    }
    static FramePixels Await(PreviewFrames& frames) {
        while (true) {
            if (std::optional<FramePixels> frame = frames.Take()) return std::move(*frame);
            std::this_thread::yield();
        }
    }

    std::unique_ptr<Preview> preview = ReadStreet();
};

TEST_F(PreviewFramesTest, WhatIsAskedForIsDrawnElsewhereAndTold) {
    std::atomic<int> told = 0;
    PreviewFrames frames(Sources(), [&told] { ++told; });
    EXPECT_TRUE(frames.IsIdle());
    frames.Ask({All(200, 100)});
    const FramePixels frame = Await(frames);
    EXPECT_EQ(frame.pixels.width, 200);
    EXPECT_EQ(frame.pixels.height, 100);
    EXPECT_EQ(frame.view, All(200, 100));
    EXPECT_TRUE(Has(frame.pixels, 0xD00000));
    while (told == 0) std::this_thread::yield();
    EXPECT_TRUE(frames.IsIdle());
    EXPECT_FALSE(frames.Take());
}

TEST_F(PreviewFramesTest, OfManyOrdersTheNewestIsDrawnInTheEnd) {
    PreviewFrames frames(Sources(), [] {});
    for (int width = 50; width <= 150; ++width) frames.Ask({All(width, 60)});
    FramePixels frame = Await(frames);
    while (frame.view.width != 150) frame = Await(frames);
    EXPECT_TRUE(frames.IsIdle());
}

TEST_F(PreviewFramesTest, HiddenCodesAreLeftOut) {
    const std::atomic<bool> isStopped = false;
    std::vector<bool> isHidden;
    for (const PictureCode& code : preview->drawing.list.codes) isHidden.push_back(!code.isKnown);
    EXPECT_FALSE(Has(MakeFrame(Sources(), {All(200, 100), {}, isHidden}, isStopped).pixels, 0xD00000));
}

TEST_F(PreviewFramesTest, MarksLieOverTheDrawingWhereTheyAre) {
    const std::atomic<bool> isStopped = false;
    const PictureView view = All(200, 100);
    const auto marks = std::make_shared<FrameMarks>();
    const Position place = view.At(50, 25);
    FrameMark mark;
    mark.outline = {{place}};
    mark.box = BoxOf(mark.outline);
    mark.colour = 0x00C000;
    marks->push_back(mark);
    const FramePixels frame = MakeFrame(Sources(), {view, {}, {}, marks}, isStopped);
    EXPECT_EQ(frame.pixels.At(50, 25), 0x00C000U);
    EXPECT_NE(frame.pixels.At(90, 25), 0x00C000U);
}

TEST_F(PreviewFramesTest, AnotherDrawingIsDrawnWhereItsCoordinatesAre) {
    const std::atomic<bool> isStopped = false;
    const std::unique_ptr<Preview> same = ReadStreet();
    // The same places from another origin.
    DisplayList moved = same->drawing.list;
    moved.origin.east -= 5000;
    for (PicturePlace& place : moved.places) place.east += 5000;
    for (PicturePoint& point : moved.points) point.at.east += 5000;
    moved.extent.minEast += 5000;
    moved.extent.maxEast += 5000;
    const SpatialIndex index(moved);
    std::vector<FrameSource> sources = Sources();
    const PictureView view = All(200, 100);
    const FramePixels one = MakeFrame(sources, {view}, isStopped);
    sources.push_back({&same->drawing.translation.drawing, &moved, &index});
    EXPECT_EQ(ExtentOf(sources), preview->drawing.list.extent);
    const FramePixels both = MakeFrame(sources, {view}, isStopped);
    // Smooth edges become somewhat darker; nothing new appears.
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 200; ++x) {
            EXPECT_EQ(one.pixels.At(x, y) == 0xFFFFFF, both.pixels.At(x, y) == 0xFFFFFF) << x << " " << y;
        }
    }
}

class PreviewDifferencesTest : public PreviewFramesTest {
 protected:
    // The street and one with other points, as if that were the output.
    void CompareWith(const std::string& more, const std::string& otherMore) {
        preview = ReadStreet(more);
        other = ReadStreet(otherMore);
        preview->comparison = Compare(preview->drawing.translation, other->drawing.translation);
        preview->output = std::make_unique<ShownDrawing>(preview->screen);
        preview->output->list = other->drawing.list;
        preview->output->index = SpatialIndex(preview->output->list);
    }

    // The street with a second wall of these segments; the points are 1 (0, 0), 2 (40, 0), 3 (20, 0), 4
    // (20, 10) and 9; the numbers between are none.
    void ReadLines(std::unique_ptr<Preview>& drawing, const std::string& edges) {
        std::string text = FileBytes(Street());
        const auto put = [&text](const std::string& before, const std::string& more) {
            const std::size_t place = text.find(before);
            ASSERT_NE(place, std::string::npos);
            text.insert(place + before.size(), more);
        };
        put("\"RAAR\",\"\",0;\r\n", "9,\"P9\",50,50,1.5,\"MV\",\"\",0;\r\n");
        put("1,\"MUUR\",0;\r\n", "2,\"MUUR\",0;\r\n");
        put("1,1,2,STRAIGHT;\r\n", WithCrLf(edges));
        Choose(0, folder.Write("muren.idx", text), {});
        drawing = Read(*PreviewOfInput(form));
    }

    std::unique_ptr<Preview> other;
};

TEST_F(PreviewDifferencesTest, EachDifferenceHasAMarkInTheColourOfItsKindWhereItIs) {
    CompareWith("5,\"P5\",30,10,1.5,\"MV\",\"\",0;\n6,\"P6\",5,5,1.5,\"MV\",\"\",0;\n",
                "6,\"P6\",5,5,2.5,\"MV\",\"\",0;\n7,\"P7\",8,8,1.5,\"MV\",\"\",0;\n");
    const auto& differences = preview->comparison.differences;
    ASSERT_EQ(differences.size(), 3U);
    const FrameMarks marks = MarksOf(*preview);
    ASSERT_EQ(marks.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        const FrameMark& mark = marks[i];
        EXPECT_EQ(mark.colour, ColourOf(differences[i].kind));
        ASSERT_EQ(mark.outline.size(), 1U);
        const Position metres = preview->drawing.list.origin.Metres(PlaceAt(mark.outline.front().front()));
        EXPECT_NEAR(metres.east, differences[i].place.east, 0.001);
        EXPECT_NEAR(metres.north, differences[i].place.north, 0.001);
        EXPECT_FALSE(mark.box.IsEmpty());
    }
    EXPECT_EQ(ToUtf8(SummaryOf(preview->comparison)), "1 ontbreekt, 1 gewijzigd, 1 toegevoegd, 6 gelijk");
}

TEST_F(PreviewDifferencesTest, ACircleAnArcAndACurveAreMarkedAsTheyGo) {
    const auto lost = [this](const std::string& edges) {
        ReadLines(preview, edges + "2,4,3,STRAIGHT;\n");
        ReadLines(other, "2,4,3,STRAIGHT;\n");
        preview->comparison = Compare(preview->drawing.translation, other->drawing.translation);
        preview->output = std::make_unique<ShownDrawing>(preview->screen);
        const FrameMarks marks = MarksOf(*preview);
        EXPECT_FALSE(marks.empty());
        return marks.empty() ? FrameMark() : marks.front();
    };
    const FrameMark circle = lost("2,1,3,CIRCLE_CENT;\n2,3,1,CIRCLE_CENT;\n");
    EXPECT_NEAR(circle.box.maxEast - circle.box.minEast, 40000, 50);
    EXPECT_NEAR(circle.box.maxNorth - circle.box.minNorth, 40000, 50);
    const FrameMark arc = lost("2,1,3,ARC_CENT;\n2,3,2,ARC_CENT;\n");
    EXPECT_NEAR(arc.box.maxEast - arc.box.minEast, 40000, 50);
    EXPECT_NEAR(arc.box.maxNorth - arc.box.minNorth, 20000, 50);
    const FrameMark curve = lost("2,1,4,CURVE_3RD;\n2,4,2,CURVE_3RD;\n");
    EXPECT_GT(curve.outline.front().size(), 10U);
    EXPECT_EQ(lost("2,1,4,STRAIGHT;\n").outline.front().size(), 2U);
}

TEST_F(PreviewDifferencesTest, WhatRefersToNothingHasNoMark) {
    ReadLines(preview, "2,1,7,STRAIGHT;\n2,4,3,STRAIGHT;\n");
    ReadLines(other, "2,4,3,STRAIGHT;\n");
    preview->comparison = Compare(preview->drawing.translation, other->drawing.translation);
    ASSERT_EQ(preview->comparison.differences.size(), 1U);
    EXPECT_EQ(ToUtf8(TextOf(preview->comparison.differences.front())),
              "Ontbreekt: lijnsegment 'MUUR' (regel 19)\nReden: verwijst naar niets");
    preview->output = std::make_unique<ShownDrawing>(preview->screen);
    EXPECT_TRUE(MarksOf(*preview).front().box.IsEmpty());
}

TEST_F(PreviewDifferencesTest, WithoutDifferencesThereAreNoMarks) {
    CompareWith("", "");
    EXPECT_TRUE(MarksOf(*preview).empty());
    EXPECT_EQ(ToUtf8(SummaryOf(preview->comparison)).substr(0, 21), "Alles is overgekomen:");
    EXPECT_FALSE(PreviewDifferences(preview->comparison).Next({}, true));
}

TEST_F(PreviewDifferencesTest, TheyAreListedByKindAndFollowEachOtherBothWays) {
    CompareWith("5,\"P5\",30,10,1.5,\"MV\",\"\",0;\n6,\"P6\",5,5,1.5,\"MV\",\"\",0;\n",
                "6,\"P6\",5,5,2.5,\"MV\",\"\",0;\n7,\"P7\",8,8,1.5,\"MV\",\"\",0;\n");
    const PreviewDifferences differences(preview->comparison);
    ASSERT_EQ(differences.Count(), 3U);
    EXPECT_EQ(differences.At(0).kind, DifferenceKind::Missing);
    EXPECT_EQ(differences.At(1).kind, DifferenceKind::Changed);
    EXPECT_EQ(differences.At(2).kind, DifferenceKind::Added);
    EXPECT_EQ(&differences.At(1), &preview->comparison.differences[differences.PlaceOf(1)]);
    EXPECT_EQ(differences.Next({}, true), 0U);
    EXPECT_EQ(differences.Next({}, false), 2U);
    EXPECT_EQ(differences.Next(2, true), 0U);
    EXPECT_EQ(differences.Next(2, false), 1U);
}

TEST_F(PreviewDifferencesTest, LineStringsThatWereOnlySplitComeLastAndLieBelowTheOthers) {
    // Line string 1 is split, line string 2 joined with a part of it.
    ReadLines(preview, "1,4,3,STRAIGHT;\n2,1,4,STRAIGHT;\n");
    ReadLines(other, "2,4,3,STRAIGHT;\n2,1,4,STRAIGHT;\n");
    preview->comparison = Compare(preview->drawing.translation, other->drawing.translation);
    preview->output = std::make_unique<ShownDrawing>(preview->screen);
    const PreviewDifferences differences(preview->comparison);
    ASSERT_EQ(differences.Count(), 2U);
    EXPECT_FALSE(differences.At(0).isSplit);
    EXPECT_TRUE(differences.At(1).isSplit);
    EXPECT_EQ(differences.PlaceOf(1), 0U);
    const auto shown = differences.Shown(MarksOf(*preview));
    EXPECT_EQ(ToUtf8(shown->front().name), "opgedeeld");
    EXPECT_NE(shown->front().colour, ColourOf(DifferenceKind::Changed));
    EXPECT_LT(shown->front().width, shown->back().width);
    EXPECT_EQ(ToUtf8(shown->back().name), "gewijzigd");
    EXPECT_EQ(shown->back().colour, ColourOf(DifferenceKind::Changed));
}

TEST_F(PreviewDifferencesTest, AKindIsHiddenInTheListAndInTheDrawing) {
    CompareWith("5,\"P5\",30,10,1.5,\"MV\",\"\",0;\n", "7,\"P7\",8,8,1.5,\"MV\",\"\",0;\n");
    const FrameMarks marks = MarksOf(*preview);
    PreviewDifferences differences(preview->comparison);
    // What is missing is drawn last.
    EXPECT_EQ(differences.Shown(marks)->back().colour, ColourOf(DifferenceKind::Missing));
    differences.Show(DifferenceKind::Missing, false);
    ASSERT_EQ(differences.Count(), 1U);
    EXPECT_EQ(differences.At(0).kind, DifferenceKind::Added);
    EXPECT_EQ(differences.CountOf(DifferenceKind::Missing), 1U);
    ASSERT_EQ(differences.Shown(marks)->size(), 1U);
    EXPECT_EQ(differences.Shown(marks)->front().colour, ColourOf(DifferenceKind::Added));
    EXPECT_EQ(differences.Next(5, true), 0U);
    differences.Show(DifferenceKind::Missing, true);
    EXPECT_EQ(differences.Count(), 2U);
}

TEST_F(PreviewDifferencesTest, ADifferenceIsToldWithItsReason) {
    Difference difference;
    difference.kind = DifferenceKind::Missing;
    difference.code = u"BOOM";
    difference.place = {1, 2};
    difference.firstLine = 7;
    difference.reason = u"omdat";
    EXPECT_EQ(ToUtf8(TextOf(difference)), "Ontbreekt: punt 'BOOM' op 1.000 2.000 (regel 7)\nReden: omdat");
    difference.reason.clear();
    difference.what = u"hoogte 1 > 2";
    difference.kind = DifferenceKind::Changed;
    EXPECT_EQ(ToUtf8(TextOf(difference)), "Gewijzigd: punt 'BOOM' op 1.000 2.000 (regel 7): hoogte 1 > 2");
}

}  // namespace

}  // namespace korvande::testing
