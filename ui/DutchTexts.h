#pragma once

namespace korvande {

// Has the library show its own texts (what it says while it prints, say) in Dutch, where it has them: on Windows they
// are in the program, elsewhere its translation may be installed.
void SpeakDutch();

}  // namespace korvande
