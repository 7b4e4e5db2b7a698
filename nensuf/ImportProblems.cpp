#include "nensuf/ImportProblems.h"

#include <utility>

#include "core/Text.h"
#include "nensuf/ImportRun.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

bool IsPartOfObject(std::string_view type) { return type == "03" || type == "04" || type == "05" || type == "06"; }

// Whether what follows an object can be no part of it.
bool BeginsAfresh(const RecordReader& records) {
    const std::string_view type = records.RecordType();
    if (type == "99") return !records.GroupOrigin().isEnd || records.HasClosingRecord();
    return type == "03" || type == "07";
}

}  // namespace

void TellGroupNotClosed(ImportRun& run) {
    const RecordReader& records = run.records;
    // Of two lines that may close the file only the last does.
    const std::int64_t mayClose = std::exchange(run.mayCloseLine, 0);
    const bool closes = records.RecordType() == "99" && records.GroupOrigin().isEnd;
    if (mayClose > 0 && !closes) {
        Tell(run.translation, {.kind = ProblemKind::RecordPassedOver, .words = u"09", .line = mayClose});
    }

    const RecordEnd& before = records.BeforeGroup();
    if (before.line == 0 || run.isTold || !IsPartOfObject(before.Type())) return;
    const bool isCut = !before.IsEndCode() && before.Type() == records.RecordType();
    // A line that was told in between took the end of the group with it.
    const bool lostItsEnd = records.ToldLine() > before.line;
    const bool isOpen = before.GoesOn() && BeginsAfresh(records) && !lostItsEnd;
    if (!isCut && !isOpen) return;
    Tell(run.translation, {.kind = ProblemKind::GroupNotClosed, .line = before.line});
    run.isTold = true;
}

void PassOver(ImportRun& run) {
    const RecordReader& records = run.records;
    const std::string_view type = records.RecordType();
    const RecordOrigin& origin = records.GroupOrigin();
    if (origin.isSilent) return;
    if (origin.mayClose) {
        run.mayCloseLine = origin.line;
        return;
    }
    if (IsPartOfObject(type) && run.isTold) return;
    if (type == "06" && std::exchange(run.mayBeDescribed, false)) return;
    Tell(run.translation, {.kind = ProblemKind::RecordPassedOver, .words = FromWindows1252(type), .line = origin.line});
}

void TellEnd(ImportRun& run) {
    RecordReader& records = run.records;
    if (!records.GroupOrigin().isEnd) {
        const std::int64_t line = records.LineBehindClosingRecord();
        if (line > 0) Tell(run.translation, {.kind = ProblemKind::RestNotRead, .line = line});
    } else if (!records.HasClosingRecord()) {
        Tell(run.translation, {.kind = ProblemKind::CutOff, .words = u"record 99", .line = records.GroupOrigin().line});
    }
}

void TellMutationFile(Translation& translation, std::string_view projectRecord) {
    constexpr std::size_t place = 14;
    if (projectRecord.size() <= place || projectRecord[place] == 'V' || !MarksMutation(projectRecord[place])) return;
    Tell(translation, {.kind = ProblemKind::MutationFile, .words = FromWindows1252(projectRecord.substr(place, 1))});
}

bool MarksMutation(char status) noexcept {
    const char capital = ToCapital(status);
    return (status >= '2' && status <= '9') || (capital >= 'A' && capital <= 'Z');
}

void CoordinateWatch::LeaveNumber(std::string_view number, std::int64_t line) {
    if (!Trim(number).empty()) numbers.Note(line);
}

void CoordinateWatch::Tell(Translation& translation) {
    if (waitsForY) alone.Note(lineOfX);
    waitsForY = false;
    const auto tell = [&translation](ProblemKind kind, const Fault& fault) {
        if (fault.count > 0) korvande::Tell(translation, {.kind = kind, .line = fault.line}, fault.count);
    };
    tell(ProblemKind::CoordinateNoNumber, noNumber);
    tell(ProblemKind::CoordinateAlone, alone);
    tell(ProblemKind::NumberWithoutPoint, numbers);
}

}  // namespace korvande
