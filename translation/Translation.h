#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/Clock.h"
#include "core/LineWriter.h"
#include "core/Text.h"
#include "core/UnknownCodeTally.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "host/FileReplacement.h"
#include "project/CodeTables.h"
#include "project/Options.h"
#include "project/OwnerRecord.h"
#include "project/Project.h"
#include "translation/LogBook.h"
#include "translation/Mode.h"
#include "translation/ObjectAccount.h"
#include "translation/Problem.h"

namespace korvande {

// What a run came to, beside what its log book says.
struct RunOutcome {
    bool inputUnreadable = false;  // missing, or it could not be opened or read to its end
    bool wrongFormat = false;      // no header of the format
    bool outputFailed = false;     // it could not be opened, or not written to its end
    bool logBookFailed = false;    // it could not be opened
    bool cancelled = false;        // a person ended the run
    bool importCancelled = false;  // a person cancelled at a question about the format; the run went on to its end

    bool Failed() const noexcept {
        return inputUnreadable || wrongFormat || outputFailed || logBookFailed || cancelled || importCancelled;
    }
};

// Where the output's bytes go.
enum class OutputTo { File, Memory, Nowhere };

// Everything that one translation needs and makes. A front end makes it, hands it on, and takes from it what became of
// the translation; any number of them can be alive, each on a thread of its own.
struct Translation {
    // With the settings of a project, whose code tables are taken as grids would give them back; and with a project's
    // beginnings.
    Translation(Screen& itsScreen, const Project& project);
    explicit Translation(Screen& itsScreen);

    // The same with a project's tables that were taken as grids would give them back before: of many translations that
    // follow each other one hands them to the next, with what was prepared for looking codes up in them.
    Translation(Screen& itsScreen, const Project& project, CodeTables tablesOfProject);

    // It stays where it is made: its output may write into its own bytes.
    Translation(const Translation&) = delete;
    Translation& operator=(const Translation&) = delete;
    ~Translation() = default;

    Screen& screen;

    Options options;
    OwnerRec owner{};
    CodeTables codes;

    Mode mode;
    Text modeText;  // as the log book tells it

    Text IdexFileName;
    Text SufNenFileName;
    Text LogFileName;  // empty: no log book is kept

    // A drawing in memory, in place of the input file.
    std::optional<std::string_view> inputBytes;

    // A file is put in its place by the run when it is finished, unless a front end names another one to be written
    // in its stead; and its bytes, when they go to memory.
    OutputTo outputTo = OutputTo::File;
    Text temporaryOutput;
    std::optional<FileReplacement> replacement;  // made by the run
    std::string outputBytes;

    // Whether the diagnostic files of an IDEX read are written.
    bool withDiagnosticFiles = true;

    Drawing drawing;
    // The codes that the tables do not know: those that the log book has an overview of, or, when the options want none
    // there, those that are told elsewhere.
    UnknownCodeTally unknowns;
    UnknownCodeTally unlistedUnknowns;
    std::int32_t crossingsFound = 0;  // of lines, while arcs were read

    // From the header of a NEN1878/SUF2 file.
    Text ProjectName;
    Text OwnerName;
    std::optional<DateTime> ProjectDate;

    // Whether an IDEX file of an instrument, which has no LAYERS, is read all the same.
    bool readsWithoutLayers = false;

    // Whether an object of an exchange file whose code is unknown keeps that code, in place of the unknown row's: for a
    // drawing that is looked at and not written.
    bool keepsUnknownCodes = false;

    // The line of the input that is being read, for problems; 0 when none is.
    std::int64_t inputLine = 0;

    // The import opens it and the IDEX writer goes on with it.
    LineWriter output;

    LogBook log;
    ObjectAccount account;
    Problems problems;
    RunOutcome outcome;
};

// The names of the files of a translation, by their roles.
const Text& InputName(const Translation& translation) noexcept;
const Text& OutputName(const Translation& translation) noexcept;

// The tally that lookups count in: the one for the log book when the options want that (chkExportUnknowns, for both
// directions).
UnknownCodeTally* TallyOf(Translation& translation) noexcept;

// Empties both tallies, before a drawing is read.
void ForgetUnknowns(Translation& translation);

// An error of the line being read: counted, told to who listens, and a line "FOUT:  " in the log book.
void Report(Translation& translation, Problem problem);

// A problem that is told at the end, so many times; of the line being read when it has no line.
void Tell(Translation& translation, Problem problem, std::int64_t count = 1);

// Accounts for an object that was left out, and tells it at the end. It is of this line of the input (0: of the one
// being read); the words are those of the problem that the reason makes.
void LeaveOut(Translation& translation, ObjectKind kind, LeftOut reason, std::int64_t line = 0, TextView words = {});

// The same for objects that the end of a run left where they were.
void LeaveUnfinished(Translation& translation, ObjectKind kind, std::int64_t count);

}  // namespace korvande
