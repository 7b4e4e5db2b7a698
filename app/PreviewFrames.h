#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include "picture/FramePixels.h"

namespace korvande {

// Makes frames on a thread of its own. Of the orders that come while one is made only the newest counts, and that frame
// is given up for it; but once a second one is finished, so that there is something new to see while a picture moves.
class PreviewFrames {
 public:
    // What the sources point at must outlive it. `onReady` is called on that thread.
    PreviewFrames(std::vector<FrameSource> itsSources, std::function<void()> itsReady);
    PreviewFrames(const PreviewFrames&) = delete;
    PreviewFrames& operator=(const PreviewFrames&) = delete;
    ~PreviewFrames();

    void Ask(FrameOrder order);

    // The newest frame, once.
    std::optional<FramePixels> Take();

    // Whether every order has become a frame that was taken.
    bool IsIdle() const;

 private:
    void Work();

    std::vector<FrameSource> sources;
    std::function<void()> onReady;
    mutable std::mutex lock;  // of all below
    std::condition_variable changed;
    std::optional<FrameOrder> asked;
    std::optional<FramePixels> made;
    bool isMaking = false;
    bool isOver = false;
    std::chrono::steady_clock::time_point lastMade;
    std::atomic<bool> isGivenUp = false;  // the frame that is being made
    std::thread thread;
};

}  // namespace korvande
