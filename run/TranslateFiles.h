#pragma once

namespace korvande {

// The run from its open log book to the closed one, for the names and the direction in TheRun() and the mode selected
// in the form: log book header, reader, writer, footer. The code tables must be fresh from the grids (SaveGridData).
// Without a log book name no log book is kept.
//
// What goes wrong is told by message boxes and the log book, and in TheRun().outcome; an error that escapes the reader
// or the writer ends that one only. False when the log book could not be opened and a person cancelled: then nothing
// was done.
bool TranslateFiles();

// The mode texts that mean NEN1878 set the reader and the writer to it, all others to SUF2.
void TakeVariantFromMode();

}  // namespace korvande
