#include "app/PictureName.h"

#include <gtest/gtest.h>

namespace korvande::testing {

namespace {

TEST(PictureName, TheEndingThatWasTypedDecidesOverTheOneAddedBehindIt) {
    EXPECT_EQ(PictureNameOf(u"C:\\werk\\x.png.svg", MayBeGeoPackage::No), u"C:\\werk\\x.png");
    EXPECT_EQ(PictureNameOf(u"x.SVG.png", MayBeGeoPackage::No), u"x.SVG");
    EXPECT_EQ(PictureNameOf(u"x.svg.svg", MayBeGeoPackage::No), u"x.svg");
}

TEST(PictureName, ANameWithOneEndingStaysAndOneWithoutBecomesAnSvg) {
    EXPECT_EQ(PictureNameOf(u"x.PNG", MayBeGeoPackage::No), u"x.PNG");
    EXPECT_EQ(PictureNameOf(u"blad 3.1.svg", MayBeGeoPackage::No), u"blad 3.1.svg");
    EXPECT_EQ(PictureNameOf(u"blad 3.1", MayBeGeoPackage::No), u"blad 3.1.svg");
    EXPECT_EQ(PictureNameOf(u"x.png.oud", MayBeGeoPackage::No), u"x.png.oud.svg");
}

TEST(PictureName, AGeoPackageIsAnEndingWhereThereCanBeOne) {
    EXPECT_EQ(PictureNameOf(u"x.GPKG", MayBeGeoPackage::Yes), u"x.GPKG");
    EXPECT_EQ(PictureNameOf(u"x.gpkg.svg", MayBeGeoPackage::Yes), u"x.gpkg");
    EXPECT_EQ(PictureNameOf(u"x.png.gpkg", MayBeGeoPackage::Yes), u"x.png");
    EXPECT_EQ(PictureNameOf(u"x.gpkg", MayBeGeoPackage::No), u"x.gpkg.svg");
}

}  // namespace

}  // namespace korvande::testing
