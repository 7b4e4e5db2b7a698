#include "nensuf/ExportHeader.h"

#include <string>

#include "core/Clock.h"
#include "nensuf/RecordLayout.h"
#include "project/OwnerRecord.h"
#include "run/RunValues.h"

namespace korvande {

namespace {

constexpr int closesBlock = 1;

void WriteSuf2Header(const std::string& month) {
    RecordText record;
    record.Put("010", "           ", "V      ", month, "       ", "VAIKLI, LisCAD");
    WriteRecord(record, {}, closesBlock);
    TheRun().output.PutLine("02010201             0         0         1         0         101");
}

// The name and address lines are whole physical lines with an end code of their own.
void WriteOwner() {
    const OwnerRec& owner = TheOwner();
    RecordText line;
    line.Put("07N", owner.NameLong.View(), "              K", owner.NameShort.View(), " 00");
    TheRun().output.PutLine(line.View());
    line.Clear();
    line.Put("07A", owner.Street.View(), owner.Number.View(), owner.Extra.View(), "               P",
             owner.ZipCode.View(), "   00");
    TheRun().output.PutLine(line.View());
    line.Clear();
    line.Put("07W", owner.Town.View());
    WriteRecord(line, {}, closesBlock);
}

void WriteNen1878Header(const std::string& month) {
    RecordText record;
    record.Put("010", "NEN1878    ", "V", month, month, "       ", "0101", "S05");
    WriteRecord(record, {}, closesBlock);
    TheRun().output.PutLine("020102150201         0         0         1         0         101");
    WriteOwner();
}

}  // namespace

void WriteExportHeader() {
    const std::string month = YearAndMonth(Now());
    if (TheRun().ExportNen) {
        WriteNen1878Header(month);
    } else {
        WriteSuf2Header(month);
    }
}

}  // namespace korvande
