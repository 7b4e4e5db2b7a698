#include "ui/DutchTexts.h"

#include <gtest/gtest.h>
#include <wx/init.h>
#include <wx/translation.h>

namespace korvande::testing {

namespace {

TEST(DutchTextsTest, WhatTheLibrarySaysWhileItPrintsIsDutch) {
    const wxInitializer library;
    ASSERT_TRUE(library.IsOk());
    SpeakDutch();
    EXPECT_EQ(wxGetTranslation("Printing").utf8_string(), "Bezig met afdrukken");
    EXPECT_EQ(wxGetTranslation("Please wait while printing...").utf8_string(),
              "Een ogenblik geduld. Bezig met printen...");
    wxTranslations::Set(nullptr);
}

}  // namespace

}  // namespace korvande::testing
