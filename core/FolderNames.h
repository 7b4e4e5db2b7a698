#pragma once

#include <string>
#include <string_view>

namespace korvande {

// Platform: the entry of a folder ("" is the current one; any other ends in "/") whose name differs from the wanted one
// in case only: the first in order, so that the answer does not depend on the file system. Empty when there is none.
//
// A folder may hold very many names, and a batch asks for many that are not there, so what a folder holds is kept. It
// is read again when the system says that the folder has changed, unless this program itself has changed it
// (OwnChange), and after two seconds in any case. Two changes within a few milliseconds may look like one, so what was
// read of a folder that another program has changed within the last second counts for a tenth of one: as long as a
// short run takes, which so reads it once. A run that asks a folder of thousands for a few names tries their spellings
// instead of reading it.
std::string FindWithoutCase(const std::string& folder, std::string_view wanted);

// To be there while this program makes, renames or removes the file of a native path, so that what is kept of its
// folder stays true.
class OwnChange {
 public:
    explicit OwnChange(std::string_view nativePath);
    OwnChange(const OwnChange&) = delete;
    OwnChange& operator=(const OwnChange&) = delete;
    ~OwnChange();

 private:
    std::string path;  // empty: nothing is kept of its folder
};

}  // namespace korvande
