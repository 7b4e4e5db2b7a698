#pragma once

#include <array>
#include <memory>

#include "app/ReadPreview.h"
#include "picture/FramePixels.h"

// What differs between an input and the output that was made of it, as it is shown over the two drawings.
namespace korvande {

// A mark for each difference of the comparison, in its order: where the object is, in the places of the input's
// picture; nowhere when it refers to nothing. What is missing or changed as it is in the input, what was added as it is
// in the output. Line strings that were only split are marked less loudly than what was changed.
FrameMarks MarksOf(const Preview& preview);

// Of each kind of difference, on white paper: red, orange and blue.
Colour ColourOf(DifferenceKind kind) noexcept;

// "3 ontbreken, 2 gewijzigd, 1 toegevoegd, 412 gelijk", or that nothing differs.
Text SummaryOf(const Comparison& comparison);

// What differs and why, in some lines.
Text TextOf(const Difference& difference);

inline constexpr std::size_t differenceKinds = 3;

// The differences as a list shows them: what is missing first, then what was changed, then what was added, and last of
// all line strings that were only split; and which of these are to be seen.
class PreviewDifferences {
 public:
    PreviewDifferences() = default;
    explicit PreviewDifferences(const Comparison& itsComparison);

    std::size_t Count() const noexcept { return rows.size(); }
    const Difference& At(std::size_t row) const { return comparison->differences[rows[row]]; }

    // Its place in the comparison.
    std::size_t PlaceOf(std::size_t row) const noexcept { return rows[row]; }

    std::size_t CountOf(DifferenceKind kind) const noexcept { return counts[static_cast<std::size_t>(kind)]; }
    void Show(DifferenceKind kind, bool isShown);

    // The next row or the previous one, beginning anew at the end; nothing when there is none.
    std::optional<std::size_t> Next(const std::optional<std::size_t>& row, bool isForward) const noexcept;

    // Of the marks of the comparison those that are to be seen, the missing ones over the others.
    std::shared_ptr<const FrameMarks> Shown(const FrameMarks& marks) const;

 private:
    void List();

    const Comparison* comparison = nullptr;
    std::vector<std::size_t> rows;
    std::array<std::size_t, differenceKinds> counts{};
    std::array<bool, differenceKinds> isHidden{};
};

}  // namespace korvande
