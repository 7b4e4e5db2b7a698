#pragma once

#include <string>
#include <vector>

#include "project/CodeTables.h"
#include "translation/Mode.h"
#include "translation/ObjectAccount.h"

namespace korvande {

// What a code row gives to the records of its objects, as bytes, so that it is made once a run and not once an object.
struct ExportCode {
    std::string lkiCode;      // 7 columns
    std::string description;  // 43 columns
    std::string quality;      // 10 columns; empty when P, I and B are all 0
    bool isWritten = false;
    bool isSymbol = false;                  // a point with a rotation
    bool cutsQuality = false;               // P, I or B is more than one digit
    bool lacksCharacter = false;            // Windows-1252 has no byte for one that is written
    LeftOut reason = LeftOut::UnknownCode;  // why its objects are not written
};

// By the index that a lookup answers with. A table that lost every row has one entry, which writes nothing.
using ExportCodes = std::vector<ExportCode>;

// The rows whose objects are written: of points GRONDSL, PUNT, ROT.PNT and SYMBOOL, of lines LIJN and GRENS, of texts
// all but DUMMY. The unknown row is one of them only with unknown objects.
ExportCodes PreparePointCodes(const CodeTable& points, Variant variant, bool withUnknowns);
ExportCodes PrepareLineCodes(const CodeTable& lines, Variant variant, bool withUnknowns);
ExportCodes PrepareTextCodes(const CodeTable& texts, Variant variant, bool withUnknowns);

}  // namespace korvande
