#include "cli/OrderedJobs.h"

#include <utility>

#include "cli/OrderedLines.h"
#include "cli/Print.h"
#include "cli/Workers.h"

namespace korvande {

void DoInOrder(const OrderedJobs& all,
               const std::function<void(std::size_t job, std::size_t worker, OrderedLines& lines)>& work) {
    OrderedLines lines(all.jobs, all.progress);
    DoJobs(all.jobs, all.workers, [&](std::size_t job, std::size_t worker) {
        {
            const PrintsElsewhere here(
                [&lines, job](std::FILE* stream, std::string line) { lines.Say(job, stream, std::move(line)); });
            work(job, worker, lines);
        }
        lines.Finish(job);
    });
}

}  // namespace korvande
