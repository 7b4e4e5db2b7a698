#pragma once

#include <optional>
#include <string>

#include "core/Text.h"

namespace korvande {

// The manual, which is a page for a browser.

// The chapters, by the names that the page has for them.
inline constexpr TextView logBookChapter = u"logboek";
inline constexpr TextView previewChapter = u"voorbeeld";

// The chapter about one of the window's tabs; empty for the page's beginning.
TextView ManualChapter(int tab) noexcept;

// The page that belongs to a program in this folder: installed with it, or in the source tree that it was built in.
// Nothing when there is none.
std::optional<Text> FindManual(TextView programFolder);

// The address by which a browser knows a file.
std::string FileAddress(TextView name);

// A page that leads to a chapter of another one at once. A system that opens a file passes no chapter on.
std::string PageLeadingTo(TextView page, TextView chapter);

}  // namespace korvande
