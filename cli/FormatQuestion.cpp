#include "cli/FormatQuestion.h"

#include <cstdio>

#include "cli/ConsoleScreen.h"
#include "cli/Print.h"
#include "cli/Process.h"

namespace korvande {

namespace {

// Asks on the terminal until the answer is one; the end of the input and an interrupt cancel.
Answer AskOnTerminal(const MessageBox& box) {
    while (true) {
        PrintErrorLine(Concat(box.text, u" [j]a / [n]ee / [a]nnuleren"));
        if (!AwaitInput()) return Answer::Cancel;
        const int first = std::getchar();
        for (int c = first; c != '\n' && c != EOF;) c = std::getchar();
        switch (first) {
            case 'j':
            case 'J':
                return Answer::Yes;
            case 'n':
            case 'N':
                return Answer::No;
            case 'a':
            case 'A':
            case EOF:
                return Answer::Cancel;
            default:
                break;
        }
    }
}

}  // namespace

void AnswerQuestions(ConsoleScreen& screen, std::optional<Answer> fixed,
                     const std::function<void(const std::function<void()>&)>& alone) {
    screen.isInterrupted = IsInterrupted;
    screen.answerQuestion = [fixed, alone](const MessageBox& box) {
        Answer answer = fixed.value_or(Answer::Yes);
        if (!fixed && InputIsTerminal()) {
            alone([&] { answer = AskOnTerminal(box); });
            return answer;
        }
        const TextView word = answer == Answer::Yes ? u"ja" : answer == Answer::No ? u"nee" : u"annuleren";
        PrintErrorLine(Concat(box.text, u" ", word));
        return answer;
    };
}

}  // namespace korvande
