#pragma once

#include "picture/DisplayList.h"

namespace korvande {

struct Translation;

// The display list of the drawing that a translation has read, with the codes by its code tables.
//
// Points that nothing but line strings and texts refer to are not shown, for those that an export does not write
// (DUMMY) and those that an exchange file has for the places of its lines and texts; neither are the line strings that
// the reader of an exchange file lays between the two places of a text.
DisplayList MakeDisplayList(Translation& translation);

}  // namespace korvande
