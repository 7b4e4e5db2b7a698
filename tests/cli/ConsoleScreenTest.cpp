#include "cli/ConsoleScreen.h"

#include <gtest/gtest.h>

#include "core/RuntimeError.h"

namespace korvande::testing {

namespace {

// What an action writes to standard error.
template <class Action>
std::string ErrorOutputOf(Action action) {
    ::testing::internal::CaptureStderr();
    action();
    return ::testing::internal::GetCapturedStderr();
}

TEST(ForTerminal, OrdinaryTextIsUtf8) { EXPECT_EQ(ForTerminal(u"Regel 1\nRegel é €"), "Regel 1\nRegel é €"); }

TEST(ForTerminal, ControlCharactersAreMadeHarmless) {
    EXPECT_EQ(ForTerminal(u"a\u001B[31mb"), "a?[31mb");
    EXPECT_EQ(ForTerminal(u"a\u009B31mb"), "a?31mb");
    EXPECT_EQ(ForTerminal(u"\u0007\u0008\t\u007F\u0080\u009F"), "??????");
    EXPECT_EQ(ForTerminal(TextView(u"a\0b", 3)), "a?b");
}

TEST(ForTerminal, BytesThatAreNoUtf8AreMadeHarmless) {
    EXPECT_EQ(ForTerminal(FromUtf8("a\x9B"
                                   "31m")),
              "a?31m");
    // Two broken halves that would make a control character together.
    EXPECT_EQ(ForTerminal(FromUtf8("\xC2") + FromUtf8("\x9B")), "??");
}

TEST(ForTerminal, EveryLineEndIsALineFeed) { EXPECT_EQ(ForTerminal(u"a\rb\r\nc\nd"), "a\nb\nc\nd"); }

TEST(ConsoleScreen, AMessageIsWrittenAndItsOkButtonPressed) {
    ConsoleScreen screen(false);
    Answer answer = Answer::Cancel;
    const std::string output = ErrorOutputOf([&] {
        answer = screen.ShowMessage({u"Klaar\u001B[2J", u"T", Icon::None, Buttons::Ok});
    });
    EXPECT_EQ(output, "Klaar?[2J\n");
    EXPECT_EQ(answer, Answer::Ok);
}

TEST(ConsoleScreen, WhatCanBeCancelledIsCancelled) {
    ConsoleScreen screen(false);
    for (const Buttons buttons : {Buttons::OkCancel, Buttons::RetryCancel, Buttons::YesNoCancel}) {
        const std::string output = ErrorOutputOf([&] {
            EXPECT_EQ(screen.ShowMessage({u"Opnieuw?", u"", Icon::None, buttons}), Answer::Cancel);
        });
        EXPECT_EQ(output, "Opnieuw?\n");
    }
}

TEST(ConsoleScreen, AQuestionIsAnsweredByItsAnswerer) {
    ConsoleScreen screen(false);
    screen.answerQuestion = [](const MessageBox& box) { return box.text == u"SUF2?" ? Answer::No : Answer::Yes; };
    EXPECT_EQ(screen.ShowMessage({u"SUF2?", u"", Icon::Question, Buttons::YesNoCancel}), Answer::No);
    EXPECT_EQ(screen.ShowMessage({u"NEN?", u"", Icon::Question, Buttons::YesNoCancel}), Answer::Yes);
}

TEST(ConsoleScreen, ProgressIsOneLineThatIsTakenAwayAgain) {
    const std::string output = ErrorOutputOf([] {
        ConsoleScreen screen(true);
        screen.ShowStatus(u"Inlezen");
        screen.ShowProgressMaximum(200);
        screen.ShowProgressValue(100);
        screen.ShowMessage({u"Let op", u"", Icon::None, Buttons::Ok});
        screen.ShowProgressValue(500);
    });
    const std::string clear = "\r\x1B[K";
    const std::string empty(30, '.');
    EXPECT_EQ(output, clear + "Inlezen [" + empty + "] 0%" +                                             //
                          clear + "Inlezen [" + empty + "] 0%" +                                         //
                          clear + "Inlezen [" + std::string(15, '#') + std::string(15, '.') + "] 50%" +  //
                          clear + "Let op\n" +                                                           //
                          clear + "Inlezen [" + std::string(30, '#') + "] 100%" +                        //
                          clear);
}

TEST(ConsoleScreen, ValuesOutsideTheBarStayOnIt) {
    const std::string output = ErrorOutputOf([] {
        ConsoleScreen screen(true);
        screen.ShowProgressMaximum(0);
        screen.ShowProgressValue(-5);
    });
    EXPECT_EQ(output.find("100%"), std::string::npos);
    EXPECT_NE(output.find("] 0%"), std::string::npos);
}

TEST(ConsoleScreen, WithoutProgressNothingIsDrawn) {
    const std::string output = ErrorOutputOf([] {
        ConsoleScreen screen(false);
        screen.ShowStatus(u"Inlezen");
        screen.ShowProgressMaximum(10);
        screen.ShowProgressValue(5);
        screen.ClearProgress();
    });
    EXPECT_EQ(output, "");
}

TEST(ConsoleScreen, AnInterruptEndsTheRun) {
    ConsoleScreen screen(false);
    EXPECT_NO_THROW(screen.PumpEvents());
    bool interrupted = false;
    screen.isInterrupted = [&] { return interrupted; };
    EXPECT_NO_THROW(screen.PumpEvents());
    interrupted = true;
    EXPECT_THROW(screen.PumpEvents(), TranslationAborted);
}

TEST(ConsoleScreen, ThereIsNoViewer) {
    ConsoleScreen screen(false);
    EXPECT_FALSE(screen.ViewTextFile(u"x.log"));
}

}  // namespace

}  // namespace korvande::testing
