#pragma once

#include "core/RuntimeError.h"

namespace korvande::testing {

// The number of the run-time error that an action ends with; 0 when it ends without one.
template <class Action>
int ErrorOf(Action action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

}  // namespace korvande::testing
