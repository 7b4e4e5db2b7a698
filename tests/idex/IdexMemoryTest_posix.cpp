#include "core/modStrings.h"
#include "idex/modImportIDEX.h"
#include "tests/core/Allocations.h"
#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

// A row for each number from 1 on, which takes the place of "#".
std::string Rows(int count, std::string_view pattern) {
    std::string rows;
    for (int i = 1; i <= count; ++i) rows += ReplaceAll(pattern, "#", std::to_string(i));
    return rows;
}

// The objects of a street: points, a line string with edges, and texts of two items.
std::string Street(int points) {
    std::string tables = "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n";
    tables += Rows(points, "#,\"P#\",155#.125,463#.25,1.5,\"STRAATM\",\"EEN VRIJ LANGE OMSCHRIJVING\",50.25;\n");
    tables += "END\nLINES (LineNo,Code,Description,Flags1,Flags2)\n";
    tables += Rows(points, "#,\"KANTVER\",\"KANT VAN DE VERHARDING\",00000000 00000101,00000000 00000000;\n");
    tables += "EDGES (LineNo,StartPt,EndPt,LineType)\n";
    tables += Rows(points, "#,#,1,STRAIGHT;\n");
    tables += "END\nEND\nTEXT\nBOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)\n";
    tables += Rows(points, "#,#,3,1,12.5;\n");
    tables += "END\nITEMS (TextBoxNo,LineNo,TextItem)\n";
    tables += Rows(points, "#,1,\"Burgemeester van der\";\n#,2,\"Veldenstraat\";\n");
    return tables + "END\nEND TEXT\n";
}

// What the reading of a street asks for, beyond what the reading of another street does.
class IdexMemory : public IdexTest {
 protected:
    std::size_t BlocksFor(int points) {
        translation.IdexFileName = folder.Write("test.idx", FileWith(Street(points)));
        const Allocations asked = AllocationsOf([this] { ReadIdexFile(translation); });
        EXPECT_EQ(drawing.Points.UpperBound(), points);
        return asked.blocks;
    }

    // Six rows a point. What grows does so by doubling, or by pages of hundreds of records.
    void ExpectNoneForARow() {
        BlocksFor(100);  // whatever is made once in a program
        const std::size_t few = BlocksFor(2'000);
        const std::size_t many = BlocksFor(20'000);
        EXPECT_LT(many, few + 18'000 / 50);
    }
};

TEST_F(IdexMemory, IsNotAskedForWhenARowIsRead) {
    translation.options.chkExportHeightAsText = true;
    translation.options.chkExportPointnoAsText = true;
    translation.options.txtEleTxtLKI = u"1234567";
    ExpectNoneForARow();
    EXPECT_EQ(drawing.Texts.UpperBound(), 60'000);
}

TEST_F(IdexMemory, IsNotAskedForWhenADiagnosticLineIsWritten) {
    const EnvironmentValue drive("KORVANDE_DRIVE_D", folder.Path());
    ExpectNoneForARow();
    EXPECT_TRUE(FileIsThere(folder / "DEBUG_LINES.TXT"));
}

TEST_F(IdexMemory, IsNotAskedForInProportionToAPointNumber) {
    const auto bytesFor = [this](std::string_view number) {
        translation.IdexFileName =
            folder.Write("test.idx", FileWith("POINTS (PointNo)\n" + std::string(number) + ";\nEND\n"));
        return AllocationsOf([this] { ReadIdexFile(translation); }).bytes;
    };
    const std::size_t low = bytesFor("1");
    EXPECT_LT(bytesFor("2000000000"), low + 1'000);
}

}  // namespace

}  // namespace korvande::testing
