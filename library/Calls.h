#pragma once

#include <optional>

#include "library/Handle.h"
#include "run/RunNames.h"

// What the functions of the interface do, with arguments that were looked at; each gives the status of its call.
namespace korvande {

struct TranslateCall {
    Mode mode;
    RunNames names;
    korvande_options options{};
    korvande_callbacks callbacks{};
};

struct CheckCall {
    Text input;
    korvande_options options{};
    korvande_callbacks callbacks{};
};

// Reads the control table of this name, or makes the defaults, for a handle that is new.
int OpenTable(korvande_handle& handle, const std::optional<Text>& name);

int TranslateDrawing(korvande_handle& handle, const TranslateCall& call);
int CheckDrawing(korvande_handle& handle, const CheckCall& call);

}  // namespace korvande
