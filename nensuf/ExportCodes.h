#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "nensuf/RecordLayout.h"
#include "project/CodeTables.h"
#include "translation/Mode.h"
#include "translation/ObjectAccount.h"

namespace korvande {

struct RecordStyle;

// What a code row gives to the records of its objects, made once a run and not once an object.
struct ExportCode {
    std::string lkiCode;         // 7 columns
    std::string quality;         // 10 columns; empty when P, I and B are all 0
    PhysicalLine head{};         // the 03 record of a point, a straight segment or a text
    PhysicalLine arcHead{};      // and of an arc
    PhysicalLine description{};  // the 06 record of a point
    bool isWritten = false;
    bool isSymbol = false;                  // a point with a rotation
    bool cutsQuality = false;               // P, I or B is more than one digit
    bool lacksCharacter = false;            // Windows-1252 has no byte for one that is written
    LeftOut reason = LeftOut::UnknownCode;  // why its objects are not written
};

// The codes of a table, by the index that a lookup answers with: each is made when the first object asks for it. A
// table that lost every row has one entry, which writes nothing.
//
// The rows whose objects are written: of points GRONDSL, PUNT, ROT.PNT and SYMBOOL, of lines LIJN and GRENS, of texts
// all but DUMMY. The unknown row is one of them only with unknown objects.
class ExportCodes {
 public:
    // For points, line segments or texts.
    ExportCodes(const CodeTable& itsTable, ObjectKind itsKind, const RecordStyle& itsStyle, bool withUnknownObjects);

    const ExportCode& operator[](std::int32_t row) {
        const std::uint32_t place = places[static_cast<std::size_t>(row)];
        return place != 0 ? codes[place - 1] : Make(row);
    }

 private:
    const ExportCode& Make(std::int32_t row);

    const CodeTable& table;
    ObjectKind kind;
    const RecordStyle& style;
    bool withUnknowns;
    std::vector<std::uint32_t> places;  // in `codes`, from 1; 0: not made yet
    std::deque<ExportCode> codes;
};

}  // namespace korvande
