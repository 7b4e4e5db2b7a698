#include "core/modScreen.h"

#include <algorithm>
#include <utility>

#include "core/RuntimeError.h"

namespace korvande {

namespace {

// The clock costs as much as a record does: it is looked at no more often than progress needs.
void ChoosePace(ProgressPace& pace, std::chrono::steady_clock::time_point before,
                std::chrono::steady_clock::time_point now) noexcept {
    constexpr unsigned most = 256;
    constexpr auto often = std::chrono::milliseconds(2);
    pace.recordsPerLook =
        now - before < often ? std::min(2 * pace.recordsPerLook, most) : std::max(pace.recordsPerLook / 2, 1U);
}

// A window that takes its time to paint what has changed gets at most a fortieth of the run's, and still hears often
// enough of a person who wants to stop.
std::chrono::steady_clock::duration PauseAfter(std::chrono::steady_clock::duration taken) noexcept {
    using std::chrono::milliseconds;
    return std::clamp<std::chrono::steady_clock::duration>(40 * taken, milliseconds(50), milliseconds(250));
}

}  // namespace

void BeginProgress(Screen& screen, std::int64_t maximum) {
    screen.pace.hasValue = false;
    screen.ShowProgressMaximum(maximum);
    screen.PumpEvents();
}

void TellProgress(Screen& screen) {
    ProgressPace& pace = screen.pace;
    pace.recordsSinceLook = 0;
    const auto now = std::chrono::steady_clock::now();
    ChoosePace(pace, std::exchange(pace.lastLook, now), now);
    if (now - pace.lastShown < pace.pause) return;
    pace.lastShown = now;
    if (std::exchange(pace.hasValue, false)) screen.ShowProgressValue(pace.value);
    screen.PumpEvents();
    pace.pause = PauseAfter(std::chrono::steady_clock::now() - now);
}

void ShowMessage(Screen& screen, TextView text, Icon icon, TextView title) {
    screen.ShowMessage({Text(text), Text(title), icon, Buttons::Ok});
}

bool AskRetry(Screen& screen, TextView name, TextView verb) {
    const RuntimeError error = CurrentError();
    const Text text =
        Concat(u"Kon bestand: '", name, u"' niet ", verb, u";\nFoutcode: ", error.Number(), u"\n", error.Description());
    return screen.ShowMessage({text, u"KORVANDE", Icon::None, Buttons::RetryCancel}) == Answer::Retry;
}

}  // namespace korvande
