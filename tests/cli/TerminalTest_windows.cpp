#include <chrono>
#include <thread>

#include "tests/cli/CliTest.h"
#include "tests/support/ConsoleProgram_windows.h"

// The program in a console of Windows.
namespace korvande::testing {

namespace {

class OnAConsole : public CliTest {
 protected:
    OnAConsole() {
        folder.Write("a.idx", smallIdex);
        folder.Write("a.suf", smallSuf2);
    }

    // What the program asks of a file that looks like SUF2.
    Start Asking() const { return StartOf({"vertaal", "--modus", "nen1878-idex", "a.suf", "uit.idx"}); }

    // Waits until the program has an output under way.
    void WaitForOutput() const {
        for (int tries = 0; !Has(folder.Listing(), "~korvande-"); ++tries) {
            ASSERT_LT(tries, 3000) << folder.Listing();
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }
};

TEST_F(OnAConsole, NamesKeepTheirAccents) {
    folder.Write("één €.idx", smallIdex);
    ConsoleProgram program(StartOf({"vertaal", "--modus", "idex-nen1878", "één €.idx", "uit ü.sfn"}));
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_TRUE(Has(program.Shown(), "uit ü.sfn: 3 punten")) << program.Shown();
    ConsoleProgram missing(StartOf({"controleer", "nergens ñ€.idx"}));
    EXPECT_EQ(missing.Wait(), 3);
    EXPECT_TRUE(Has(missing.Shown(), "nergens ñ€.idx")) << missing.Shown();
}

TEST_F(OnAConsole, AQuestionIsAskedAndAnswered) {
    ConsoleProgram program(Asking());
    program.WaitForText("Als SUF2 verder verwerken ? [j]a / [n]ee / [a]nnuleren");
    program.Type("misschien\r");
    program.Type("n\r");
    EXPECT_EQ(program.Wait(), 0) << program.Shown();
    EXPECT_TRUE(Has(Log("uit.LOG"), "==>  Verwerking vervolgd als NEN1878 bestand\n")) << Log("uit.LOG");
}

// Windows ends the wait for an answer, Wine does not.
TEST_F(OnAConsole, AnInterruptAtAQuestionCancelsWhateverIsAnswered) {
    ConsoleProgram program(Asking());
    program.WaitForText("[a]nnuleren");
    program.Interrupt();
    program.Type("j\r");
    EXPECT_EQ(program.Wait(), 3) << program.Shown();
    EXPECT_EQ(folder.Listing(), "a.idx a.suf uit.LOG");
}

TEST_F(OnAConsole, AnInterruptDuringARunKeepsAnEarlierOutput) {
    folder.Write("groot.nen", Nen1878Points(1'000'000));
    folder.Write("uit.idx", "van gisteren");
    ConsoleProgram program(StartOf({"vertaal", "--modus", "nen1878-idex", "groot.nen", "uit.idx"}));
    WaitForOutput();
    program.Interrupt();
    EXPECT_EQ(program.Wait(), 3) << program.Shown();
    EXPECT_TRUE(Has(program.Shown(), "groot.nen is niet vertaald: afgebroken.")) << program.Shown();
    EXPECT_TRUE(Has(Log("uit.LOG"), "==>  Vertaling afgebroken.\n")) << Log("uit.LOG");
    EXPECT_EQ(Bytes("uit.idx"), "van gisteren");
    EXPECT_EQ(folder.Listing(), "a.idx a.suf groot.nen uit.LOG uit.idx");
}

}  // namespace

}  // namespace korvande::testing
