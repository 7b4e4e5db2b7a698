#pragma once

namespace korvande {

struct CheckOptions;

// `controleer`: the exit status.
int Check(const CheckOptions& options);

}  // namespace korvande
