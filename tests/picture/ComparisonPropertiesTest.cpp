#include <algorithm>
#include <map>
#include <sstream>

#include "tests/picture/ComparisonTest.h"
#include "tests/run/RandomDrawing.h"

namespace korvande::testing {

namespace {

// One difference, planted in a drawing; empty when this drawing has no place for it.
class Planter {
 public:
    Planter(RandomDrawing& itsDrawing, unsigned seed) : drawing(itsDrawing), chance(seed) {}

    // What is to be told of it: the beginning of the only line, or of both.
    std::vector<std::string> Plant(int kind) {
        switch (kind) {
            case 0:
                return OfPoint("changed ", [](RandomDrawing::Point& point) { point.name = "ANDERS"; });
            case 1:
                return OfPoint("changed ", [](RandomDrawing::Point& point) { point.height += 10; });
            case 2:
                return OfPoint(
                    "changed point ", [](RandomDrawing::Point& point) { point.code = "ANDERE"; }, true);
            case 3:
                return WithoutEdge();
            case 4:
                return OfEdge("changed segment ", [](RandomDrawing::Edge& edge) { edge.type = "ZIGZAG"; });
            case 5:
                return OfLabel("changed text ", [](RandomDrawing::Label& label) { label.text += "!"; });
            case 6:
                return OfLabel("changed text ", [](RandomDrawing::Label& label) {
                    label.direction = (label.direction + 150) % 400'000;
                });
            case 7:
                return WithoutLabel();
            case 8:
                return AddedPoint();
            default:
                return MovedPoint();
        }
    }

 private:
    bool IsUsed(std::size_t place) const {
        const auto isEnd = [place](const auto& edge) { return edge.start == place || edge.end == place; };
        const auto hangs = [place](const auto& label) { return label.anchor == place; };
        return std::any_of(drawing.edges.begin(), drawing.edges.end(), isEnd) ||
               std::any_of(drawing.labels.begin(), drawing.labels.end(), hangs);
    }

    // Whether it is an object whatever refers to it.
    bool IsWritten(std::size_t place) const {
        for (const RandomCode& code : PointCodesOfTable()) {
            if (code.liscad == drawing.points[place].code) return code.type != "DUMMY" && code.type != "GRENS";
        }
        return true;
    }

    template <class Change>
    std::vector<std::string> OfPoint(const std::string& told, Change change, bool isWritten = false) {
        const std::size_t place = chance.Below(drawing.points.size());
        if (isWritten && !IsWritten(place)) return {};
        change(drawing.points[place]);
        return {told};
    }

    std::vector<std::string> MovedPoint() {
        const std::size_t place = chance.Below(drawing.points.size());
        if (IsUsed(place)) return {};
        drawing.points[place].east += drawing.points[place].east < 0 ? 10 : -10;
        return {"missing point ", "added point "};
    }

    std::vector<std::string> AddedPoint() {
        RandomDrawing::Point point = drawing.points[chance.Below(drawing.points.size())];
        point.number = drawing.points.back().number + 1;
        drawing.points.push_back(point);
        return {"added point "};
    }

    std::vector<std::string> WithoutLabel() {
        if (drawing.labels.empty()) return {};
        const std::size_t place = chance.Below(drawing.labels.size());
        if (!IsWritten(drawing.labels[place].anchor)) return {};
        drawing.labels.erase(drawing.labels.begin() + static_cast<std::ptrdiff_t>(place));
        return {"missing text "};
    }

    template <class Change>
    std::vector<std::string> OfEdge(const std::string& told, Change change) {
        if (drawing.edges.empty()) return {};
        change(drawing.edges[chance.Below(drawing.edges.size())]);
        return {told};
    }

    std::vector<std::string> WithoutEdge() {
        if (drawing.edges.empty()) return {};
        const std::size_t place = chance.Below(drawing.edges.size());
        const auto edge = drawing.edges[place];
        const auto isSibling = [&edge](const auto& other) { return other.line == edge.line; };
        const auto siblings = std::count_if(drawing.edges.begin(), drawing.edges.end(), isSibling);
        if (siblings < 2 || !IsWritten(edge.start) || !IsWritten(edge.end)) return {};
        drawing.edges.erase(drawing.edges.begin() + static_cast<std::ptrdiff_t>(place));
        return {"missing segment "};
    }

    template <class Change>
    std::vector<std::string> OfLabel(const std::string& told, Change change) {
        if (drawing.labels.empty()) return {};
        RandomDrawing::Label& label = drawing.labels[chance.Below(drawing.labels.size())];
        if (label.text.size() >= 47) return {};
        change(label);
        return {told};
    }

    RandomDrawing& drawing;
    Chance chance;
};

// The same drawing with other numbers, in another order.
RandomDrawing Shuffled(RandomDrawing drawing, unsigned seed) {
    Chance chance(seed);
    const auto orderOf = [&chance](std::size_t count) {
        std::vector<std::size_t> order(count);
        for (std::size_t i = 0; i < count; ++i) order[i] = i;
        for (std::size_t i = count; i > 1; --i) std::swap(order[i - 1], order[chance.Below(i)]);
        return order;
    };
    const std::vector<std::size_t> places = orderOf(drawing.points.size());
    auto points = drawing.points;
    for (std::size_t i = 0; i < places.size(); ++i) {
        points[places[i]] = drawing.points[i];
        points[places[i]].number = static_cast<std::int32_t>(places[i] + 1);
    }
    drawing.points = points;
    const std::vector<std::size_t> lineNumbers = orderOf(drawing.lines.size());
    std::map<std::int32_t, std::int32_t> numbers;
    for (std::size_t i = 0; i < drawing.lines.size(); ++i) {
        std::int32_t& number = drawing.lines[i].number;
        numbers[number] = static_cast<std::int32_t>(lineNumbers[i] + 1);
        number = numbers[number];
    }
    for (auto& edge : drawing.edges) {
        edge = {numbers.at(edge.line), places[edge.start], places[edge.end], edge.type};
    }
    std::stable_sort(drawing.edges.begin(), drawing.edges.end(),
                     [](const auto& one, const auto& other) { return one.line < other.line; });
    const std::vector<std::size_t> labels = orderOf(drawing.labels.size());
    const auto before = drawing.labels;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        drawing.labels[i] = before[labels[i]];
        drawing.labels[i].anchor = places[drawing.labels[i].anchor];
    }
    return drawing;
}

TEST_F(Comparisons, ADrawingEqualsItselfInAnyOrderAndWithAnyNumbers) {
    LoadProjectBytes(screen, project, RandomTable());
    options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Windows1252)];
    for (unsigned seed = 1; seed <= 200; ++seed) {
        const RandomDrawing original(seed);
        const std::string other = Shuffled(original, seed).AsIdex();
        ASSERT_NE(original.AsIdex(), other);
        EXPECT_EQ(AllTold(Compared(idexToNen, original.AsIdex(), idexToNen, other)), "") << "seed " << seed;
    }
}

TEST_F(Comparisons, OnePlantedDifferenceIsFoundAndNothingElse) {
    LoadProjectBytes(screen, project, RandomTable());
    options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Windows1252)];
    int planted = 0;
    for (unsigned seed = 1; seed <= 500; ++seed) {
        const RandomDrawing original(seed);
        RandomDrawing changed = original;
        const std::vector<std::string> expected = Planter(changed, seed).Plant(static_cast<int>(seed % 10));
        const std::string before = original.AsIdex();
        const std::string after = changed.AsIdex();
        if (expected.empty()) continue;
        ++planted;
        const std::string found = AllTold(Compared(idexToNen, before, idexToNen, after));
        std::istringstream in(found);
        std::string line;
        std::size_t count = 0;
        while (std::getline(in, line)) {
            ASSERT_LT(count, expected.size()) << "seed " << seed << "\n" << found;
            EXPECT_TRUE(line.starts_with(expected[count++])) << "seed " << seed << "\n" << found;
        }
        EXPECT_EQ(count, expected.size()) << "seed " << seed << "\n" << found;
        EXPECT_TRUE(Compared(idexToNen, after, idexToNen, after).AreEqual()) << "seed " << seed;
    }
    EXPECT_GT(planted, 250);
}

}  // namespace

}  // namespace korvande::testing
