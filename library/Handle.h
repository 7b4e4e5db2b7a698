#pragma once

#include <atomic>
#include <new>
#include <optional>
#include <string>

#include "core/RuntimeError.h"
#include "library/CallArguments.h"
#include "library/korvande.h"
#include "project/CodeTables.h"
#include "project/Project.h"

// What the interface's handle holds: a control table, and what became of the latest call.
struct korvande_handle {
    korvande::Text tableName;  // empty: the defaults
    korvande::Project project;
    bool isOpen = false;

    // The code tables as translations take them, handed on from one to the next; nothing when one did not give them
    // back.
    std::optional<korvande::CodeTables> codes;

    // Of the latest call. Where memory is short a text that is always there takes the place of the one to be made.
    std::string error;
    bool hasNoMemoryForError = false;
    std::optional<std::string> result;  // nothing when there is none

    std::atomic<bool> isAtWork = false;
};

namespace korvande {

inline constexpr const char* outOfMemoryText = "Onvoldoende geheugen";

void TellError(korvande_handle& handle, TextView message) noexcept;

// The exception being handled (call inside a catch block), told as the handle's error; the status that it means.
int TellCurrentError(korvande_handle& handle) noexcept;

// Does the work of a call. Whatever it throws ends here. Another call with the same handle meanwhile is refused, and
// leaves what the handle holds alone.
template <class Work>
int DoWork(korvande_handle* handle, Work work) noexcept {
    if (handle == nullptr || handle->isAtWork.exchange(true)) return KORVANDE_WRONG_USE;
    handle->error.clear();
    handle->result.reset();
    handle->hasNoMemoryForError = false;
    int status = KORVANDE_FAILED;
    try {
        status = work(*handle);
    } catch (...) {
        status = TellCurrentError(*handle);
    }
    handle->isAtWork = false;
    return status;
}

}  // namespace korvande
