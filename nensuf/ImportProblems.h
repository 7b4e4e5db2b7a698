#pragma once

#include <cstdint>
#include <string_view>

#include "nensuf/RecordReader.h"

// What an import tells of that did not come across as it was read.
namespace korvande {

struct ImportRun;
struct Translation;

// Tells that the group before the one read last was not closed, or was cut by an end code that is none.
void TellGroupNotClosed(ImportRun& run);

// The group read last belongs to no object. Tells so, unless it is a point's description, or of an object that was told
// already.
void PassOver(ImportRun& run);

// Tells that the file has no closing record, or that something follows it.
void TellEnd(ImportRun& run);

// A mark of the status in the 01 record (column 15: V for a file of what is) and in the G and F fields of an object (1
// or nothing): whether it says that something is to be deleted or changed.
void TellMutationFile(Translation& translation, std::string_view projectRecord);
bool MarksMutation(char status) noexcept;

// Problems of one kind in a group: how many, and the line of the first.
struct Fault {
    std::int64_t count = 0;
    std::int64_t line = 0;

    void Note(std::int64_t itsLine) noexcept {
        if (count++ == 0) line = itsLine;
    }
};

// Watches the coordinate fields of one group go by, in their order.
class CoordinateWatch {
 public:
    void See(const GroupField& field) {
        switch (field.Key) {
            case 'X':
                if (waitsForY) alone.Note(lineOfX);
                waitsForY = true;
                lineOfX = field.Line;
                break;
            case 'Y':
                if (!waitsForY) alone.Note(field.Line);
                waitsForY = false;
                break;
            case 'Z':
                break;
            default:
                return;
        }
        if (!IsNumber(field)) noNumber.Note(field.Line);
    }

    // A number (N) that no point takes; a blank one is none.
    void LeaveNumber(std::string_view number, std::int64_t line);

    // Tells what was seen, at the end of the group.
    void Tell(Translation& translation);

 private:
    Fault noNumber;
    Fault alone;  // X without Y, or Y without X
    Fault numbers;
    bool waitsForY = false;
    std::int64_t lineOfX = 0;
};

}  // namespace korvande
