#include "cli/OrderedProblems.h"

#include <utility>

namespace korvande {

void OrderedProblems::Take(std::size_t job, Problems problems) {
    const std::lock_guard lock(mutex);
    waiting[job] = std::move(problems);
    for (; next < waiting.size() && waiting[next]; ++next) {
        all.AddAll(*waiting[next]);
        waiting[next].reset();
    }
}

}  // namespace korvande
