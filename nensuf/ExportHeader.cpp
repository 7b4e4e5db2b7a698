#include "nensuf/ExportHeader.h"

#include <string>

#include "core/Clock.h"
#include "core/LineWriter.h"
#include "nensuf/RecordLayout.h"
#include "project/OwnerRecord.h"

namespace korvande {

namespace {

constexpr int closesBlock = 1;

void WriteSuf2Header(LineWriter& output, const std::string& month) {
    RecordText record;
    record.Put("010", "           ", "V      ", month, "       ", "VAIKLI, LisCAD");
    WriteRecord(output, Variant::Suf2, record, {}, closesBlock);
    output.PutLine("02010201             0         0         1         0         101");
}

// The name and address lines are whole physical lines with an end code of their own.
void WriteOwner(LineWriter& output, const OwnerRec& owner) {
    RecordText line;
    line.Put("07N", owner.NameLong.View(), "              K", owner.NameShort.View(), " 00");
    output.PutLine(line.View());
    line.Clear();
    line.Put("07A", owner.Street.View(), owner.Number.View(), owner.Extra.View(), "               P",
             owner.ZipCode.View(), "   00");
    output.PutLine(line.View());
    line.Clear();
    line.Put("07W", owner.Town.View());
    WriteRecord(output, Variant::Nen1878, line, {}, closesBlock);
}

void WriteNen1878Header(LineWriter& output, const std::string& month, const OwnerRec& owner) {
    RecordText record;
    record.Put("010", "NEN1878    ", "V", month, month, "       ", "0101", "S05");
    WriteRecord(output, Variant::Nen1878, record, {}, closesBlock);
    output.PutLine("020102150201         0         0         1         0         101");
    WriteOwner(output, owner);
}

}  // namespace

void WriteExportHeader(LineWriter& output, Variant variant, const OwnerRec& owner) {
    const std::string month = YearAndMonth(Now());
    if (variant == Variant::Nen1878) {
        WriteNen1878Header(output, month, owner);
    } else {
        WriteSuf2Header(output, month);
    }
}

}  // namespace korvande
