#include "cli/OrderedLines.h"

#include "cli/ConsoleScreen.h"
#include "core/ConsoleText.h"

namespace korvande {

OrderedLines::OrderedLines(std::size_t count, TextView itsProgress) : jobs(count), progress(itsProgress) {
    ShowProgress();
}

OrderedLines::~OrderedLines() { ClearProgress(); }

void OrderedLines::Say(std::size_t job, std::FILE* stream, std::string line) {
    const std::lock_guard lock(mutex);
    if (job != speaking) {
        jobs[job].kept.emplace_back(stream, std::move(line));
        return;
    }
    ClearProgress();
    PutText(stream, line);
    ShowProgress();
}

void OrderedLines::Finish(std::size_t job) {
    const std::lock_guard lock(mutex);
    jobs[job].isFinished = true;
    ++finished;
    ClearProgress();
    // The one behind them may be under way; from here on it speaks for itself.
    while (speaking < jobs.size()) {
        for (const auto& [stream, line] : std::exchange(jobs[speaking].kept, {})) PutText(stream, line);
        if (!jobs[speaking].isFinished) break;
        ++speaking;
    }
    std::fflush(stdout);
    ShowProgress();
}

void OrderedLines::Alone(const std::function<void()>& action) {
    const std::lock_guard lock(mutex);
    ClearProgress();
    action();
    ShowProgress();
}

void OrderedLines::ShowProgress() {
    if (progress.empty()) return;
    PutText(stderr, ForTerminal(Concat(progress, u" ", finished, u" van ", jobs.size())) + " " +
                        ProgressBar(static_cast<std::int64_t>(finished), static_cast<std::int64_t>(jobs.size())));
}

void OrderedLines::ClearProgress() {
    if (!progress.empty()) PutText(stderr, "\r\x1B[K");
}

}  // namespace korvande
