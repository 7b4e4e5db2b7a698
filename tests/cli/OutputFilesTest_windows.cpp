#include <windows.h>

#include "core/WideText_windows.h"
#include "tests/cli/OutputFilesTest.h"

// Rights, devices and drives as Windows has them.
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
