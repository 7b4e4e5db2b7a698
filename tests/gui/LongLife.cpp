#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "tests/gui/TranslationFixture.h"
#include "ui/LogBookWindow.h"

// A window that translates again and again: KORVANDE_TRANSLATIONS times, in the four modes in turn, every tenth time
// with its log book on the screen. Tells how many are done, for who watches what the program uses meanwhile.
namespace korvande::testing {

namespace {

class LongLife : public TranslationFixture {
 protected:
    struct Run {
        int mode;
        const char* idex;
        const char* nen;
    };

    void Translate(const Run& run, bool showsLogBook) {
        dialogs.messages.clear();
        dialogs.titles.clear();
        dialogs.labels.clear();
        dialogs.buttons = {wxID_YES, wxID_YES};
        Choose("cboXlateMode", run.mode);
        Type("txtFileIDEX", ToUtf8(folder / run.idex));
        Type("txtFileSUFNEN", ToUtf8(folder / run.nen));
        SelectReport(form.project.options, showsLogBook ? &Options::optReportScreen : &Options::optReportNone);
        Press("cmdStart");
        LetEventsRun();
        EXPECT_NE(dialogs.LastMessage().find(" is vertaald"), std::string::npos) << dialogs.LastMessage();
        if (!showsLogBook) return;
        auto* const logBook = wxWindow::FindWindowByName("frmLogBook");
        ASSERT_NE(logBook, nullptr);
        logBook->Close();
        WaitUntil("the end of the log book", [] { return wxWindow::FindWindowByName("frmLogBook") == nullptr; });
    }
};

TEST_F(LongLife, TranslationsInOneWindow) {
    constexpr Run runs[] = {{0, "straat.idx", "uit.sfn"},
                            {1, "straat.idx", "uit.sf2"},
                            {2, "terug.idx", "uit.sfn"},
                            {3, "terug.idx", "uit.sf2"}};
    const char* const wanted = std::getenv("KORVANDE_TRANSLATIONS");
    ASSERT_NE(wanted, nullptr);
    const int translations = std::atoi(wanted);
    const std::string small = KORVANDE_SOURCE_DIR "/tests/golden/lijnen.idx";
    std::filesystem::copy(small, folder.Path() + "/straat.idx", std::filesystem::copy_options::overwrite_existing);
    Open();
    std::printf("process %d\n", static_cast<int>(getpid()));
    for (int i = 0; i < translations && !HasFailure(); ++i) {
        Translate(runs[i % 4], i / 4 % 10 == 9);
        if ((i + 1) % 100 == 0) {
            std::printf("translations %d\n", i + 1);
            std::fflush(stdout);
        }
    }
}

}  // namespace

}  // namespace korvande::testing
