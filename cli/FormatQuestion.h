#pragma once

#include <functional>
#include <optional>

#include "core/modScreen.h"

namespace korvande {

class ConsoleScreen;

// Has a screen answer the questions about the format of a drawing: with an answer that was given beforehand, which is
// told behind the question; on a terminal by asking, which `alone` does when nobody else does; elsewhere with "ja". And
// has it end the run when an interrupt came.
void AnswerQuestions(ConsoleScreen& screen, std::optional<Answer> fixed,
                     const std::function<void(const std::function<void()>&)>& alone);

}  // namespace korvande
