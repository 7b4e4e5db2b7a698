#include "run/InputDrawing.h"

#include <gtest/gtest.h>

#include "tests/run/SampleRun.h"

namespace korvande::testing {

namespace {

TEST(InputDrawing, TheFormatIsFoundInTheContent) {
    SilentScreen screen;
    const TestFolder folder;
    for (const auto& [file, format] : {std::pair{"straat.idx", Format::Idex}, std::pair{"straat.sfn", Format::Nen1878},
                                       std::pair{"straat.sf2", Format::Suf2}}) {
        const Text name = folder.Write("tekening", SampleBytes(file));
        const FoundInput found = LookAtInput(screen, name);
        ASSERT_TRUE(found.input) << file;
        EXPECT_EQ(found.input->format, format) << file;
        // A file can be read again, so that its bytes are not kept.
        EXPECT_FALSE(found.input->bytes) << file;
        EXPECT_EQ(found.whyNot, u"") << file;
        Translation translation(screen);
        TakeInput(*found.input, name, translation);
        EXPECT_EQ(InputName(translation), name) << file;
        EXPECT_EQ(InputFormat(translation.mode), format) << file;
    }
}

TEST(InputDrawing, WhatIsNoDrawingIsTold) {
    SilentScreen screen;
    const TestFolder folder;
    const Text foreign = folder.Write("brief", "Geachte heer,\r\n");
    EXPECT_FALSE(LookAtInput(screen, foreign).input);
    EXPECT_EQ(LookAtInput(screen, foreign).whyNot, Concat(foreign, u": geen IDEX, NEN1878 of SUF2 bestand."));
    const FoundInput missing = LookAtInput(screen, folder / "weg");
    EXPECT_FALSE(missing.input);
    EXPECT_EQ(missing.whyNot,
              Concat(u"Kon bestand: '", folder / "weg", u"' niet openen;\nFoutcode: 53\nBestand niet gevonden"));
    EXPECT_FALSE(LookAtInput(screen, folder / "").input);
}

TEST(InputDrawing, OneInUtf16IsToldAsSuch) {
    using namespace std::string_view_literals;
    SilentScreen screen;
    const TestFolder folder;
    const Text name = folder.Write("tekening.idx", "\xFF\xFEH\0E\0A\0D\0E\0R\0"sv);
    const FoundInput found = LookAtInput(screen, name);
    EXPECT_FALSE(found.input);
    EXPECT_NE(found.whyNot.find(u"UTF-16"), Text::npos) << ToUtf8(found.whyNot);
}

}  // namespace

}  // namespace korvande::testing
