#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvande {

// What a command came to as one JSON document on standard output, a member or an element of its list on a line, so that
// its memory does not grow with the number of them. docs/json.md tells the members. Without being wanted it prints
// nothing.
class JsonDocument {
 public:
    JsonDocument(bool itIsWanted, std::string_view command);
    JsonDocument(const JsonDocument&) = delete;
    JsonDocument& operator=(const JsonDocument&) = delete;

    // A document that was not ended is that of a failure.
    ~JsonDocument();

    // A member with its value, which is JSON.
    void Member(std::string_view name, std::string_view json) const;

    // The one list, behind the other members, and its elements.
    void BeginList(std::string_view name);
    void Element(std::size_t place, std::string_view json) const;

    // Ends with the exit status, and returns it.
    int End(int status);

 private:
    bool isWanted;
    bool isInList = false;
    bool isEnded = false;
};

}  // namespace korvande
