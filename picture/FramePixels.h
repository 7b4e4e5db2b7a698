#pragma once

#include <atomic>
#include <memory>

#include "picture/Outline.h"
#include "picture/PictureView.h"
#include "picture/PixelCanvas.h"

namespace korvande {

// A drawing that frames are made of.
struct FrameSource {
    const Drawing* drawing = nullptr;
    const DisplayList* list = nullptr;
    const SpatialIndex* index = nullptr;
};

// What they cover together, in the first one's places.
PictureBox ExtentOf(const std::vector<FrameSource>& sources) noexcept;

// Something that lies over the drawing, in the places of the first source.
struct FrameMark {
    PictureBox box;
    Outline outline;
    Colour colour = 0;
    double width = 2.5;  // of a line of the drawing
    TextView name{};     // of its kind
};
using FrameMarks = std::vector<FrameMark>;

// Places of the first source are those of the view; others have an origin of their own.
struct FrameOrder {
    PictureView view;
    PixelLook look{};
    std::vector<bool> isHidden{};  // for each code
    std::shared_ptr<const FrameMarks> marks{};
};

struct FramePixels {
    PictureView view;
    Pixels pixels;
};

// Draws what an order asks for.
FramePixels MakeFrame(const std::vector<FrameSource>& sources, const FrameOrder& order,
                      const std::atomic<bool>& isStopped);

}  // namespace korvande
