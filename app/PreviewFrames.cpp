#include "app/PreviewFrames.h"

#include <utility>

namespace korvande {

PreviewFrames::PreviewFrames(std::vector<FrameSource> itsSources, std::function<void()> itsReady)
    : sources(std::move(itsSources)), onReady(std::move(itsReady)), thread([this] { Work(); }) {}

PreviewFrames::~PreviewFrames() {
    {
        const std::lock_guard guard(lock);
        isStopped = true;
    }
    changed.notify_one();
    thread.join();
}

void PreviewFrames::Ask(FrameOrder order) {
    {
        const std::lock_guard guard(lock);
        asked = std::move(order);
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
    while (true) {
        std::unique_lock guard(lock);
        changed.wait(guard, [this] { return asked || isStopped; });
        if (isStopped) return;
        const FrameOrder order = *std::exchange(asked, std::nullopt);
        isMaking = true;
        guard.unlock();
        FramePixels frame = MakeFrame(sources, order, isStopped);
        guard.lock();
        isMaking = false;
        if (isStopped) return;
        made = std::move(frame);
        guard.unlock();
        onReady();
    }
}

}  // namespace korvande
