#pragma once

#include <string>
#include <string_view>

#include "core/Text.h"

namespace korvande {

class LineWriter;

// A file that is written beside its place and put there when it is finished, so that until then an earlier one stays as
// it was, and afterwards the new one stays whatever happens to the machine. What was not put in place is removed with
// this object.
//
// The temporary file is new, has the rights of what it replaces, and stands beside the file that a link points to. What
// is no regular file is written directly; so is a file that may be written in a folder that takes no new one.
class FileReplacement {
 public:
    explicit FileReplacement(TextView itsName) : name(itsName) {}
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;
    ~FileReplacement() { Drop(); }

    // Opens a writer for it. A run-time error when the file may not be written or the temporary one cannot be made.
    void Open(LineWriter& writer);

    // To be called when the writer is closed. A run-time error when the file was never opened or cannot take its place;
    // then the temporary one is gone.
    void PutInPlace();

    // Removes what was written, except in its own place.
    void Drop() noexcept;

 private:
    Text name;
    Text temporary;             // empty: it is written in its place
    std::string temporaryPath;  // by which the system removes it, also when there is no memory to find it again
    bool isOpened = false;
};

// All bytes of a file. A run-time error when it cannot be read.
std::string FileBytesOf(TextView name);

// Gives a file these bytes, in this way. A run-time error when that fails.
void ReplaceFile(TextView name, std::string_view bytes);

}  // namespace korvande
