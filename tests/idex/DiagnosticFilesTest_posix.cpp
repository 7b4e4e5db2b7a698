#include <filesystem>

#include "idex/modImportIDEX.h"
#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

class DiagnosticFiles : public IdexTest {
 protected:
    std::string ReadWithDriveD(std::string_view bytes) {
        const EnvironmentValue drive("KORVANDE_DRIVE_D", drives.Path());
        return Read(bytes);
    }
    std::string Bytes(std::string_view name) const { return FileBytes(drives / name); }

    static std::string Padded(std::string text, std::size_t width) {
        text.resize(width, ' ');
        return text;
    }

    TestFolder drives;

    static constexpr std::string_view linesHeading = "Code,Descr,Flags 1,Flags 2\r\n";
    static constexpr std::string_view edgesHeading = "Start Pt,End Pt,Line No,Line Type\r\n";
};

TEST_F(DiagnosticFiles, ListEveryLineAndEdgeAtFullWidth) {
    ASSERT_EQ(ReadWithDriveD(FileWith("POINTS (PointNo)\n10;\n20;\nEND\n"
                                      "LINES (LineNo,Code,Description,Flags1,Flags2)\n"
                                      "1,\"kant\",\"Caf\xE9, rand\",101,1;\n3,\"C\",,,;\n0,\"NUL\";\n"
                                      "EDGES (LineNo,StartPt,EndPt,LineType)\n1,10,20,straight;\n-3,15,10,\"curve\";\n"
                                      "END EDGES\nEND LINES\n")),
              "");
    EXPECT_EQ(drives.Listing(), "DEBUG_EDGES.TXT DEBUG_LINES.TXT");
    std::string lines(linesHeading);
    lines += "KANT   ," + Padded("CAF\xC9, RAND", 53) + ",5,1\r\n";
    lines += "       ," + Padded("", 53) + ",0,0\r\n";
    lines += "C      ," + Padded("", 53) + ",0,0\r\n";
    EXPECT_EQ(Bytes("DEBUG_LINES.TXT"), lines);
    EXPECT_EQ(Bytes("DEBUG_EDGES.TXT"), std::string(edgesHeading) + "1,2,1,STRAIGHT    \r\n0,1,-3,\"CURVE\"     \r\n");
}

TEST_F(DiagnosticFiles, HoldTheirHeadingsWhenNothingWasRead) {
    ASSERT_EQ(ReadWithDriveD(FileWith("")), "");
    EXPECT_EQ(Bytes("DEBUG_LINES.TXT"), linesHeading);
    EXPECT_EQ(Bytes("DEBUG_EDGES.TXT"), edgesHeading);
}

TEST_F(DiagnosticFiles, TakeThePlaceOfEarlierOnes) {
    drives.Write("debug_lines.txt", "old and much longer than what comes now");
    ASSERT_EQ(ReadWithDriveD(FileWith("")), "");
    EXPECT_EQ(drives.Listing(), "DEBUG_EDGES.TXT debug_lines.txt");
    EXPECT_EQ(Bytes("debug_lines.txt"), linesHeading);
}

TEST_F(DiagnosticFiles, AreWrittenWhenAPartOfTheFileIsMissing) {
    OpenLog();
    ASSERT_EQ(ReadWithDriveD("HEADER\nEND HEADER\n"), "");
    EXPECT_EQ(Bytes("DEBUG_LINES.TXT"), linesHeading);
    EXPECT_EQ(Bytes("DEBUG_EDGES.TXT"), edgesHeading);
}

TEST_F(DiagnosticFiles, AreNotWrittenAfterAnError) {
    EXPECT_EQ(ReadWithDriveD(FileWith("LINES (LineNo)\n1;\n-1;\nEND\n")), ErrorAt(errors::subscriptOutOfRange, 3));
    EXPECT_EQ(drives.Listing(), "");
}

TEST_F(DiagnosticFiles, AreNotWrittenForAFileThatCannotBeOpened) {
    const EnvironmentValue drive("KORVANDE_DRIVE_D", drives.Path());
    translation.IdexFileName = folder / "missing.idx";
    ReadIdexFile(translation);
    EXPECT_EQ(drives.Listing(), "");
}

TEST_F(DiagnosticFiles, AreNotWrittenForARunThatWantsNone) {
    translation.withDiagnosticFiles = false;
    ASSERT_EQ(ReadWithDriveD(FileWith("")), "");
    EXPECT_EQ(drives.Listing(), "");
}

TEST_F(DiagnosticFiles, AreDoneWithoutWhenThereIsNoDriveD) {
    OpenLog();
    ASSERT_EQ(ReadTables("LINES (LineNo,Code)\n1,\"A\";\nEND\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_EQ(LogText(), "");
}

TEST_F(DiagnosticFiles, AreDoneWithoutWhenTheyCannotBeWritten) {
    // Folders stand in the place of the files.
    const EnvironmentValue drive("KORVANDE_DRIVE_D", drives.Path());
    std::filesystem::create_directories(drives.Path() + "/DEBUG_LINES.TXT");
    OpenLog();
    ASSERT_EQ(ReadTables("LINES (LineNo,Code)\n1,\"A\";\nEND\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_EQ(LogText(), "");
    // One of them does not keep the other from being written.
    EXPECT_EQ(Bytes("DEBUG_EDGES.TXT"), edgesHeading);
}

}  // namespace

}  // namespace korvande::testing
