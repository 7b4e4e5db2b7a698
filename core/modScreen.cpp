#include "core/modScreen.h"

#include <chrono>
#include <optional>
#include <utility>

#include "core/RuntimeError.h"

namespace korvande {

namespace {

class NoScreen : public Screen {
 public:
    void ShowStatus(TextView) override {}
    void ShowProgressMaximum(std::int64_t) override {}
    void ShowProgressValue(std::int64_t) override {}
    void PumpEvents() override {}
    void ShowBusy(bool) override {}
    Answer ShowMessage(const MessageBox& box) override {
        return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
    bool ViewTextFile(TextView) override { return false; }
    bool Print(const MakePages&) override { return false; }
};

NoScreen noScreen;
Screen* currentScreen = &noScreen;

using SteadyClock = std::chrono::steady_clock;
constexpr auto shownEvery = std::chrono::milliseconds(50);

// Records between two looks at the clock.
constexpr unsigned recordsPerLook = 16;
unsigned recordsSinceLook = 0;
SteadyClock::time_point lastShown;

// How far the step has come, until the screen has heard of it: a reader steps at every line and lets events run at
// every row, and whichever of the two the time falls on tells the screen.
std::optional<std::int64_t> valueToShow;

bool IsTimeToShow() {
    if (++recordsSinceLook < recordsPerLook) return false;
    recordsSinceLook = 0;
    const auto now = SteadyClock::now();
    if (now - lastShown < shownEvery) return false;
    lastShown = now;
    return true;
}

void TellScreen() {
    if (!IsTimeToShow()) return;
    if (const auto value = std::exchange(valueToShow, {})) TheScreen().ShowProgressValue(*value);
    TheScreen().PumpEvents();
}

}  // namespace

Screen& TheScreen() noexcept { return *currentScreen; }

ScreenInUse::ScreenInUse(Screen& screen) noexcept : previous(std::exchange(currentScreen, &screen)) {}

ScreenInUse::~ScreenInUse() { currentScreen = previous; }

void BeginProgress(std::int64_t maximum) {
    valueToShow.reset();
    TheScreen().ShowProgressMaximum(maximum);
    TheScreen().PumpEvents();
}

void StepProgress(std::int64_t value) {
    valueToShow = value;
    TellScreen();
}

void ProcessEvents() { TellScreen(); }

void ShowMessage(TextView text, Icon icon, TextView title) {
    TheScreen().ShowMessage({Text(text), Text(title), icon, Buttons::Ok});
}

bool AskRetry(TextView name, TextView verb) {
    const RuntimeError error = CurrentError();
    const Text text =
        Concat(u"Kon bestand: '", name, u"' niet ", verb, u";\nFoutcode: ", error.Number(), u"\n", error.Description());
    return TheScreen().ShowMessage({text, u"KORVANDE", Icon::None, Buttons::RetryCancel}) == Answer::Retry;
}

}  // namespace korvande
