#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

#include "core/modScreen.h"
#include "picture/FramePixels.h"
#include "picture/MakeDisplayList.h"
#include "project/ControlTable.h"
#include "run/Steps.h"
#include "translation/Translation.h"

// Draws frames of a drawing along a walk over it, without a window: korvande-picture DRAWING.idx TABLE.nst. Prints how
// long the display list and its index took, what they hold, and the frames.
namespace korvande {

namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

void Walk(const Translation& translation, const DisplayList& list, const SpatialIndex& index, int width, int height) {
    constexpr int steps = 60;
    const std::atomic<bool> isStopped = false;
    PictureView view = Fitting(Resized({}, width, height), list.extent, 1000);
    std::vector<double> seconds;
    for (int step = 0; step < steps; ++step) {
        const auto start = Clock::now();
        MakeFrame({{&translation.drawing, &list, &index}}, {view}, isStopped);
        seconds.push_back(SecondsSince(start));
        // Closer, and to and fro.
        view = Zoomed(view, 1.1, width * 0.4, height * 0.6);
        view = Moved(view, 40 * std::sin(step), 25 * std::cos(step));
    }
    const double first = seconds.front();
    std::sort(seconds.begin(), seconds.end());
    std::printf("frames of %d x %d: all %.0f ms, median %.0f ms, slowest %.0f ms\n", width, height, first * 1e3,
                seconds[seconds.size() / 2] * 1e3, seconds.back() * 1e3);
}

int Measure(const char* drawing, const char* table) {
    SilentScreen screen;
    Project project;
    if (!LoadProjectFile(screen, project, FromUtf8(table))) return 1;
    Translation translation(screen, project);
    translation.mode = {Direction::FromIdex, Variant::Nen1878};
    translation.IdexFileName = FromUtf8(drawing);
    auto start = Clock::now();
    ReadDrawing(translation);
    const double reading = SecondsSince(start);
    start = Clock::now();
    const DisplayList list = MakeDisplayList(translation);
    const double listing = SecondsSince(start);
    start = Clock::now();
    const SpatialIndex index(list);
    std::printf("read %.2f s, list %.2f s, index %.2f s; %lld segments, %.1f bytes each with the index\n", reading,
                listing, SecondsSince(start), static_cast<long long>(list.segments),
                static_cast<double>(BytesOf(list) + index.Bytes()) /
                    static_cast<double>(std::max<std::int64_t>(list.segments, 1)));
    Walk(translation, list, index, 1200, 800);
    return 0;
}

}  // namespace

}  // namespace korvande

int main(int count, char** arguments) {
    if (count != 3) return 2;
    return korvande::Measure(arguments[1], arguments[2]);
}
