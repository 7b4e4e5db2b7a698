#pragma once

#include "host/modRegistry.h"

// Platform: the registry calls of the system, or of what takes its place. Each returns 0 or the system's code and
// raises no error. Handles are the system's; which names they stand for is the caller's business.
namespace korvande::regcalls {

std::int32_t OpenKey(RegKey parent, TextView name, RegKey& key);
std::int32_t CreateKey(RegKey parent, TextView name, RegKey& key);
std::int32_t CloseKey(RegKey key);
std::int32_t EnumKey(RegKey key, std::uint32_t index, Text& name);
std::int32_t QueryValue(RegKey key, TextView name, RegValue& value);
std::int32_t SetTextValue(RegKey key, TextView name, TextView text);

}  // namespace korvande::regcalls
