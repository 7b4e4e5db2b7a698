#include "app/PreviewCodes.h"

#include "app/UnknownCodes.h"
#include "tests/app/PreviewTest.h"

namespace korvande::testing {

namespace {

class PreviewCodesTest : public PreviewTest {
 protected:
    PreviewCodesTest()
        : preview(ReadStreet("5,\"P5\",30,10,1.5,\"MV\",\"\",0;\n6,\"P6\",5,5,1.5,\"BOOM\",\"\",0;\n")) {}

    std::string Names() const {
        std::string names;
        for (std::size_t row = 0; row < codes.Count(); ++row) {
            names += (names.empty() ? "" : " ") + ToUtf8(NameOf(codes.CodeAt(row)));
        }
        return names;
    }

    std::unique_ptr<Preview> preview;
    const DisplayList& list = preview->drawing.list;
    PreviewCodes codes{list};
};

TEST_F(PreviewCodesTest, UnknownCodesStandFirstThenPointsAndLinesByCode) {
    EXPECT_EQ(Names(), "RAAR BOOM MV MUUR");
    EXPECT_EQ(ToUtf8(KindOf(codes.CodeAt(0))), "Punt");
    EXPECT_EQ(ToUtf8(KindOf(codes.CodeAt(3))), "Lijn");
    for (std::size_t row = 0; row < codes.Count(); ++row) {
        EXPECT_EQ(&list.codes[list.points[0].code] == &codes.CodeAt(row), codes.RowOf(list.points[0].code) == row);
    }
}

TEST_F(PreviewCodesTest, ACodeIsHiddenAndShownAndSoAreAll) {
    EXPECT_TRUE(codes.IsShown(2));
    codes.Show(2, false);
    EXPECT_FALSE(codes.IsShown(2));
    for (std::size_t code = 0; code < list.codes.size(); ++code) {
        EXPECT_EQ(codes.Hidden()[code], ToUtf8(list.codes[code].code) == "MV");
    }
    codes.ShowAll(false);
    EXPECT_EQ(codes.Hidden(), std::vector<bool>(4, true));
    codes.ShowAll(true);
    EXPECT_EQ(codes.Hidden(), std::vector<bool>(4, false));
}

TEST_F(PreviewCodesTest, WhatOthersHideIsHiddenByItsCodeWhereverItStands) {
    codes.Show(2, false);
    const std::unique_ptr<Preview> other = ReadStreet("5,\"P5\",30,10,1.5,\"ANDER\",\"\",0;\n");
    PreviewCodes now(other->drawing.list);
    now.HideAlso(codes);
    for (std::size_t row = 0; row < now.Count(); ++row) {
        EXPECT_EQ(now.IsShown(row), ToUtf8(now.CodeAt(row).code) != "MV") << row;
    }
}

TEST_F(PreviewCodesTest, TheObjectsOfACodeFollowEachOtherAndBeginAnew) {
    constexpr std::size_t row = 2;  // MV
    const std::optional<PictureRef> first = codes.NextOf(row, {});
    const std::optional<PictureRef> second = codes.NextOf(row, first);
    ASSERT_TRUE(first && second);
    EXPECT_FALSE(*first == *second);
    EXPECT_EQ(ToUtf8(TextOf(Describe(preview->drawing.translation.drawing, list, *first))).substr(0, 7), "Punt P3");
    EXPECT_EQ(ToUtf8(TextOf(Describe(preview->drawing.translation.drawing, list, *second))).substr(0, 7), "Punt P5");
    EXPECT_EQ(codes.NextOf(row, second), first);
    const std::optional<PictureRef> wall = codes.NextOf(3, first);
    ASSERT_TRUE(wall);
    EXPECT_EQ(wall->kind, PictureKind::LineString);
}

TEST_F(PreviewCodesTest, AnObjectIsToldInWords) {
    const auto told = [&](std::size_t row) {
        return ToUtf8(TextOf(Describe(preview->drawing.translation.drawing, list, *codes.NextOf(row, {}))));
    };
    EXPECT_EQ(told(0), "Punt P4\nCode: RAAR (onbekend)\nLKI-code: Q20\nRegel 11 van de invoer");
    EXPECT_EQ(told(2), "Punt P3\nCode: MV\nLKI-code: Q21\nMAAIVELD\nRegel 10 van de invoer");
    EXPECT_EQ(told(3).substr(0, 24), "Lijnstring 1\nCode: MUUR\n");
    ObjectInfo text;
    text.kind = PictureKind::TextObject;
    text.code = u"NAAM";
    text.description = u"Kerk";
    text.isKnown = true;
    EXPECT_EQ(ToUtf8(TextOf(text)), "Tekst \"Kerk\"\nCode: NAAM\nWordt niet geschreven");
}

TEST_F(PreviewCodesTest, TheStatusLineCountsCodesAndTellsThePlaceOfThePointer) {
    EXPECT_EQ(ToUtf8(SummaryOf(list)), "4 codes, 1 onbekend; buiten RD");
    DisplayList other;
    other.codes.resize(1);
    other.codes.front().isKnown = true;
    other.notShown = 2;
    EXPECT_EQ(ToUtf8(SummaryOf(other)), "1 code; 2 objecten niet getekend");
    other.origin = {121000000, 487000000};
    EXPECT_EQ(ToUtf8(TextOfPlace(other, {1234.4, -0.6})), "X 121001.234   Y 486999.999");
}

TEST_F(PreviewCodesTest, TheUnknownOnesCanBeAddedWithTheDescriptionOfTheirFirstObject) {
    preview = ReadStreet("5,\"P5\",30,10,1.5,\"NIEUW\",\"Bank\",0;\n6,\"P6\",5,5,1.5,\"NIEUW\",\"\",0;\n");
    const ShownDrawing& drawing = preview->drawing;
    const UnknownCodes unknown = UnknownCodesOf(drawing.translation.drawing, drawing.list, Direction::FromIdex);
    ASSERT_EQ(unknown.codes.size(), 2U);
    EXPECT_EQ(unknown.column, Grid::Liscad);
    EXPECT_EQ(unknown.codes[0].code, u"NIEUW");
    EXPECT_EQ(unknown.codes[0].count, 2);
    EXPECT_EQ(unknown.codes[0].description, u"BANK");
    EXPECT_EQ(unknown.codes[1].code, u"RAAR");
    EXPECT_EQ(UnknownCodesOf(drawing.translation.drawing, drawing.list, Direction::ToIdex).column, Grid::Lki);
}

TEST_F(PreviewCodesTest, AnEmptyPictureHasNoCodes) {
    const DisplayList nothing;
    const PreviewCodes none(nothing);
    EXPECT_EQ(none.Count(), 0U);
    EXPECT_EQ(ToUtf8(SummaryOf(nothing)), "0 codes");
}

}  // namespace

}  // namespace korvande::testing
