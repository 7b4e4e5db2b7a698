#include "tests/gui/Waiting.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/stopwatch.h>

namespace korvande::testing {

bool WaitUntil(const std::string& what, const std::function<bool()>& condition) {
    constexpr long limit = 20000;  // milliseconds
    const wxStopWatch watch;
    while (!condition()) {
        if (watch.Time() > limit) {
            ADD_FAILURE() << "awaited in vain: " << what;
            return false;
        }
        LetEventsRun();
        wxMilliSleep(1);
    }
    return true;
}

void LetEventsRun() {
    wxEventLoopBase& loop = *wxEventLoopBase::GetActive();
    while (loop.Pending()) loop.Dispatch();
    loop.ProcessIdle();
    wxTheApp->ProcessPendingEvents();
}

}  // namespace korvande::testing
