#pragma once

#include <memory>

#include "app/PreviewFrames.h"
#include "app/ReadPreview.h"

// What differs between an input and the output that was made of it, as it is shown over the two drawings.
namespace korvande {

// A mark for each difference of the comparison, in its order: where the object is, in the places of the input's
// picture; nowhere when it refers to nothing. What is missing or changed as it is in the input, what was added as it is
// in the output.
std::shared_ptr<const FrameMarks> MarksOf(const Preview& preview);

// Of each kind of difference, on white paper: red, orange and blue.
Colour ColourOf(DifferenceKind kind) noexcept;

// "3 weggelaten, 2 gewijzigd, 1 toegevoegd, 412 gelijk", or that nothing differs.
Text SummaryOf(const Comparison& comparison);

// What differs and why, in some lines.
Text TextOf(const Difference& difference);

// The next or the previous difference, beginning anew after the last one; nothing when there is none.
std::optional<std::size_t> NextDifference(const Comparison& comparison, const std::optional<std::size_t>& current,
                                          bool isForward) noexcept;

}  // namespace korvande
