#pragma once

namespace korvande {

struct CompareOptions;

// The command `vergelijk`: tells in what two drawings differ. The exit status: done when they do not.
int CompareDrawings(const CompareOptions& options);

}  // namespace korvande
