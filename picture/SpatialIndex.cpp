#include "picture/SpatialIndex.h"

#include <algorithm>
#include <utility>

namespace korvande {

namespace {

// The place of a cell along the Hilbert curve that fills a square of 65,536 by 65,536 cells.
std::uint32_t AlongCurve(std::uint32_t x, std::uint32_t y) noexcept {
    std::uint32_t along = 0;
    for (std::uint32_t side = 1U << 15; side > 0; side /= 2) {
        const std::uint32_t right = (x & side) > 0 ? 1 : 0;
        const std::uint32_t upper = (y & side) > 0 ? 1 : 0;
        along += side * side * ((3 * right) ^ upper);
        if (upper != 0) continue;
        if (right == 1) {
            x = 0xFFFF - x;
            y = 0xFFFF - y;
        }
        std::swap(x, y);
    }
    return along;
}

// The cell of the middle of a box, in an extent that is 65,536 cells wide and high.
std::uint32_t CellOf(const PictureBox& extent, const PictureBox& box) noexcept {
    const auto part = [](std::int64_t least, std::int64_t most, std::int64_t from, std::int64_t to) {
        const std::int64_t size = std::max<std::int64_t>(most - least, 1);
        return static_cast<std::uint32_t>(
            std::clamp<std::int64_t>(((from + to) / 2 - least) * 0xFFFF / size, 0, 0xFFFF));
    };
    return AlongCurve(part(extent.minEast, extent.maxEast, box.minEast, box.maxEast),
                      part(extent.minNorth, extent.maxNorth, box.minNorth, box.maxNorth));
}

}  // namespace

PictureBox BoxOf(const DisplayList& list, PictureRef ref) noexcept {
    switch (ref.kind) {
        case PictureKind::Point:
            return BoxOf(list.points[ref.place]);
        case PictureKind::LineString:
            return BoxOf(list, list.lines[ref.place]);
        default:
            return BoxOf(list.texts[ref.place]);
    }
}

SpatialIndex::SpatialIndex(const DisplayList& list) {
    std::vector<std::uint64_t> order;  // the cell above the item
    order.reserve(list.points.size() + list.lines.size() + list.texts.size());
    const auto add = [&](PictureKind kind, std::size_t count) {
        for (std::uint32_t place = 0; place < count; ++place) {
            const PictureRef ref{kind, place};
            order.push_back(std::uint64_t{CellOf(list.extent, BoxOf(list, ref))} << 32 | Packed(ref));
        }
    };
    add(PictureKind::LineString, list.lines.size());
    add(PictureKind::Point, list.points.size());
    add(PictureKind::TextObject, list.texts.size());
    if (order.empty()) return;
    std::sort(order.begin(), order.end());
    items.reserve(order.size());
    for (const std::uint64_t item : order) items.push_back(static_cast<std::uint32_t>(item));
    order = {};

    std::size_t count = (items.size() + fanOut - 1) / fanOut;
    nodes.reserve(count + count / (fanOut - 1) + 8);
    levels.push_back(0);
    nodes.resize(count);
    for (std::size_t item = 0; item < items.size(); ++item) {
        nodes[item / fanOut].AddBox(BoxOf(list, Unpacked(items[item])));
    }
    while (count > 1) {
        const std::size_t below = levels.back();
        levels.push_back(nodes.size());
        nodes.resize(nodes.size() + (count + fanOut - 1) / fanOut);
        for (std::size_t child = 0; child < count; ++child) {
            nodes[levels.back() + child / fanOut].AddBox(PictureBox(nodes[below + child]));
        }
        count = (count + fanOut - 1) / fanOut;
    }
}

}  // namespace korvande
