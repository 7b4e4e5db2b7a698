#include "project/ControlTable.h"
#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

// The crossing of samples/, read from its file, with the control table beside it.
class ImportSample : public ImportTest {
 protected:
    ImportSample() {
        const std::string samples = KORVANDE_SOURCE_DIR "/samples/";
        Project project;
        EXPECT_TRUE(LoadProjectFile(screen, project, FromUtf8(samples + "voorbeeld.nst")));
        translation.options = project.options;
        translation.codes = project.codes;
        translation.options.chkImportUnknowns = false;
        translation.SufNenFileName = FromUtf8(samples + "kruispunt.sfn");
        ImportInput();
    }

    static bool Has(const std::string& lines, std::string_view line) {
        return ("\n" + lines).find("\n" + std::string(line) + "\n") != std::string::npos;
    }
};

TEST_F(ImportSample, TheCrossingIsImportedWholeAndWithoutAWord) {
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "");
    ExpectAccount(ObjectKind::Point, 92, 92);
    ExpectAccount(ObjectKind::LineString, 67, 67);
    ExpectAccount(ObjectKind::Arc, 30, 30);
    ExpectAccount(ObjectKind::TextObject, 21, 21);
    ExpectAccount(ObjectKind::Other, 0, 0);
    EXPECT_EQ(ToUtf8(translation.ProjectName), "Kruising Coöperatieweg");
}

TEST_F(ImportSample, PointsStandInTheNationalGridWithNumberAndHeight) {
    EXPECT_TRUE(Has(Points(), "GP202|GP|121416.400 487161.957 1.461|0.0000"));
    EXPECT_TRUE(Has(Points(), "25B-0207|RD|121342.027 487145.805 1.160|0.0000"));
}

TEST_F(ImportSample, SymbolsGoByTheirTypeAndAreTurned) {
    EXPECT_TRUE(Has(Points(), "LM1|LMU|121354.281 487140.746 1.226|112.7539"));
    EXPECT_TRUE(Has(Points(), "R05|PUTR|121419.072 487124.742 1.553|0.0000"));
    EXPECT_NE(Points().find("|BEUK|"), std::string::npos);
}

TEST_F(ImportSample, ChainsOfArcsTurnBothWays) {
    EXPECT_TRUE(Has(Lines(), "TRBAND"));
    EXPECT_TRUE(Has(Lines(), "TRBAND|16"));
    // The path round the pond is a chain of four: to the right, twice to the left, to the right.
    EXPECT_NE(Lines().find("VPAD\nVPAD|16\nVPAD|16\nVPAD\n"), std::string::npos);
}

TEST_F(ImportSample, TextsKeepTheirAccents) {
    for (const std::string text : {"Coöperatieweg", "Curaçaokade", "Hélènestraat"}) {
        EXPECT_NE(Texts().find("|" + text + "\n"), std::string::npos) << text;
    }
    EXPECT_NE(Texts().find("|Basisschool 'De Veêrhoek'\n"), std::string::npos);
    EXPECT_NE(Texts().find("GEMNAAM|"), std::string::npos);
    EXPECT_NE(Texts().find("|Vlieterhoek\n"), std::string::npos);
}

}  // namespace

}  // namespace korvande::testing
