#pragma once

#include <cstddef>
#include <mutex>
#include <optional>
#include <vector>

#include "translation/Problem.h"

namespace korvande {

// The problems of jobs that are done at the same time, added up in the order of the jobs. Safe on several threads.
class OrderedProblems {
 public:
    explicit OrderedProblems(std::size_t jobs) : waiting(jobs) {}

    // Takes those of a job, of each once.
    void Take(std::size_t job, Problems problems);

    // Of all jobs, when all were taken; else of the first ones until one that was not.
    const Problems& All() const noexcept { return all; }

 private:
    std::mutex mutex;
    std::vector<std::optional<Problems>> waiting;
    std::size_t next = 0;
    Problems all;
};

}  // namespace korvande
