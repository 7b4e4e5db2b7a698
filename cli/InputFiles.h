#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "core/Text.h"
#include "translation/Mode.h"

namespace korvande {

class Screen;

struct InputFile {
    Text name;
    Text below;  // the folders between the one that was given and the file, ending in a separator; or empty
};

// What the arguments of a command come to.
struct InputFiles {
    std::vector<InputFile> files;
    std::size_t passedOver = 0;       // files in folders that hold no wanted drawing
    std::vector<Text> unreadFolders;  // with the reasons
    bool hasFolders = false;
};

// What is taken from folders.
struct FolderSearch {
    bool goesDeep = false;  // the folders in them as well
    Text except;            // but not a folder in them that is this one, into which is written; empty: none
    std::function<bool(Format)> isWanted;
};

// The files of these names, and of the folders among them, by their names, those that hold a drawing of a wanted format
// or cannot be read, which is told when it is tried. No log book of a folder is taken for a drawing, whatever it tells.
InputFiles FindInputFiles(Screen& screen, const std::vector<std::string>& names, const FolderSearch& search);

// The same of names none of which is looked at as a folder.
InputFiles PlainInputFiles(const std::vector<std::string>& names);

// How many inputs are worked on at a time, from the option's value: 1 when one of them is no regular file, for a wait
// for a pipe ends by an interrupt only where the program began.
std::size_t WorkersFor(const std::string& atATime, const InputFiles& inputs);

// Tells which folders could not be read, and in these words when there is nothing in those that could.
void TellFolders(const InputFiles& inputs, TextView whenEmpty);

}  // namespace korvande
