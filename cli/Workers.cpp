#include "cli/Workers.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace korvande {

namespace {

class Work {
 public:
    Work(std::size_t itsJobs, const std::function<void(std::size_t, std::size_t)>& itsWork)
        : jobs(itsJobs), work(itsWork) {}

    void DoAs(std::size_t worker) noexcept {
        try {
            for (std::size_t job = next++; job < jobs && !isOver; job = next++) work(job, worker);
        } catch (...) {
            const std::lock_guard lock(mutex);
            isOver = true;
            if (!error) error = std::current_exception();
        }
    }

    void ThrowError() const {
        if (error) std::rethrow_exception(error);
    }

 private:
    const std::size_t jobs;
    const std::function<void(std::size_t, std::size_t)>& work;
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> isOver = false;
    std::mutex mutex;
    std::exception_ptr error;
};

}  // namespace

std::size_t UsualWorkers(std::size_t jobs) noexcept {
    return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, std::max<std::size_t>(jobs, 1));
}

void DoJobs(std::size_t jobs, std::size_t workers, const std::function<void(std::size_t, std::size_t)>& work) {
    Work all(jobs, work);
    std::vector<std::jthread> others;
    try {
        for (std::size_t worker = 1; worker < std::min(workers, jobs); ++worker) {
            others.emplace_back([&all, worker] { all.DoAs(worker); });
        }
    } catch (const std::system_error&) {
        // The system has no more threads; those that are there do the work.
    }
    all.DoAs(0);
    others.clear();
    all.ThrowError();
}

}  // namespace korvande
