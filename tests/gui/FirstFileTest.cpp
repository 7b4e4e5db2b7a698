#include <gtest/gtest.h>
#include <wx/button.h>

#include "tests/gui/TranslationFixture.h"

namespace korvande::testing {

namespace {

// Somebody who starts the program for the first time, with the sample project in the folder of the projects; what this
// person does is counted.
class FirstFileTest : public TranslationFixture {
 protected:
    void ClickOn(const char* button) {
        ++actions;
        Click(button);
    }

    // In the dialog of the system: the file, and the button that opens it.
    void AnswerWithFile(const Text& name) {
        actions += 2;
        dialogs.files = {name};
    }

    int actions = 0;
};

TEST_F(FirstFileTest, IsDeliveredWithFiveActionsFromAFreshStart) {
    EnvironmentValue viewer{"KORVANDE_VIEWER", "true"};
    Start();
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(ToUtf8(form.CurrentProject), "voorbeeld.nst");
    dialogs.onShownMessage = [this] {
        ++actions;
        dialogs.onShownMessage = {};
        Key(WXK_RETURN);
    };

    AnswerWithFile(folder / "straat.idx");
    ClickOn("cmdBrowseIDEX");
    EXPECT_EQ(TextOf("txtFileSUFNEN"), ToUtf8(folder / "straat.SFN"));
    ClickOn("cmdStart");
    WaitUntil("the end of the run", [this] { return !form.lastRun.outcome.empty() && dialogs.messages.size() == 1; });

    EXPECT_LE(actions, 5);
    EXPECT_EQ(dialogs.messages, std::vector<std::string>{SampleIsTranslated()});
    const std::string delivered = FileBytes(folder / "straat.SFN");
    const std::string sample = FileBytes(FromUtf8(KORVANDE_SOURCE_DIR "/samples/straat.sfn"));
    ASSERT_GT(delivered.size(), 10000U);
    // The sample file has the date on which it was made.
    EXPECT_EQ(delivered.size(), sample.size());
    EXPECT_TRUE(delivered.substr(65 * 2) == sample.substr(65 * 2));
}

}  // namespace

}  // namespace korvande::testing
