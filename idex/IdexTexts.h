#pragma once

namespace korvande {

class IdexFile;
struct Translation;

// The TEXT table into the drawing: its boxes, placed on points and layers, and the items on them.
void ReadTexts(Translation& translation, IdexFile& file);

}  // namespace korvande
