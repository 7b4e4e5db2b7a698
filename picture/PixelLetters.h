#pragma once

#include <memory>

#include "picture/PixelView.h"
#include "picture/Pixels.h"

namespace korvande {

// Writes the texts of a picture on pixels, with what the system writes with. The pixels must outlive it. It is made
// ready when the first text is written.
class PixelLetters {
 public:
    PixelLetters(Pixels& itsPixels, const PixelView& itsView);
    PixelLetters(const PixelLetters&) = delete;
    PixelLetters& operator=(const PixelLetters&) = delete;
    ~PixelLetters();

    void Write(const PictureText& text, TextView characters, Colour colour);

 private:
    struct Tools;

    Pixels& pixels;
    PixelView view;
    std::unique_ptr<Tools> tools;
};

}  // namespace korvande
