#include "nensuf/modImportSUFNEN.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>

#include "core/Clock.h"
#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "nensuf/ImportLines.h"
#include "nensuf/ImportObjects.h"
#include "nensuf/ImportProblems.h"
#include "nensuf/ImportRun.h"
#include "nensuf/Overflow.h"
#include "nensuf/PointNumbers.h"
#include "nensuf/RecordLine.h"
#include "translation/Files.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// Columns of a line, both counted from 1 and included; what the line lacks is not there.
std::string_view Columns(std::string_view line, std::size_t first, std::size_t last) {
    if (line.size() < first) return {};
    return line.substr(first - 1, last - first + 1);
}

// Ends the import: the user cancelled at a question.
struct ImportCancelled {
    TextView message;
};

// A question about the format of the file. Yes means the variant that it proposes.
struct FormatQuestion {
    TextView text;  // its lines are separated by a carriage return
    TextView title;
    TextView cancelMessage;
    Variant yesMeans;
    Variant noMeans;
};

constexpr TextView suf2Title = u"Probleem bij inlezen van SUF2 bestand";
constexpr TextView suf2Cancelled = u"SUF2 import afgebroken door gebruiker.";

constexpr FormatQuestion looksLikeSuf2 = {
    u"De NEN1878 file lijkt een oud formaat SUF2 bestand te zijn.\rAls SUF2 verder verwerken ?",
    u"Probleem bij inlezen van NEN1878 bestand", u"NEN1878 import afgebroken door gebruiker.", Variant::Suf2,
    Variant::Nen1878};
constexpr FormatQuestion looksLikeNen1878 = {
    u"De SUF2 file lijkt een NEN1878 bestand te zijn.\rAls NEN1878 verder verwerken ?", suf2Title, suf2Cancelled,
    Variant::Nen1878, Variant::Suf2};
constexpr FormatQuestion holdsNen1878Headers = {
    u"De SUF2 file leek wel eerst een SUF2, maar bevat toch NEN1878 07-headers.\rToch als SUF2 verder verwerken ?",
    suf2Title, suf2Cancelled, Variant::Suf2, Variant::Nen1878};

void AskFormat(ImportRun& run, const FormatQuestion& question) {
    LogBook& log = run.translation.log;
    log.WriteLine(question.text);
    Text text(question.text);
    std::replace(text.begin(), text.end(), u'\r', u'\n');
    const Answer answer =
        run.translation.screen.ShowMessage({text, Text(question.title), Icon::Question, Buttons::YesNoCancel});
    if (answer != Answer::Yes && answer != Answer::No) throw ImportCancelled{question.cancelMessage};
    run.NenMode = answer == Answer::Yes ? question.yesMeans : question.noMeans;
    log.WriteLine(run.NenMode == Variant::Nen1878 ? u"==>  Verwerking vervolgd als NEN1878 bestand"
                                                  : u"==>  Verwerking vervolgd als SUF2 bestand");
}

// The first day of the month in columns 22-27 (yyyymm) of the 01 record, or today.
DateTime ProjectDateOf(std::string_view line) {
    const std::string_view digits = Columns(line, 22, 27);
    int yearAndMonth = 0;
    const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), yearAndMonth);
    const bool isNumber = digits.size() == 6 && problem == std::errc() && end == digits.data() + digits.size();
    const int year = yearAndMonth / 100;
    const int month = yearAndMonth % 100;
    if (!isNumber || !IsCalendarDay(year, month, 1)) return Now();
    DateTime date;
    date.year = year;
    date.month = month;
    date.day = 1;
    return date;
}

void TakeProject(Translation& translation, std::string_view line) {
    std::string_view name = Trim(Columns(line, 39, 62));
    if (name.empty()) name = Trim(Columns(line, 3, 14));
    translation.ProjectName = FromWindows1252(name);
    translation.ProjectDate = ProjectDateOf(line);
}

// The factor of the precision digit d: 1 / 10^(4 - d).
double CoordinateScaleOf(int precision) {
    constexpr std::array<double, 6> powersOfTen = {1, 1e1, 1e2, 1e3, 1e4, 1e5};
    return precision <= 4 ? 1 / powersOfTen[static_cast<std::size_t>(4 - precision)]
                          : powersOfTen[static_cast<std::size_t>(precision - 4)];
}

// The precision digit stands in column 7 of NEN1878 and column 8 of SUF2; five header values in ten columns each follow
// from column 13 on.
CoordinateFrame FrameOf(Variant variant, std::string_view line) {
    const auto number = [line](std::size_t first, std::size_t last) {
        return LeadingNumber(Columns(line, first, last));
    };
    const std::size_t precisionColumn = variant == Variant::Nen1878 ? 7 : 8;
    const double scale = CoordinateScaleOf(static_cast<int>(number(precisionColumn, precisionColumn)));
    CoordinateFrame frame;
    frame.originX = WithoutOverflow(1000 * number(13, 22));
    frame.originY = WithoutOverflow(1000 * number(23, 32));
    frame.scale = WithoutOverflow(scale * number(33, 42));
    frame.originZ = WithoutOverflow(1000 * number(43, 52));
    frame.scaleZ = WithoutOverflow(scale * number(53, 62));
    return frame;
}

// Tells of the precision digit and the header values that are no numbers. A blank one is 0, which a factor of X and Y
// cannot be, and nothing else in a line that was cut.
void TellFrame(Translation& translation, Variant variant, std::string_view line) {
    constexpr std::size_t lastColumn = 62;
    constexpr std::size_t factor = 33;
    const bool isWhole = line.size() >= lastColumn;
    const auto look = [&translation, line](std::size_t first, std::size_t last, bool mayBeBlank) {
        const std::string_view value = Columns(line, first, last);
        if (IsNumber(value) || (mayBeBlank && Trim(value).empty())) return;
        Tell(translation, {.kind = ProblemKind::NumberNoNumber});
    };
    const std::size_t precisionColumn = variant == Variant::Nen1878 ? 7 : 8;
    look(precisionColumn, precisionColumn, false);
    for (std::size_t first = 13; first < lastColumn; first += 10) look(first, first + 9, isWhole && first != factor);
}

// Whether the 02 record looks like the other variant's; the user decides.
void CheckFormat(ImportRun& run, std::string_view line) {
    if (run.NenMode == Variant::Nen1878 && Columns(line, 7, 7) == "0") AskFormat(run, looksLikeSuf2);
    const std::string_view column8 = Columns(line, 8, 8);
    const bool hasPrecision = !column8.empty() && static_cast<unsigned char>(column8[0]) > '1';
    if (run.NenMode == Variant::Suf2 && hasPrecision) AskFormat(run, looksLikeNen1878);
}

// A line as a header record of its type; when it is none, with a message, nothing.
std::optional<std::string> TakeHeaderRecord(Translation& translation, bool isThere, std::string_view line,
                                            std::string_view type, ProblemKind problemWithout) {
    std::optional<std::string> record;
    if (isThere) record = HeaderRecord(line, type);
    if (record) {
        if (HeaderLosesCharacters(line, type)) Tell(translation, {.kind = ProblemKind::LongLine});
        return record;
    }
    const Problem problem{.kind = problemWithout};
    translation.outcome.wrongFormat = true;
    Report(translation, problem);
    ShowMessage(translation.screen, Sentence(problem));
    return {};
}

bool ReadHeader(ImportRun& run, LineReader& file) {
    Translation& translation = run.translation;
    std::string_view line;
    bool isThere = NextLine(translation, file, line);
    while (isThere && IsWhiteSpace(line)) isThere = NextLine(translation, file, line);
    const auto project = TakeHeaderRecord(translation, isThere, line, "01", ProblemKind::NoProjectRecord);
    if (!project) return false;
    TakeProject(translation, *project);
    TellMutationFile(translation, *project);
    isThere = NextLine(translation, file, line);
    const auto frame = TakeHeaderRecord(translation, isThere, line, "02", ProblemKind::NoFrameRecord);
    if (!frame) return false;
    CheckFormat(run, *frame);
    run.frame = FrameOf(run.NenMode, *frame);
    TellFrame(translation, run.NenMode, *frame);
    translation.screen.ShowStatus(run.NenMode == Variant::Nen1878 ? u"Inlezen NEN1878" : u"Inlezen SUF2");
    return true;
}

// Has an object of the current group read, and accounts for it.
void ImportObject(ImportRun& run, ObjectKind kind, std::optional<LeftOut> (*reader)(ImportRun&)) {
    ++run.translation.account[kind].read;
    std::optional<LeftOut> reason;
    try {
        reason = reader(run);
    } catch (...) {
        SettleObject(run, kind, LeftOut::Unfinished);
        throw;
    }
    SettleObject(run, kind, reason);
}

// Has the objects of a 03 or 05 group read. One without a code brings nothing.
void ImportObjects(ImportRun& run) {
    run.group = ReadObjects(run);
    const GroupObjects& group = run.group;
    if (!group.isPart) {
        run.isTold = false;
        run.isPlaced = run.mayBeDescribed = group.isPoint || group.isSymbol;
    } else if (run.records.RecordType() == "05" && !run.isPlaced) {
        return PassOver(run);
    }
    if (group.secondCodeLine > 0) {
        Tell(run.translation, {.kind = ProblemKind::GroupNotClosed, .line = group.secondCodeLine});
    }
    const bool hasObjects = group.isPoint || group.isLine || group.isArc || group.isSymbol || group.isText;
    if (!hasObjects || group.ObjectCode.empty()) return LeaveObjects(run, group, LeftOut::NoCode);
    if (group.isPoint) ImportObject(run, ObjectKind::Point, ImportPointGroup);
    if (group.isLine) ImportObject(run, ObjectKind::LineString, ImportLineGroup);
    if (group.isArc) ImportObject(run, ObjectKind::Arc, ImportArcGroup);
    if (group.isSymbol) ImportObject(run, ObjectKind::Point, ImportSymbolGroup);
    if (group.isText) ImportObject(run, ObjectKind::TextObject, ImportTextGroup);
}

// The owner's name, from the 07 records: N and 35 characters, which as fields lie in four of ten.
void TakeOwnerName(ImportRun& run) {
    constexpr std::size_t nameLength = 35;
    constexpr std::size_t fieldsOfName = 4;
    const auto fields = run.records.GroupFields();
    if (fields.empty() || fields.front().Key != 'N') return;
    std::string name;
    for (const GroupField& field : fields.first(std::min(fields.size(), fieldsOfName))) {
        name.push_back(field.Key);
        name += field.Value;
    }
    run.translation.OwnerName = FromWindows1252(Trim(std::string_view(name).substr(1, nameLength)));
}

void ImportGroups(ImportRun& run) {
    while (true) {
        run.records.ReadRecordGroup(0);
        TellGroupNotClosed(run);
        const std::string_view type = run.records.RecordType();
        if (type == "03" || type == "05") {
            ImportObjects(run);
        } else if (type == "07") {
            if (run.NenMode == Variant::Suf2) AskFormat(run, holdsNen1878Headers);
            TakeOwnerName(run);
        } else if (type == "99") {
            return TellEnd(run);
        } else {
            PassOver(run);
        }
    }
}

void OpenIdexOutput(Translation& translation) {
    const Text& name = translation.IdexFileName;
    try {
        OpenOutput(translation, name);
    } catch (const RuntimeError& error) {
        translation.outcome.outputFailed = true;
        ReportOpenFailure(translation, name, error);
    }
}

void Import(Translation& translation, LineReader& file) {
    ImportRun run(translation, file);
    try {
        if (!ReadHeader(run, file)) return;
        ImportGroups(run);
    } catch (const ImportCancelled& cancelled) {
        translation.outcome.importCancelled = true;
        translation.log.WriteLine(Concat(u"==>  ", cancelled.message));
        ShowMessage(translation.screen, cancelled.message);
        return;
    }
    translation.inputLine = 0;
    CleanUpPointNumbers(translation);
}

}  // namespace

void ImportNenSuf(Translation& translation) {
    ResetDrawing(translation.drawing);
    ForgetUnknowns(translation);
    translation.ProjectName.clear();
    translation.OwnerName.clear();
    translation.ProjectDate.reset();
    LineReader file;
    const bool isOpen = OpenInput(translation, file, translation.SufNenFileName, recordLength);
    OpenIdexOutput(translation);
    if (isOpen) ReadInput(translation, file, [&] { Import(translation, file); });
}

}  // namespace korvande
