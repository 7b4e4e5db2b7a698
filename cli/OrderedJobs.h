#pragma once

#include <cstddef>
#include <functional>

#include "core/Text.h"

namespace korvande {

class OrderedLines;

// Jobs of which some are done at the same time.
struct OrderedJobs {
    std::size_t jobs = 0;
    std::size_t workers = 1;
    TextView progress;  // what is being done, as "Vertalen"; empty: no progress is shown
};

// Does them as DoJobs does. What they print on the standard streams comes there in the order of the jobs, whatever the
// number of workers.
void DoInOrder(const OrderedJobs& all,
               const std::function<void(std::size_t job, std::size_t worker, OrderedLines& lines)>& work);

}  // namespace korvande
