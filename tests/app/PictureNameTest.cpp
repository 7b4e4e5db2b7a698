#include "app/PictureName.h"

#include <gtest/gtest.h>

namespace korvande::testing {

namespace {

TEST(PictureName, TheEndingThatWasTypedDecidesOverTheOneAddedBehindIt) {
    EXPECT_EQ(PictureNameOf(u"C:\\werk\\x.png.svg"), u"C:\\werk\\x.png");
    EXPECT_EQ(PictureNameOf(u"x.SVG.png"), u"x.SVG");
    EXPECT_EQ(PictureNameOf(u"x.svg.svg"), u"x.svg");
}

TEST(PictureName, ANameWithOneEndingStaysAndOneWithoutBecomesAnSvg) {
    EXPECT_EQ(PictureNameOf(u"x.PNG"), u"x.PNG");
    EXPECT_EQ(PictureNameOf(u"blad 3.1.svg"), u"blad 3.1.svg");
    EXPECT_EQ(PictureNameOf(u"blad 3.1"), u"blad 3.1.svg");
    EXPECT_EQ(PictureNameOf(u"x.png.oud"), u"x.png.oud.svg");
}

}  // namespace

}  // namespace korvande::testing
