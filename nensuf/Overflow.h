#pragma once

#include <cmath>

#include "core/RuntimeError.h"

namespace korvande {

// The result of a computation; error 6 when it has left the range of numbers.
inline double WithoutOverflow(double value) {
    if (!std::isfinite(value)) throw RuntimeError(errors::overflow);
    return value;
}

}  // namespace korvande
