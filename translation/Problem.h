#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "core/RuntimeError.h"
#include "core/Text.h"
#include "translation/ObjectAccount.h"

// What is wrong with a drawing or a run, and what of a drawing did not come across as it was read, as values. The log
// book, the account, the console and the window all get the same ones; their Dutch words stand in one table.
namespace korvande {

// Where a problem is told: in a line "FOUT:  " of the log book at its moment; at the end among what did not come across
// or came across changed, which nobody asked for; or at the end among what the control table, an option or the
// rectangle left out, and what always goes so.
enum class ProblemList { Errors, Loss, Wanted };

enum class ProblemKind {
    // Errors
    EscapedError,         // an error that ended a reader or writer: words, and the line when there is one
    FileNotOpened,        // number, words (its description), name
    ExportNotOpened,      // number, name
    OutputNotPutInPlace,  // name, number
    NoHeader,             // IDEX: no HEADER, LAYERS or DATABASE
    NoLayers,
    NoDatabase,
    InputIsUtf16,
    ContinuationWithoutText,  // line
    NoProjectRecord,          // NEN1878/SUF2: no 01 or 02 record
    NoFrameRecord,
    NoCoordinatesRecord,  // words: the object's kind
    NoTextRecord,
    InvalidArc,
    ArcInLineString,
    UnknownPoint,  // words: the object's kind; number: its index
    UnknownLine,

    // Damage of the input
    RestNotRead,           // line: the first that was not read
    CutOff,                // words: what is missing at the end
    LayersBehindDatabase,  // IDEX, as the next ones
    RowWithoutTerminator,
    RowBehindTerminator,
    RowOfOtherLength,
    LineInTable,     // a line that is no row
    LinePassedOver,  // words: what it begins with
    CoordinateNoNumber,
    CoordinateAlone,  // NEN1878/SUF2: X without Y, or Y without X
    NumberNoNumber,
    LongLine,  // NEN1878/SUF2, as the next ones
    ShortLine,
    RecordPassedOver,  // words: its type
    GroupNotClosed,
    GroupWithoutCode,  // or without a kind of geometry
    GroupWithoutCoordinates,
    GroupWithoutRecord,
    ArcIncomplete,

    // Loss that is no damage
    NoReference,
    NoCoordinates,
    ColumnMissing,  // words: the column and its table
    KindNotTranslated,
    MutationStatus,
    MutationFile,        // words: the mark in its header
    LineTypeNotWritten,  // words: the line type
    DateLeftOut,
    Unfinished,
    BlockSkipped,   // words: its name
    PointReplaced,  // by another POINTS table
    PointBlanked,   // by an EXTRAINFO row without all columns
    NumberTwice,
    LineNumberTwice,
    LineNumberZero,
    UnitNotConverted,  // words: the unit
    DecimalComma,
    CodeCut,
    NameCut,
    LineTypeCut,
    DescriptionCut,
    TextCut,            // words: to how many characters
    CutAtTerminator,    // a terminator inside quotes
    CharacterUnknown,   // it has no Windows-1252 byte
    CharacterReplaced,  // a quote or a terminator inside a value
    CoordinateCut,
    NumberCut,  // that the columns of an IDEX row cannot hold
    QualityCut,
    ArcCentreMoved,    // read back, an arc of three points has another centre
    PointsPassedOver,  // of a group that has more than its object takes
    NumberWithoutPoint,
    CharacterNotWritten,  // of a row of the control table: it has no Windows-1252 byte

    // Wanted, or always so
    UnknownCode,
    DummyType,
    OtherType,
    EmptyText,
    OutsideRectangle,
    PolygonNotTranslated,
    ArcByEdges,
    CurveAsStraight,
    NumberBlanked,
    ArcNumberDropped,
    PlaceNameStart,
    EmptyBlock,  // words: its name
    ExtraInfoOfEdges,
    ReadAsUtf8,
    LeftOutWithoutCoordinates,
};
inline constexpr int problemKinds = static_cast<int>(ProblemKind::LeftOutWithoutCoordinates) + 1;

struct Problem {
    ProblemKind kind;
    ObjectKind object = ObjectKind::Other;
    Text words{};  // what varies in its sentence
    std::int64_t number = 0;
    Text name{};            // of a file
    std::int64_t line = 0;  // of the input; 0: none
};

Problem EscapedError(const RuntimeError& error);

// The name of a kind, as programs have it: "NoReference".
std::string_view NameOf(ProblemKind kind) noexcept;

ProblemList ListOf(ProblemKind kind) noexcept;

// Whether it tells of damage of the input.
bool IsDamage(ProblemKind kind) noexcept;

// The kind by which an object that was left out for a reason is told.
ProblemKind KindOf(LeftOut reason, ObjectKind object) noexcept;

// The sentence of a problem, as the log book has it; and with the line of the input behind it, when there is one and
// the sentence does not tell it already.
Text Sentence(const Problem& problem);
Text SentenceWithLine(const Problem& problem);

// Problems of one kind that are told together: how many, and the first line of the input (0: none).
struct ProblemCount {
    ProblemKind kind;
    ObjectKind object;
    Text words;
    std::int64_t count = 0;
    std::int64_t firstLine = 0;
};

// "3 punten zonder coördinaten (de eerste op regel 17)".
Text LineOf(const ProblemCount& problems);

// The problems of one translation.
class Problems {
 public:
    // Those that the log book has a line "FOUT:  " for.
    std::int64_t errors = 0;

    // Called with each error, whether a log book is kept or not; and with each problem of any list, for who wants to
    // hear of them one by one.
    std::function<void(const Problem&)> onError;
    std::function<void(const Problem&)> onProblem;

    // Counts a problem of one of the two lists, `count` times.
    void Add(const Problem& problem, std::int64_t count = 1);

    // Adds what was counted of another translation, without its lines. What a translation has once at most is told with
    // how many times from here on.
    void AddAll(const Problems& others);

    // The same for one without words, when nobody listens: objects may be left out by the hundred thousand. False when
    // it is the first of its kind, or somebody listens, and it must be added.
    bool Count(ProblemKind kind, ObjectKind object, std::int64_t line) noexcept;

    // Whether something did not come across, or came across changed, that nobody asked for; and whether some of it
    // tells of damage of the input.
    bool HasLoss() const noexcept { return hasLoss; }
    bool HasDamage() const noexcept { return hasDamage; }

    // Whether something went wrong, so that who asked for the translation must look into it.
    bool HasFaults() const noexcept { return errors > 0 || hasDamage; }

    // What a list tells, damage first; and as lines.
    std::vector<ProblemCount> Counts(ProblemList list) const;
    std::vector<Text> Lines(ProblemList list) const;

 private:
    // The entry that a problem belongs to, which may be new.
    ProblemCount& CountOf(const Problem& problem);

    std::vector<ProblemCount> counts;
    std::size_t latest = 0;  // that Count found
    bool hasLoss = false;
    bool hasDamage = false;
    bool isSum = false;  // of more than one translation
};

}  // namespace korvande
