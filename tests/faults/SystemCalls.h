#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// What a process asks of the system about files and memory, each request counted and one of them refused. The kernel
// itself hands every such request over (a filter of system calls), so it does not matter which library makes it.
namespace korvande::testing {

enum class Operation {
    Memory,
    Open,    // of what is there
    Create,  // or open, where it is made when it is not there
    Read,
    Write,
    Resize,
    Flush,
    Close,
    Rename,
    Remove,
    Look,  // whether and what a name is
    List,  // the names in a folder
    Rights
};
inline constexpr std::size_t operations = 13;

enum class Manner {
    Fails,
    FailsFromHereOn,  // and all later ones of its kind
    IsInterrupted,    // by a signal, before anything was done
    IsShort           // half of what was asked for is done
};

// The request of that number, counted from 1, goes wrong in this manner; number 0: none does.
struct Fault {
    Operation operation = Operation::Memory;
    std::int64_t number = 0;
    Manner manner = Manner::Fails;
    int error = 0;  // the system's number for why it fails
};

// What a process did, told to the one that started it.
struct Requests {
    std::int64_t counts[operations];
    bool isStruck;      // the fault came
    char place[512];    // the file concerned, where the request tells one
    std::size_t bytes;  // of the record that was kept
};

// Of the process started next. Memory shared with it.
Requests& SharedRequests();

// In the process: from here on its requests are counted and one goes wrong. There is no way back.
void BeginRequests(const Fault& fault);

// As that, with no fault; what the requests change in files is recorded.
void BeginRecording();

// Each step of the record: what was changed.
enum class Change { Create, Write, Resize, Flush, FlushFolder, Rename, Remove };
struct Step {
    Change change;
    std::uint64_t file;  // the file's number in the system
    std::int64_t place;  // of a write; the new size of a resize
    std::string name;    // of a created, renamed or removed file, or a folder
    std::string bytes;   // that are written; the new name of what is renamed
};

// The record as the process left it, from this place on, which moves behind the step. False at its end.
bool NextStep(std::size_t& place, Step& step);

}  // namespace korvande::testing
