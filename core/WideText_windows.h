#pragma once

#include "core/Text.h"

// Windows: its calls take and give texts of wchar_t, which has the size and the meaning of our characters.
namespace korvande {

inline std::wstring ToWide(TextView text) { return {text.begin(), text.end()}; }
inline Text FromWide(std::wstring_view text) { return {text.begin(), text.end()}; }

}  // namespace korvande
