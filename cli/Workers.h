#pragma once

#include <cstddef>
#include <functional>

namespace korvande {

// How many jobs are done at a time when nobody says so: one a processor, and no more than there are.
std::size_t UsualWorkers(std::size_t jobs) noexcept;

// Does jobs 0 to `jobs` - 1, so many at a time, each worker taking the next one; one at a time they are done in their
// order, on the thread that asks. An error that escapes a job ends the work when the jobs under way are done, and is
// thrown then.
void DoJobs(std::size_t jobs, std::size_t workers,
            const std::function<void(std::size_t job, std::size_t worker)>& work);

}  // namespace korvande
