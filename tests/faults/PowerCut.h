#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/cli/GoldenCases.h"
#include "tests/faults/SystemCalls.h"

namespace korvande::testing {

// A disk whose power may be cut at any moment, on which the recorded steps of a run are done again. What was flushed
// stays. Of everything else each change of a name may have reached the disk or not, in any combination; what was
// written to a file is there, is not, is there by half, or there are zeros in its place.
class Disk {
 public:
    // As the folder is before the run, with the numbers by which the system knows its files, and its folders by their
    // names with a "/" behind (the folder itself: "").
    Disk(std::string itsFolder, const Files& before, const std::map<std::uint64_t, std::string>& itsNumbers);

    void Do(const Step& step);

    // Every state that a restart may find now.
    void ForEachState(const std::function<void(const Files&)>& look) const;

    // What the files that were renamed to a name held, first what was there before.
    const std::map<std::string, std::vector<std::string>>& Versions() const noexcept { return versions; }

 private:
    struct Write {
        std::size_t place;
        std::string bytes;
        bool isResize;
    };
    struct Node {
        std::string now;
        std::string flushed;
        std::vector<Write> pending;
    };
    struct NameChange {
        std::string from;  // empty: the node appears
        std::string to;    // empty: the name goes
        std::size_t node;
    };
    using Names = std::map<std::string, std::size_t>;
    enum class Unflushed { Lost, Kept, Torn, Zeros };

    std::string Own(const std::string& path) const;
    std::size_t NodeOf(std::uint64_t number);
    std::string BytesOf(const Node& node, Unflushed what) const;
    void FlushNamesOf(const std::string& itsFolder);
    static void Apply(const NameChange& change, Names& names);

    std::string folder;
    std::map<std::uint64_t, std::string> folders;
    std::map<std::uint64_t, std::size_t> nodeNumbers;
    std::vector<Node> nodes;
    Names names;
    Names flushedNames;
    std::vector<NameChange> pending;
    std::map<std::string, std::vector<std::string>> versions;
};

}  // namespace korvande::testing
