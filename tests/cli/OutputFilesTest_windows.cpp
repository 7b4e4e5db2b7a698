#include <windows.h>

#include "core/WideText_windows.h"
#include "tests/cli/OutputFilesTest.h"
#include "tests/support/HeldFile_windows.h"

// Rights, locked files, devices and drives as Windows has them.
namespace korvande::testing {

namespace {

class WindowsOutputFiles : public OutputFiles {};

TEST_F(WindowsOutputFiles, AWriteProtectedOutputIsNotReplaced) {
    const std::wstring output = ToWide(folder.Write("uit.sfn", "bewaren"));
    ASSERT_NE(::SetFileAttributesW(output.c_str(), FILE_ATTRIBUTE_READONLY), 0);
    const ProgramResult result = Translate("idex-nen1878", {"a.idx", "uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Kon bestand: 'uit.sfn' niet opslaan;\nFoutcode: 70\n")) << result.error;
    EXPECT_EQ(Bytes("uit.sfn"), "bewaren");
    EXPECT_EQ(folder.Listing(), "a.idx uit.LOG uit.sfn");
    ::SetFileAttributesW(output.c_str(), FILE_ATTRIBUTE_NORMAL);
}

// Also one that lets others read it, as an editor does.
TEST_F(WindowsOutputFiles, AnOutputThatAnotherProgramHoldsIsNotReplaced) {
    const Text output = folder.Write("uit.sfn", "van gisteren");
    for (const DWORD shared : {DWORD{0}, DWORD{FILE_SHARE_READ}}) {
        const HeldFile holder(output, shared);
        const ProgramResult result = Translate("idex-nen1878", {"a.idx", "uit.sfn"});
        EXPECT_EQ(result.status, 3) << result.error;
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(Has(result.error, "Kon bestand: 'uit.sfn' niet opslaan;\nFoutcode: 70\n")) << result.error;
        EXPECT_TRUE(Has(Log("uit.LOG"), "FOUT:  Kon bestand: 'uit.sfn' niet opslaan; Foutcode: 70")) << Log("uit.LOG");
        EXPECT_EQ(folder.Listing(), "a.idx uit.LOG uit.sfn");
    }
    EXPECT_EQ(Bytes("uit.sfn"), "van gisteren");
}

TEST_F(WindowsOutputFiles, ALogBookThatAnotherProgramHoldsIsAFailure) {
    const Text log = folder.Write("uit.LOG", "van gisteren");
    folder.Write("uit.sfn", "ook van gisteren");
    {
        const HeldFile holder(log, FILE_SHARE_READ);
        const ProgramResult result = Translate("idex-nen1878", {"a.idx", "uit.sfn"});
        EXPECT_EQ(result.status, 3);
        EXPECT_TRUE(Has(result.error, "Kon bestand: 'uit.LOG' niet opslaan;\nFoutcode: 70\nToegang geweigerd\n"))
            << result.error;
    }
    EXPECT_EQ(Bytes("uit.LOG"), "van gisteren");
    EXPECT_EQ(Bytes("uit.sfn"), "ook van gisteren");
}

TEST_F(WindowsOutputFiles, AnInputThatAnotherProgramHoldsIsAFailure) {
    folder.Write("uit.sfn", "van gisteren");
    const HeldFile holder(folder / "a.idx");
    const ProgramResult result = Translate("idex-nen1878", {"a.idx", "uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(Log("uit.LOG"), "FOUT:  Error:70 - Toegang geweigerd a.idx\n")) << Log("uit.LOG");
    EXPECT_EQ(Bytes("uit.sfn"), "van gisteren");
}

TEST_F(WindowsOutputFiles, AControlTableThatAnotherProgramHoldsIsAFailure) {
    const HeldFile holder(folder.Write("t.nst", smallTable));
    const ProgramResult result = Translate("idex-nen1878", {"--project", "t.nst", "a.idx", "uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Kon bestand: 't.nst' niet openen;\nFoutcode: 70\nToegang geweigerd\n"))
        << result.error;
    EXPECT_EQ(folder.Listing(), "a.idx t.nst");
}

TEST_F(WindowsOutputFiles, ADeviceIsWrittenDirectly) {
    const ProgramResult result = Translate("idex-nen1878", {"--logboek", "l", "a.idx", "NUL"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(folder.Listing(), "a.idx l");
}

TEST_F(WindowsOutputFiles, ADriveThatIsNotThereIsNotReady) {
    const ProgramResult result = Translate("idex-nen1878", {"--logboek", "l", "a.idx", "Q:\\uit.sfn"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Foutcode: 71")) << result.error;
}

}  // namespace

}  // namespace korvande::testing
