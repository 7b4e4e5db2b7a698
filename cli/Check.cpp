#include <algorithm>

#include "cli/Arguments.h"
#include "cli/Process.h"
#include "core/ConsoleScreen.h"
#include "core/NativePath.h"
#include "core/Picture.h"
#include "core/modKORVANDE.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modExportSUFNEN.h"
#include "nensuf/modImportSUFNEN.h"
#include "project/CodeTables.h"
#include "project/frmKORVANDE.h"
#include "run/InputFile.h"
#include "run/LogBook.h"
#include "run/ObjectAccount.h"

namespace korvande {

namespace {

enum class Format { Idex, Nen1878, Suf2, Unknown };

TextView NameOf(Format format) {
    switch (format) {
        case Format::Idex:
            return u"IDEX";
        case Format::Nen1878:
            return u"NEN1878";
        case Format::Suf2:
            return u"SUF2";
        default:
            return u"onbekend";
    }
}

// What is wrong with the file being checked, one line each.
class Problems {
 public:
    void Add(TextView message) {
        ++count;
        const std::int64_t line = CurrentInputLine();
        const bool tellsLine = message.ends_with(u")") && message.find(u" (regel ") != TextView::npos;
        PrintLine(line > 0 && !tellsLine ? Concat(u"  ", message, u" (regel ", line, u")") : Concat(u"  ", message));
    }
    std::int64_t Count() const noexcept { return count; }

 private:
    std::int64_t count = 0;
};

// A screen for checking: messages say what the problems say already, and a question about the format is a problem,
// after which the check goes on with what is proposed.
class CheckScreen : public ConsoleScreen {
 public:
    explicit CheckScreen(Problems& problemList) : ConsoleScreen(false), problems(problemList) {
        isInterrupted = IsInterrupted;
    }
    Answer ShowMessage(const MessageBox& box) override {
        if (box.buttons != Buttons::YesNoCancel) return Answer::Ok;
        Text message = box.text;
        std::replace(message.begin(), message.end(), u'\n', u' ');
        problems.Add(message);
        return Answer::Yes;
    }

 private:
    Problems& problems;
};

// The format by the file's content: a HEADER line, or an 01 and an 02 record, whose precision digit stands in column 7
// for NEN1878. A RuntimeError when the file cannot be read.
Format Recognise(TextView name) {
    LineReader file(name);
    std::string_view line;
    if (!file.Next(line)) return Format::Unknown;
    if (line.starts_with("01")) {
        if (!file.Next(line) || !line.starts_with("02") || line.size() < 8) return Format::Unknown;
        return line[6] == '0' ? Format::Suf2 : Format::Nen1878;
    }
    do {
        if (ToCapitals(line).find("HEADER") != std::string::npos) return Format::Idex;
    } while (file.Next(line));
    return Format::Unknown;
}

// One step of a translation: an error that escapes it is a problem, after which the next step follows.
void RunStep(void (*step)()) {
    try {
        step();
    } catch (const std::exception&) {
        LogFile().WriteEscapedError(CurrentError());
    }
    CurrentInputLine() = 0;
}

// Reads the file and looks every code up, as a translation would. What an IDEX file refers to is followed by exporting
// it to nowhere.
void ReadFile(Format format, const Text& name) {
    RunValues& run = TheRun();
    run.outcome = {};
    run.withDiagnosticFiles = false;
    run.temporaryOutput = NullDevice();
    TheAccount() = {};
    SaveGridData();
    if (format == Format::Idex) {
        run.IdexFileName = name;
        RunStep(ReadIdexFile);
        RunStep(ExportSufNen);
    } else {
        run.SufNenFileName = name;
        run.NenMode = format == Format::Nen1878;
        RunStep(ImportNenSuf);
    }
}

void PrintCounts(const Drawing& drawing) {
    PrintLine(Concat(u"Aantallen: ", drawing.Points.UpperBound(), u" punten, ", drawing.Lines.UpperBound(),
                     u" lijnstrings, ", drawing.Edges.UpperBound(), u" lijnsegmenten, ", drawing.Texts.UpperBound(),
                     u" teksten"));
    const auto& points = drawing.Points;
    if (points.UpperBound() == 0) return;
    double minX = points[1].East;
    double maxX = minX;
    double minY = points[1].North;
    double maxY = minY;
    for (std::int32_t index = 2; index <= points.UpperBound(); ++index) {
        minX = std::min(minX, points[index].East);
        maxX = std::max(maxX, points[index].East);
        minY = std::min(minY, points[index].North);
        maxY = std::max(maxY, points[index].North);
    }
    const auto metres = [](double value) { return FormatPicture(value, "0.000"); };
    PrintLine(
        Concat(u"Omvang: X ", metres(minX), u" tot ", metres(maxX), u", Y ", metres(minY), u" tot ", metres(maxY)));
}

void PrintCodes(TextView heading, const CodeTable& table) {
    bool isFirst = true;
    for (std::size_t row = 1; row < table.rows.size(); ++row) {
        const CodeRow& code = table.rows[row];
        if (code.Count == 0) continue;
        if (isFirst) PrintLine(heading);
        isFirst = false;
        PrintLine(Concat(u"  ", code.LiscadCode.View(), u" = ", code.LkiCode.View(), u" ", code.Description.View(),
                         u" ", code.Count, u" maal"));
    }
}

// The codes that the control table does not know; each is a problem.
void AddUnknownCodes(Problems& problems) {
    auto& entries = TheDrawing().UnknownCodes.Entries();
    std::sort(entries.begin(), entries.end(),
              [](const UnknownCodeRec& a, const UnknownCodeRec& b) { return a.Code.View() < b.Code.View(); });
    for (const UnknownCodeRec& unknown : entries) {
        const TextView key = unknown.Code.View();
        const TextView kind = key[0] == u'P' ? u"Puntcode" : key[0] == u'L' ? u"Lijncode" : u"Tekstcode";
        problems.Add(Concat(kind, u" '", TrimRight(key.substr(1)), u"' staat niet in de controletabel: ", unknown.Count,
                            u" maal"));
    }
}

int CheckOne(const std::string& file) {
    const Text name = FromUtf8(file);
    Problems problems;
    CheckScreen screen(problems);
    const ScreenInUse inUse(screen);
    Format format = Format::Unknown;
    try {
        format = Recognise(name);
    } catch (const RuntimeError& error) {
        PrintErrorLine(
            Concat(u"Kon bestand: '", name, u"' niet openen;\nFoutcode: ", error.Number(), u"\n", error.Description()));
        return status::failed;
    }
    if (format == Format::Unknown) {
        PrintErrorLine(Concat(name, u": geen IDEX, NEN1878 of SUF2 bestand."));
        return status::failed;
    }
    PrintLine(Concat(u"Bestand: ", name, u" (", NameOf(format), u")"));
    PrintLine(u"Problemen:");
    LogFile().onError = [&problems](TextView message) { problems.Add(message); };
    ReadFile(format, name);
    LogFile().onError = nullptr;
    AddUnknownCodes(problems);
    if (problems.Count() == 0) PrintLine(u"  geen");
    PrintCounts(TheDrawing());
    PrintCodes(u"Lijncodes:", LineCodes());
    PrintCodes(u"Puntcodes:", PointCodes());
    PrintCodes(u"Tekstcodes:", TextCodes());
    if (TheRun().outcome.inputUnreadable || TheRun().outcome.wrongFormat) return status::failed;
    return problems.Count() == 0 ? status::done : status::withErrors;
}

}  // namespace

int Check(const std::string& project, const std::vector<std::string>& files) {
    {
        ConsoleScreen screen(false);
        const ScreenInUse inUse(screen);
        if (!LoadControlTable(project)) return status::failed;
    }
    frmKORVANDE().chkExportUnknowns = frmKORVANDE().chkImportUnknowns = true;
    int worst = status::done;
    for (const std::string& file : files) {
        try {
            worst = std::max(worst, CheckOne(file));
        } catch (const TranslationAborted&) {
            return status::failed;
        }
    }
    return worst;
}

}  // namespace korvande
