#pragma once

// What the console program needs from the system it runs on.
namespace korvande {

// To be called first. Standard streams that are not there lead nowhere, so that no file of a run takes their place and
// gets messages written into it. A write that the system refuses (a full file size, a reader that went away) is an
// error of that write and not the end of the program. From here on interrupts (Ctrl+C, a request to end, a lost
// terminal unless that is to be ignored) are noted.
void PrepareProcess();

// Whether shells leave patterns such as "*.sfn" to the programs; elsewhere what arrives is a name, with any character.
bool ShellsLeavePatterns() noexcept;

// Whether an interrupt came; a run looks at it whenever it lets events run. A wait for input or output ends by it.
bool IsInterrupted() noexcept;

// Whether standard output leads anywhere; what is written to one that was not there when the program began is lost, as
// whoever started it so wanted.
bool OutputIsThere() noexcept;

bool InputIsTerminal() noexcept;

// Waits until something is typed on the terminal; false when an interrupt came first.
bool AwaitInput() noexcept;

bool ErrorIsTerminal() noexcept;

}  // namespace korvande
