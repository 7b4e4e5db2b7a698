#include "app/SaveGeoPackage.h"

#include "tests/app/PreviewTest.h"

namespace korvande::testing {

namespace {

class SaveGeoPackageTest : public PreviewTest {
 protected:
    bool IsWritten() const { return FileIsThere(name) && FileBytes(name).substr(68, 4) == "GPKG"; }

    std::unique_ptr<Preview> ReadPoint() {
        Choose(0, folder.Write("in.idx", Drawing()), {});
        return Read(*PreviewOfInput(form));
    }

    const Text name = folder / "uit.gpkg";
};

TEST_F(SaveGeoPackageTest, ADrawingInRdIsSavedWithoutAWordInPlaceOfAnEarlierFile) {
    folder.Write("uit.gpkg", "oud");
    SaveGeoPackage(screen, ReadPoint()->drawing, name);
    EXPECT_TRUE(IsWritten());
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(SaveGeoPackageTest, OneOutsideRdIsSavedOnlyWhenAPersonWantsThat) {
    const std::unique_ptr<Preview> preview = ReadStreet();
    screen.answers = {Answer::No, Answer::Yes};
    SaveGeoPackage(screen, preview->drawing, name);
    EXPECT_FALSE(FileIsThere(name));
    SaveGeoPackage(screen, preview->drawing, name);
    EXPECT_TRUE(IsWritten());
    ASSERT_EQ(screen.messages.size(), 2U);
    EXPECT_EQ(screen.messages[0],
              "De tekening ligt buiten RD (X 0.000 tot 40.000, Y 0.000 tot 10.000).\n"
              "Opslaan zonder coördinatenstelsel?");
}

TEST_F(SaveGeoPackageTest, AFailureIsTold) {
    screen.answers = {Answer::Cancel};
    SaveGeoPackage(screen, ReadPoint()->drawing, folder / "weg/uit.gpkg");
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_NE(screen.messages[0].find("niet opslaan"), std::string::npos);
}

}  // namespace

}  // namespace korvande::testing
