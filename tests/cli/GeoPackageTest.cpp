#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

class GeoPackageCommand : public CliTest {
 protected:
    GeoPackageCommand() {
        folder.Write("klein.idx", smallIdex);
        folder.Write("klein.sfn", smallNen1878);
        folder.Write("klein.nst", smallTable);
        folder.Write("rd.idx", PointAt("121000,487000"));
    }

    static std::string PointAt(const std::string& place) {
        return WithCrLf(
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,PointID,East,North,Code)\n1,\"A\"," +
            place + ",\"MV\";\nEND POINTS\nEND DATABASE\n");
    }

    // Whether a file is a GeoPackage.
    bool IsWritten(const std::string& name) const { return IsThere(name) && Bytes(name).substr(68, 4) == "GPKG"; }
};

TEST_F(GeoPackageCommand, DrawingsOfAnyFormatGoIntoOneFile) {
    const ProgramResult result =
        Run({"geopackage", "--lokaal", "--project", "klein.nst", "klein.idx", "klein.sfn", "uit.gpkg"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.error.starts_with("Alles samen: 2 bestanden, waarvan 2 overgenomen\n")) << result.error;
    EXPECT_EQ(result.output,
              "klein.idx: 3 punten, 1 lijnstrings, 1 teksten, 1 onbekende objecten\n"
              "klein.sfn: 2 punten, 1 lijnstrings, 0 teksten, 1 onbekende objecten\n"
              "uit.gpkg: 5 punten, 2 lijnstrings, 1 teksten, 2 onbekende objecten\n");
    EXPECT_TRUE(IsWritten("uit.gpkg"));
    EXPECT_EQ(folder.Listing().find('~'), std::string::npos) << folder.Listing();
}

TEST_F(GeoPackageCommand, TheSamplesGoInWithEverythingThatAPictureOfThemShows) {
    const std::string samples = KORVANDE_SOURCE_DIR "/samples/";
    for (const char* const sample : {"straat.idx", "straat.sfn", "straat.sf2", "kruispunt.sfn"}) {
        const ProgramResult picture =
            Run({"teken", "--project", samples + "voorbeeld.nst", samples + sample, "beeld.svg"});
        const ProgramResult file =
            Run({"geopackage", "--overschrijf", "--project", samples + "voorbeeld.nst", samples + sample, "uit.gpkg"});
        EXPECT_EQ(file.status, picture.status);
        const std::string counts = picture.output.substr(picture.output.find(": "));
        EXPECT_TRUE(file.output.ends_with("uit.gpkg" + counts)) << file.output << picture.output;
    }
}

TEST_F(GeoPackageCommand, ADrawingInRdNeedsNoWord) {
    EXPECT_EQ(Run({"geopackage", "rd.idx", "uit.GPKG"}).status, 0);
    EXPECT_TRUE(IsWritten("uit.GPKG"));
}

TEST_F(GeoPackageCommand, ADrawingOutsideRdIsLeftOutAndLeavesNoFileAlone) {
    const ProgramResult alone = Run({"geopackage", "klein.idx", "uit.gpkg"});
    EXPECT_EQ(alone.status, 3);
    EXPECT_EQ(alone.output, "");
    EXPECT_EQ(alone.error,
              "klein.idx: buiten RD (X 1000.000 tot 1020.000, Y 2000.000 tot 2000.000); niet overgenomen (zie "
              "--lokaal)\n");
    EXPECT_FALSE(IsThere("uit.gpkg"));
    const ProgramResult withAnother = Run({"geopackage", "klein.idx", "rd.idx", "uit.gpkg"});
    EXPECT_EQ(withAnother.status, 1);
    EXPECT_TRUE(Has(withAnother.output, "uit.gpkg: 1 punten, 0 lijnstrings"));
    EXPECT_TRUE(IsWritten("uit.gpkg"));
}

TEST_F(GeoPackageCommand, SwappedCoordinatesAreAskedAbout) {
    folder.Write("om.idx", PointAt("487000,121000"));
    const ProgramResult result = Run({"geopackage", "om.idx", "uit.gpkg"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.error,
              "om.idx: buiten RD (X 487000.000 tot 487000.000, Y 121000.000 tot 121000.000); X en Y verwisseld?; niet "
              "overgenomen (zie --lokaal)\n");
}

TEST_F(GeoPackageCommand, AnEarlierFileIsReplacedWhenThatIsAskedForAndTheNewOneIsWholeOnly) {
    folder.Write("uit.gpkg", "oud");
    ExpectRefused({"geopackage", "rd.idx", "uit.gpkg"},
                  "Er bestaat al een bestand met deze naam (zie --overschrijf):\nuit.gpkg");
    EXPECT_EQ(Run({"geopackage", "--overschrijf", "weg.idx", "uit.gpkg"}).status, 3);
    EXPECT_EQ(Bytes("uit.gpkg"), "oud");
    EXPECT_EQ(Run({"geopackage", "--overschrijf", "rd.idx", "uit.gpkg"}).status, 0);
    EXPECT_TRUE(IsWritten("uit.gpkg"));
    EXPECT_EQ(folder.Listing().find('~'), std::string::npos) << folder.Listing();
}

TEST_F(GeoPackageCommand, ADamagedDrawingGoesInAsFarAsItGoesWithStatusOne) {
    folder.Write("half.idx", smallIdex.substr(0, smallIdex.find("  END LINES")));
    const ProgramResult result = Run({"geopackage", "--lokaal", "half.idx", "uit.gpkg"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.error, "half.idx: ")) << result.error;
    EXPECT_TRUE(Has(result.output, "half.idx: 3 punten, 1 lijnstrings")) << result.output;
}

TEST_F(GeoPackageCommand, AFileThatCannotBeWrittenIsTold) {
    const ProgramResult result = Run({"geopackage", "rd.idx", "nergens/uit.gpkg"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Kon bestand: 'nergens/uit.gpkg' niet opslaan;\nFoutcode: 76\n")) << result.error;
}

TEST_F(GeoPackageCommand, WrongUsageIsRefusedBeforeAnythingIsRead) {
    ExpectRefused({"geopackage"}, "Er ontbreekt een argument: bestanden");
    ExpectRefused({"geopackage", "rd.idx"}, "Er ontbreekt een argument: uitvoer");
    ExpectRefused({"geopackage", "rd.idx", "uit.sqlite"}, "De uitvoer moet op .gpkg eindigen: uit.sqlite");
    folder.Write("zelf.gpkg", smallIdex);
    ExpectRefused({"geopackage", "--overschrijf", "zelf.gpkg", "zelf.gpkg"},
                  "Invoer en uitvoer zijn hetzelfde bestand:\nzelf.gpkg");
    ExpectRefused({"geopackage", "--overschrijf", "--project", "zelf.gpkg", "rd.idx", "zelf.gpkg"},
                  "Controletabel en uitvoer zijn hetzelfde bestand:\nzelf.gpkg");
    ExpectRefused({"geopackage", "--lokaal=ja", "rd.idx", "uit.gpkg"},
                  "Er hoort geen waarde bij een optie: --lokaal = ja");
}

}  // namespace

}  // namespace korvande::testing
