#include "nensuf/modImportSUFNEN.h"

#include <array>
#include <charconv>
#include <optional>

#include "core/Clock.h"
#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "nensuf/ImportRun.h"
#include "nensuf/Overflow.h"
#include "project/frmKORVANDE.h"
#include "run/InputFile.h"
#include "run/LogBook.h"

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
    bool yesMeansNen;
};

constexpr TextView suf2Title = u"Probleem bij inlezen van SUF2 bestand";
constexpr TextView suf2Cancelled = u"SUF2 import afgebroken door gebruiker.";

constexpr FormatQuestion looksLikeSuf2 = {
    u"De NEN1878 file lijkt een oud formaat SUF2 bestand te zijn.\rAls SUF2 verder verwerken ?",
    u"Probleem bij inlezen van NEN1878 bestand", u"NEN1878 import afgebroken door gebruiker.", false};
constexpr FormatQuestion looksLikeNen1878 = {
    u"De SUF2 file lijkt een NEN1878 bestand te zijn.\rAls NEN1878 verder verwerken ?", suf2Title, suf2Cancelled, true};
constexpr FormatQuestion holdsNen1878Headers = {
    u"De SUF2 file leek wel eerst een SUF2, maar bevat toch NEN1878 07-headers.\rToch als SUF2 verder verwerken ?",
    suf2Title, suf2Cancelled, false};

void AskFormat(const FormatQuestion& question) {
    LogBook& log = LogFile();
    log.WriteLine(question.text);
    Text text(question.text);
    std::replace(text.begin(), text.end(), u'\r', u'\n');
    const Answer answer = TheScreen().ShowMessage({text, Text(question.title), Icon::Question, Buttons::YesNoCancel});
    if (answer != Answer::Yes && answer != Answer::No) throw ImportCancelled{question.cancelMessage};
    const bool isNen = (answer == Answer::Yes) == question.yesMeansNen;
    TheRun().NenMode = isNen;
    log.WriteLine(isNen ? u"==>  Verwerking vervolgd als NEN1878 bestand"
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

void TakeProject(std::string_view line) {
    RunValues& run = TheRun();
    std::string_view name = Trim(Columns(line, 39, 62));
    if (name.empty()) name = Trim(Columns(line, 3, 14));
    run.ProjectName = FromWindows1252(name);
    run.ProjectDate = ProjectDateOf(line);
}

// The factor of the precision digit d: 1 / 10^(4 - d).
double CoordinateScaleOf(int precision) {
    constexpr std::array<double, 6> powersOfTen = {1, 1e1, 1e2, 1e3, 1e4, 1e5};
    return precision <= 4 ? 1 / powersOfTen[static_cast<std::size_t>(4 - precision)]
                          : powersOfTen[static_cast<std::size_t>(precision - 4)];
}

// The precision digit stands in column 7 of NEN1878 and column 8 of SUF2; five header values in ten columns each follow
// from column 13 on.
CoordinateFrame FrameOf(std::string_view line) {
    const auto number = [line](std::size_t first, std::size_t last) {
        return LeadingNumber(Columns(line, first, last));
    };
    const std::size_t precisionColumn = TheRun().NenMode ? 7 : 8;
    const double scale = CoordinateScaleOf(static_cast<int>(number(precisionColumn, precisionColumn)));
    CoordinateFrame frame;
    frame.originX = WithoutOverflow(1000 * number(13, 22));
    frame.originY = WithoutOverflow(1000 * number(23, 32));
    frame.scale = WithoutOverflow(scale * number(33, 42));
    frame.originZ = WithoutOverflow(1000 * number(43, 52));
    frame.scaleZ = WithoutOverflow(scale * number(53, 62));
    return frame;
}

// Whether the 02 record looks like the other variant's; the user decides.
void CheckFormat(std::string_view line) {
    const bool& isNen = TheRun().NenMode;
    if (isNen && Columns(line, 7, 7) == "0") AskFormat(looksLikeSuf2);
    const std::string_view column8 = Columns(line, 8, 8);
    if (!isNen && !column8.empty() && static_cast<unsigned char>(column8[0]) > '1') AskFormat(looksLikeNen1878);
}

// Reads a header line; false, with a message, when it does not begin with its record type.
bool ReadHeaderLine(LineReader& file, std::string_view type, TextView message, std::string_view& line) {
    const bool isThere = file.Next(line) && line.starts_with(type);
    CurrentInputLine() = file.LineNumber();
    if (isThere) return true;
    TheRun().outcome.wrongFormat = true;
    LogFile().WriteError(message);
    ShowMessage(message);
    return false;
}

bool ReadHeader(LineReader& file, CoordinateFrame& frame) {
    std::string_view line;
    if (!ReadHeaderLine(file, "01", u"NEN1878 bestand bevat geen '01' (KOP) record.", line)) return false;
    TakeProject(line);
    if (!ReadHeaderLine(file, "02", u"NEN1878 bestand bevat geen '02' (KOP) record.", line)) return false;
    const std::string record(line);
    CheckFormat(record);
    frame = FrameOf(record);
    ShowStatus(TheRun().NenMode ? u"Inlezen NEN1878" : u"Inlezen SUF2");
    return true;
}

// Has an object of the current group read, and accounts for it.
void ImportObject(ImportRun& run, ObjectKind kind, std::optional<LeftOut> (*reader)(ImportRun&)) {
    ++TheAccount()[kind].read;
    try {
        SettleObject(kind, reader(run));
    } catch (...) {
        SettleObject(kind, LeftOut::Unfinished);
        throw;
    }
}

// Has the objects of a 03 or 05 group read. One without a code brings nothing.
void ImportObjects(ImportRun& run) {
    run.group = ReadObjects(run);
    const GroupObjects& group = run.group;
    const bool hasObjects = group.isPoint || group.isLine || group.isArc || group.isSymbol || group.isText;
    if (!hasObjects || group.ObjectCode.empty()) return LeaveObjects(group, LeftOut::NoCode);
    if (group.isPoint) ImportObject(run, ObjectKind::Point, ImportPointGroup);
    if (group.isLine) ImportObject(run, ObjectKind::LineString, ImportLineGroup);
    if (group.isArc) ImportObject(run, ObjectKind::Arc, ImportArcGroup);
    if (group.isSymbol) ImportObject(run, ObjectKind::Point, ImportSymbolGroup);
    if (group.isText) ImportObject(run, ObjectKind::TextObject, ImportTextGroup);
}

void ImportGroups(ImportRun& run) {
    while (true) {
        run.records.ReadRecordGroup(0);
        const std::string_view type = run.records.RecordType();
        if (type == "03" || type == "05") {
            ImportObjects(run);
        } else if (type == "07") {
            if (!TheRun().NenMode) AskFormat(holdsNen1878Headers);
        } else if (type == "99") {
            return;
        }
    }
}

SelectionRectangle SelectionOf(const FormKORVANDE& form) {
    const auto number = [](const Text& text) { return LeadingNumber(ToWindows1252(text)); };
    return {form.chkSelectXY, number(form.txtMinX), number(form.txtMaxX), number(form.txtMinY), number(form.txtMaxY)};
}

void OpenIdexOutput() {
    const Text& name = TheRun().IdexFileName;
    try {
        OpenOutput(name);
    } catch (const RuntimeError& error) {
        TheRun().outcome.outputFailed = true;
        ReportOpenFailure(name, error);
    }
}

void Import(LineReader& file) {
    ImportRun run(file);
    run.selection = SelectionOf(frmKORVANDE());
    run.withUnknowns = frmKORVANDE().chkImportUnknowns;
    try {
        if (!ReadHeader(file, run.frame)) return;
        ImportGroups(run);
    } catch (const ImportCancelled& cancelled) {
        TheRun().outcome.cancelled = true;
        LogFile().WriteLine(Concat(u"==>  ", cancelled.message));
        ShowMessage(cancelled.message);
        return;
    }
    CurrentInputLine() = 0;
    CleanUpPointNumbers();
}

}  // namespace

void ImportNenSuf() {
    ResetDrawing();
    TheRun().ProjectName.clear();
    TheRun().ProjectDate.reset();
    LineReader file;
    const bool isOpen = OpenInput(file, TheRun().SufNenFileName);
    OpenIdexOutput();
    if (isOpen) ReadInput(file, [&file] { Import(file); });
}

}  // namespace korvande
