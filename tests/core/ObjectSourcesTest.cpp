#include "core/ObjectSources.h"

#include <gtest/gtest.h>

namespace korvande::testing {

namespace {

ObjectSource SourceOf(std::string_view name) {
    ObjectSource source{};
    source.name.Assign(name);
    return source;
}

void Begin(ObjectSources& sources, int line, std::string_view name) {
    sources.Begin(line, sources.NumberOf(SourceOf(name)));
}

std::string NameAt(const ObjectSources& sources, std::int32_t line) {
    const ObjectSource& source = sources[sources.At(line)];
    return source.name.NeverFilled() ? "-" : std::string(source.name.Trimmed());
}

TEST(ObjectSources, ASourceHoldsFromItsLineUntilTheNextOne) {
    ObjectSources sources;
    Begin(sources, 6, "EEN");
    Begin(sources, 10, "TWEE");
    sources.Begin(14, 0);
    std::string names;
    for (const std::int32_t line : {0, 5, 6, 9, 10, 13, 14, 99}) names += NameAt(sources, line) + " ";
    EXPECT_EQ(names, "- - EEN EEN TWEE TWEE - - ");
}

TEST(ObjectSources, TheSameSourceAgainIsKeptOnce) {
    ObjectSources sources;
    for (int line = 1; line <= 40; line += 4) {
        Begin(sources, line, "EEN");
        Begin(sources, line + 2, "TWEE");
    }
    EXPECT_EQ(sources.Count(), 3U);
    EXPECT_EQ(NameAt(sources, 37), "EEN");
    EXPECT_EQ(NameAt(sources, 39), "TWEE");
}

TEST(ObjectSources, WhatIsToldLaterOfTheSameLineCounts) {
    ObjectSources sources;
    Begin(sources, 3, "EEN");
    Begin(sources, 3, "TWEE");
    EXPECT_EQ(NameAt(sources, 3), "TWEE");
}

TEST(ObjectSources, NothingIsLeftOfADrawingBefore) {
    ObjectSources sources;
    Begin(sources, 3, "EEN");
    sources.Reset();
    EXPECT_EQ(NameAt(sources, 3), "-");
    EXPECT_EQ(sources.Count(), 1U);
}

}  // namespace

}  // namespace korvande::testing
