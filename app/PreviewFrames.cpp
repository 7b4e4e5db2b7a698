#include "app/PreviewFrames.h"

#include <utility>

namespace korvande {

PreviewFrames::PreviewFrames(std::vector<FrameSource> itsSources, std::function<void()> itsReady)
    : sources(std::move(itsSources)), onReady(std::move(itsReady)), thread([this] { Work(); }) {}

PreviewFrames::~PreviewFrames() {
    {
        const std::lock_guard guard(lock);
        isOver = true;
        isGivenUp = true;
    }
    changed.notify_one();
    thread.join();
}

void PreviewFrames::Ask(FrameOrder order) {
    constexpr auto longest = std::chrono::seconds(1);
    {
        const std::lock_guard guard(lock);
        asked = std::move(order);
        if (isMaking && std::chrono::steady_clock::now() - lastMade < longest) isGivenUp = true;
    }
    changed.notify_one();
}

std::optional<FramePixels> PreviewFrames::Take() {
    const std::lock_guard guard(lock);
    return std::exchange(made, std::nullopt);
}

bool PreviewFrames::IsIdle() const {
    const std::lock_guard guard(lock);
    return !asked && !made && !isMaking;
}

void PreviewFrames::Work() {
    std::unique_lock guard(lock);
    while (true) {
        changed.wait(guard, [this] { return asked || isOver; });
        if (isOver) return;
        const FrameOrder order = *std::exchange(asked, std::nullopt);
        isMaking = true;
        isGivenUp = false;
        guard.unlock();
        FramePixels frame = MakeFrame(sources, order, isGivenUp);
        guard.lock();
        isMaking = false;
        if (isGivenUp) continue;
        lastMade = std::chrono::steady_clock::now();
        made = std::move(frame);
        guard.unlock();
        onReady();
        guard.lock();
    }
}

}  // namespace korvande
