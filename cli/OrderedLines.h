#pragma once

#include <cstddef>
#include <cstdio>
#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "core/Text.h"

namespace korvande {

// What jobs that are done at the same time tell, in the order of the jobs: the first that is not finished speaks at
// once, what the others say is kept until it is their turn. On a terminal one progress line stands below it all. Safe
// on several threads.
class OrderedLines {
 public:
    // Of so many jobs; with what is being done, as "Vertalen:", or nothing when no progress is to be shown.
    OrderedLines(std::size_t count, TextView itsProgress);
    ~OrderedLines();
    OrderedLines(const OrderedLines&) = delete;
    OrderedLines& operator=(const OrderedLines&) = delete;

    // A line of a job, with its line feed, for standard output or standard error.
    void Say(std::size_t job, std::FILE* stream, std::string line);

    // A job says nothing more.
    void Finish(std::size_t job);

    // Does something that needs the terminal for itself, such as a question.
    void Alone(const std::function<void()>& action);

 private:
    struct Job {
        std::vector<std::pair<std::FILE*, std::string>> kept;
        bool isFinished = false;
    };

    void ShowProgress();
    void ClearProgress();

    std::mutex mutex;
    std::vector<Job> jobs;
    Text progress;
    std::size_t speaking = 0;  // the first that is not finished
    std::size_t finished = 0;
};

}  // namespace korvande
