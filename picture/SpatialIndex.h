#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "picture/DisplayList.h"

namespace korvande {

enum class PictureKind : std::uint8_t { Point, LineString, TextObject };

// Something in a display list: its place among the points, the line strings' parts or the texts.
struct PictureRef {
    PictureKind kind = PictureKind::Point;
    std::uint32_t place = 0;

    friend bool operator==(const PictureRef&, const PictureRef&) = default;
};

PictureBox BoxOf(const DisplayList& list, PictureRef ref) noexcept;

// Finds what lies in a rectangle: a packed R-tree, in which neighbours along a Hilbert curve share a leaf. It takes 4
// bytes for each point, text and part of a line string, and 16 for every sixteen of them; it holds for the display list
// that it was made of, as long as that does not change.
class SpatialIndex {
 public:
    SpatialIndex() = default;
    explicit SpatialIndex(const DisplayList& list);

    // Calls visit(PictureRef) for everything whose box overlaps this one.
    template <class Visit>
    void Find(const DisplayList& list, const PictureBox& box, Visit visit) const {
        if (nodes.empty()) return;
        // The way down, at most one node of each level with the nodes beside it that are to be looked at.
        std::array<Node, 8 * fanOut> open{};
        std::size_t count = 0;
        open[count++] = {levels.size() - 1, 0, false};
        while (count > 0) {
            Node node = open[--count];
            const PictureBox& nodeBox = nodes[levels[node.level] + node.place];
            if (!node.isInside && !nodeBox.Overlaps(box)) continue;
            // What is below a node that lies inside does so too.
            node.isInside = node.isInside || box.Holds(nodeBox);
            const std::size_t first = node.place * fanOut;
            const std::size_t below = node.level == 0 ? items.size() : levels[node.level] - levels[node.level - 1];
            const std::size_t end = first + fanOut < below ? first + fanOut : below;
            for (std::size_t child = first; child < end; ++child) {
                if (node.level > 0) {
                    open[count++] = {node.level - 1, child, node.isInside};
                } else if (node.isInside || BoxOf(list, Unpacked(items[child])).Overlaps(box)) {
                    visit(Unpacked(items[child]));
                }
            }
        }
    }

    std::size_t Bytes() const noexcept {
        return items.capacity() * sizeof(std::uint32_t) + nodes.capacity() * sizeof(PictureBox);
    }

 private:
    static constexpr std::size_t fanOut = 16;
    struct Node {
        std::size_t level;
        std::size_t place;
        bool isInside;  // the box that is searched
    };

    // Two bits for the kind, thirty for the place.
    static std::uint32_t Packed(PictureRef ref) noexcept {
        return static_cast<std::uint32_t>(ref.kind) << 30 | ref.place;
    }
    static PictureRef Unpacked(std::uint32_t item) noexcept {
        return {static_cast<PictureKind>(item >> 30), item & 0x3FFFFFFF};
    }

    std::vector<std::uint32_t> items;
    std::vector<PictureBox> nodes;    // level by level, the leaves first
    std::vector<std::size_t> levels;  // where each begins
};

}  // namespace korvande
