#include "cli/Turns.h"

namespace korvande {

bool Turns::Await(std::size_t job) {
    std::unique_lock lock(mutex);
    changed.wait(lock, [this, job] { return isOver || next == job; });
    return !isOver;
}

void Turns::Pass(std::size_t job) {
    {
        const std::lock_guard lock(mutex);
        passed[job] = true;
        while (next < passed.size() && passed[next]) ++next;
    }
    changed.notify_all();
}

void Turns::End() {
    {
        const std::lock_guard lock(mutex);
        isOver = true;
    }
    changed.notify_all();
}

}  // namespace korvande
