#pragma once

#include <string_view>

#include "core/Text.h"

namespace korvande {

struct Options;
struct OwnerRec;

// The record into the owner boxes, without trailing blanks, and the boxes back into the record.
void ShowOwner(const OwnerRec& owner, Options& options);
void TakeOwner(const Options& options, OwnerRec& owner);

// Windows-1252 bytes into the field that a box shows.
void TakeOwnerField(OwnerRec& owner, Text Options::*wanted, std::string_view bytes);

}  // namespace korvande
