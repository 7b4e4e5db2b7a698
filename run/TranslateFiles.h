#pragma once

namespace korvande {

struct Translation;

// The run from its open log book to the closed one: log book header, reader, writer, footer. Without a log book name no
// log book is kept.
//
// The output takes its place at the end, when the run has not failed (translation.outcome.Failed()); a failed one
// leaves an earlier output as it was and makes none.
//
// What goes wrong is told by message boxes and the log book, and in the translation's outcome; an error that escapes
// the reader or the writer ends that one only. False when the log book could not be opened and a person cancelled: then
// nothing was done.
bool TranslateFiles(Translation& translation);

}  // namespace korvande
