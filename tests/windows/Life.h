#pragma once

// What another program uses, for tests of a long life.

// Whether handles and GDI objects can be counted here: tried on some that are made for it.
bool CanTellWhatIsUsed();

// A line of a process: so many times, its memory in kilobytes, its handles, its GDI objects, and the seconds of the
// processor that it has taken. False when something of it cannot be told.
bool PrintWhatIsUsed(unsigned long process, int times);
