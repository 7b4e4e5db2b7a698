#pragma once

namespace korvande {

// Whether LISCAD runs on this system. Where it does not, its keys only tell where the projects are.
bool LiscadRunsHere() noexcept;

}  // namespace korvande
