#include "picture/ObjectMatching.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <tuple>

namespace korvande {

namespace {

using Places = std::vector<std::uint32_t>;

// What makes two objects at one place alike, from their code on to what they belong to: each of these begins with the
// next one, so that objects in the order of the first are in the order of all.
auto AlikeInAll(const ComparedObject& object) {
    return std::tie(object.shared, object.content, object.direction, object.centre, object.isReversed, object.detail);
}
auto AlikeInShape(const ComparedObject& object) {
    return std::tie(object.shared, object.content, object.direction, object.centre, object.isReversed);
}
auto AlikeInContent(const ComparedObject& object) { return std::tie(object.shared, object.content); }

// Objects in the order in which they are matched: by place, then by what makes them alike.
Places Sorted(const std::vector<ComparedObject>& objects) {
    Places order(objects.size());
    std::iota(order.begin(), order.end(), 0U);
    const auto key = [&objects](std::uint32_t place) {
        const ComparedObject& object = objects[place];
        return std::tuple_cat(std::tie(object.place), AlikeInAll(object));
    };
    std::sort(order.begin(), order.end(), [&key](std::uint32_t a, std::uint32_t b) {
        const auto order1 = key(a);
        const auto order2 = key(b);
        return order1 != order2 ? order1 < order2 : a < b;
    });
    return order;
}

class Matcher {
 public:
    Matcher(const std::vector<ComparedObject>& itsFirst, const std::vector<ComparedObject>& itsSecond)
        : first(itsFirst), second(itsSecond) {}

    std::vector<ObjectMatch> Match(OtherCode otherCode) {
        const Places order1 = Sorted(first);
        const Places order2 = Sorted(second);
        std::size_t at1 = 0;
        std::size_t at2 = 0;
        while (at1 < order1.size() || at2 < order2.size()) {
            const ComparedPlace place =
                at2 == order2.size() ||
                        (at1 < order1.size() && PlaceOf(first, order1[at1]) < PlaceOf(second, order2[at2]))
                    ? PlaceOf(first, order1[at1])
                    : PlaceOf(second, order2[at2]);
            TakeGroup(first, order1, at1, place, left1);
            TakeGroup(second, order2, at2, place, left2);
            MatchGroup(otherCode);
        }
        return std::move(matches);
    }

 private:
    static const ComparedPlace& PlaceOf(const std::vector<ComparedObject>& objects, std::uint32_t place) {
        return objects[place].place;
    }

    static void TakeGroup(const std::vector<ComparedObject>& objects, const Places& order, std::size_t& at,
                          const ComparedPlace& place, Places& group) {
        group.clear();
        while (at < order.size() && objects[order[at]].place == place) group.push_back(order[at++]);
    }

    void MatchGroup(OtherCode otherCode) {
        MatchEqual(AlikeInAll);
        MatchEqual(AlikeInShape);
        MatchEqual(AlikeInContent);
        MatchEqual([](const ComparedObject& object) { return std::tie(object.shared); });
        if (otherCode == OtherCode::SameContent) {
            SortBy([](const ComparedObject& object) { return std::tie(object.content, object.shared); });
            MatchEqual([](const ComparedObject& object) { return std::tie(object.content); });
            if (left1.size() == 1 && left2.size() == 1)
                MatchEqual([](const ComparedObject&) { return std::tuple<>(); });
        } else if (otherCode == OtherCode::Any) {
            MatchEqual([](const ComparedObject&) { return std::tuple<>(); });
        }
        for (const std::uint32_t place : left1) matches.push_back({place, noObject});
        for (const std::uint32_t place : left2) matches.push_back({noObject, place});
    }

    template <class Key>
    void SortBy(Key key) {
        const auto sort = [&key](const std::vector<ComparedObject>& objects, Places& places) {
            std::stable_sort(places.begin(), places.end(),
                             [&](std::uint32_t a, std::uint32_t b) { return key(objects[a]) < key(objects[b]); });
        };
        sort(first, left1);
        sort(second, left2);
    }

    // Matches those that are left and equal in this, by which both stand in order.
    template <class Key>
    void MatchEqual(Key key) {
        if (left1.empty() || left2.empty()) return;
        rest1.clear();
        rest2.clear();
        std::size_t at1 = 0;
        std::size_t at2 = 0;
        while (at1 < left1.size() && at2 < left2.size()) {
            const ComparedObject& object1 = first[left1[at1]];
            const ComparedObject& object2 = second[left2[at2]];
            if (key(object1) == key(object2)) {
                matches.push_back({left1[at1++], left2[at2++]});
            } else if (key(object1) < key(object2)) {
                rest1.push_back(left1[at1++]);
            } else {
                rest2.push_back(left2[at2++]);
            }
        }
        rest1.insert(rest1.end(), left1.begin() + static_cast<std::ptrdiff_t>(at1), left1.end());
        rest2.insert(rest2.end(), left2.begin() + static_cast<std::ptrdiff_t>(at2), left2.end());
        left1.swap(rest1);
        left2.swap(rest2);
    }

    const std::vector<ComparedObject>& first;
    const std::vector<ComparedObject>& second;
    std::vector<ObjectMatch> matches;
    Places left1;  // of the group at one place, not yet matched
    Places left2;
    Places rest1;
    Places rest2;
};

}  // namespace

std::vector<ObjectMatch> MatchObjects(const std::vector<ComparedObject>& first,
                                      const std::vector<ComparedObject>& second, OtherCode otherCode) {
    return Matcher(first, second).Match(otherCode);
}

}  // namespace korvande
