#pragma once

#include <cstdint>
#include <functional>

#include "core/RuntimeError.h"
#include "core/Text.h"

// What is wrong with a drawing or a run, as values. The log book, the account, the console and the window all get the
// same ones; their Dutch words stand in one table.
namespace korvande {

enum class ProblemKind {
    EscapedError,         // an error that ended a reader or writer: words, and the line when there is one
    FileNotOpened,        // number, words (its description), name
    ExportNotOpened,      // number, name
    OutputNotPutInPlace,  // name
    NoHeader,             // IDEX: no HEADER, LAYERS or DATABASE
    NoLayers,
    NoDatabase,
    ContinuationWithoutText,  // line
    NoProjectRecord,          // NEN1878/SUF2: no 01 or 02 record
    NoFrameRecord,
    NoCoordinatesRecord,  // words: the object's kind
    NoTextRecord,
    InvalidArc,
    ArcInLineString,
    UnknownPoint,  // words: the object's kind; number: its index
    UnknownLine,
};

struct Problem {
    ProblemKind kind;
    Text words{};  // what varies in its sentence
    std::int64_t number = 0;
    Text name{};            // of a file
    std::int64_t line = 0;  // of the input; 0: none
};

Problem EscapedError(const RuntimeError& error);

// The sentence of a problem, as the log book has it; and with the line of the input behind it, when there is one and
// the sentence does not tell it already.
Text Sentence(const Problem& problem);
Text SentenceWithLine(const Problem& problem);

// The problems of one translation.
struct Problems {
    std::int64_t errors = 0;  // those that the log book has a line "FOUT:  " for

    // Called with each, whether a log book is kept or not.
    std::function<void(const Problem&)> onProblem;
};

}  // namespace korvande
