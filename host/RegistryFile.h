#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Text.h"
#include "host/modRegistry.h"

namespace korvande {

// A registry in a text file of the form "Windows Registry Editor Version 5.00", in UTF-8 (a file as Windows writes it,
// in UTF-16, is read too):
//
//     [HKEY_CURRENT_USER\Software\Name]
//     "value"="text with \\ and \""
//     "other"=dword:0000001f
//
// A value named "@" without quotes is its key's default value, named "" here. Values of other kinds, remarks and all
// that is not understood stay in the file as they are. Keys are given by their full names.
class RegistryFile {
 public:
    // Reads the file; without one the registry is empty. A run-time error when it cannot be read, or is something else.
    explicit RegistryFile(TextView name);

    // Writes it to a temporary file that then takes its place. A run-time error when that fails.
    void Save() const;

    // A key is there when a line names it or a key below it.
    bool HasKey(TextView key) const;
    void AddKey(TextView key);

    // The names of the keys right below a key, in order of first occurrence.
    std::vector<Text> SubKeys(TextView key) const;

    std::optional<RegValue> FindValue(TextView key, TextView valueName) const;

    // Sets a value; the text may not hold line ends or NUL characters.
    void SetText(TextView key, TextView valueName, TextView text);

 private:
    // The place of the value's line and of the line behind the key's last one; npos for none. Of several the last
    // holds.
    struct Places {
        std::size_t value = std::string::npos;
        std::size_t keyEnd = std::string::npos;
    };
    Places Find(TextView key, TextView valueName) const;
    void RemoveContinuation(std::size_t line);

    Text fileName;
    std::vector<std::string> lines;  // UTF-8
};

}  // namespace korvande
