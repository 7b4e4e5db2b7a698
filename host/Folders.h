#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "core/Text.h"

namespace korvande {

// Whether there is a folder of this name.
bool FolderExistsAt(TextView name);

// Whether it is certain that there is none. What the system does not tell may be one.
bool FolderIsMissing(TextView name);

// The names (without folder) of a folder's files and folders, sorted without regard to case. A folder that is a link is
// left out: it may lead back to where it is. A run-time error when the folder cannot be read.
struct FolderContents {
    std::vector<Text> files;
    std::vector<Text> folders;
};
FolderContents ContentsOf(TextView folder);

// Makes a folder, and those that it is in, as far as they are not there. A run-time error when that fails.
void MakeFolders(TextView folder);

// When a file was last written; nothing when that is not known, as for a file that is not there.
std::optional<std::filesystem::file_time_type> WriteTimeOf(TextView name);

}  // namespace korvande
