#pragma once

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <vector>

namespace korvande {

// What jobs that are done at the same time do one after the other, in their order. Safe on several threads.
class Turns {
 public:
    explicit Turns(std::size_t jobs) : passed(jobs) {}

    // Waits until all jobs before this one have passed; false when the work is over.
    bool Await(std::size_t job);

    // A job has had its turn, or needs none.
    void Pass(std::size_t job);

    // Nobody gets a turn any more.
    void End();

 private:
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<bool> passed;
    std::size_t next = 0;
    bool isOver = false;
};

}  // namespace korvande
