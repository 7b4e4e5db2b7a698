#include "core/modKORVANDE.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modImportSUFNEN.h"
#include "project/frmKORVANDE.h"
#include "run/LogBook.h"
#include "run/ObjectAccount.h"
#include "run/RunValues.h"
#include "run/TranslateFiles.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"

namespace korvande::fuzz {

namespace {

// The options of a run in its first byte.
struct Options {
    int mode = 0;  // place in the mode list
    Answer answer = Answer::Yes;
    bool withSelection = false;
    int source = 0;  // place in the list of source kinds

    explicit Options(unsigned char byte)
        : mode(byte % 4),
          answer((byte & 4U) != 0 ? Answer::No : Answer::Yes),
          withSelection((byte & 8U) != 0),
          source((byte >> 4U) % 6) {}
    bool IsFromIdex() const noexcept { return mode < 2; }
};

// Takes the control table in front of the drawing, up to its "[End]" line. Without one the drawing is all there is.
std::string_view TakeTable(std::string_view& input) {
    constexpr std::string_view tableEnd = "[End]\r\n";
    const std::size_t end = input.find(tableEnd);
    if (end == std::string_view::npos) return someTable;
    const std::string_view table = input.substr(0, end + tableEnd.size());
    input.remove_prefix(table.size());
    return table;
}

std::int64_t CountOf(std::string_view text, std::string_view part) {
    std::int64_t count = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string_view::npos; at += part.size()) ++count;
    return count;
}

// The log book tells of the whole run, and of every error.
void RequireLogBook() {
    const std::string log = FileBytes("logboek");
    Require(log.starts_with("\r\n--- LISCAD  -  NEN1878/SUF2 Vertaler "), "the log book has no heading");
    Require(log.find("\r\n     Gereed:     ") != std::string::npos, "the log book has no end");
    Require(CountOf(log, "\r\nFOUT:  ") == LogFile().ErrorCount(), "the log book misses an error");
}

// Lines of 64 columns from the 01 to the 99 record.
void RequireRecords(std::string_view output) {
    constexpr std::size_t lineLength = 66;
    Require(output.size() % lineLength == 0 && output.starts_with("01"), "the output is no file of records");
    for (std::size_t at = 0; at < output.size(); at += lineLength) {
        const std::string_view line = output.substr(at, lineLength);
        Require(line.ends_with("\r\n") && line.find_first_of("\r\n") == lineLength - 2, "a record of another length");
    }
    Require(output.substr(output.size() - lineLength).starts_with("99"), "the output has no closing record");
}

// Every object that was written is found in the output again, and nothing else: no text of it became structure.
void ReadExchangeBack(int mode) {
    const std::string output = FileBytes("uitvoer");
    RequireRecords(output);
    const ObjectAccount written = TheAccount();
    TheAccount() = {};
    TheRun() = {};
    frmKORVANDE().cboXlateMode.index = mode + 2;
    TakeVariantFromMode();
    frmKORVANDE().chkSelectXY = false;
    frmKORVANDE().chkImportUnknowns = true;
    TheRun().SufNenFileName = NameOf("uitvoer");
    TheRun().IdexFileName = NameOf("terug");
    const AnsweringScreen screen(Answer::Cancel);
    ImportNenSuf();
    const ObjectAccount& back = TheAccount();
    Require(screen.Questions() == 0, "the output looks like the other variant");
    Require(!TheRun().outcome.Failed(), "the output cannot be read back");
    Require(back[ObjectKind::Point].read == written[ObjectKind::Point].written, "other points than written");
    Require(back[ObjectKind::LineString].read + back[ObjectKind::Arc].read == written[ObjectKind::LineSegment].written,
            "other segments than written");
    Require(back[ObjectKind::TextObject].read == written[ObjectKind::TextObject].written, "other texts than written");
    Require(back[ObjectKind::Other].read == 0, "records of objects that nobody wrote");
}

struct Counts {
    std::int32_t points = TheDrawing().Points.UpperBound();
    std::int32_t lines = TheDrawing().Lines.UpperBound();
    std::int32_t edges = TheDrawing().Edges.UpperBound();
    std::int32_t texts = TheDrawing().Texts.UpperBound();
    bool operator==(const Counts&) const = default;
};

void ReadIdexBack() {
    Require(FileBytes("uitvoer").ends_with("END DATABASE\r\n"), "the output has no end");
    const Counts written;
    TheRun() = {};
    TheRun().withDiagnosticFiles = false;
    TheRun().IdexFileName = NameOf("uitvoer");
    frmKORVANDE().chkExportPointnoAsText = frmKORVANDE().chkExportHeightAsText = false;
    LogFile() = LogBook();
    ReadIdexFile();
    Require(!TheRun().outcome.Failed() && LogFile().ErrorCount() == 0, "the output cannot be read back");
    Require(Counts() == written, "another drawing than written");
}

void Translate(const Options& options) {
    RunValues& run = TheRun();
    frmKORVANDE().cboXlateMode.index = options.mode;
    run.XlateDirection = options.IsFromIdex() ? fromIdex : toIdex;
    run.IdexFileName = NameOf(options.IsFromIdex() ? "invoer" : "uitvoer");
    run.SufNenFileName = NameOf(options.IsFromIdex() ? "uitvoer" : "invoer");
    run.LogFileName = NameOf("logboek");
    SaveGridData();
    Require(TranslateFiles(), "the run did not begin");
}

}  // namespace

void TryRun(std::string_view input) {
    const Options options(input.empty() ? 0 : static_cast<unsigned char>(input.front()));
    input = input.substr(input.empty() ? 0 : 1);
    ResetProgram();
    const std::string_view table = TakeTable(input);
    WriteFile("invoer", input);
    {
        const AnsweringScreen screen(options.answer);
        Require(LoadProjectFile(WriteFile("tabel", table)), "the control table was not loaded");
        frmKORVANDE().chkSelectXY = options.withSelection;
        frmKORVANDE().lstSource.index = options.source;
        Translate(options);
    }
    Require(TheAccount().Balances(), "the account of objects does not balance:\n" + ToUtf8(TheAccount().Summary()));
    RequireLogBook();
    if (TheRun().outcome.Failed()) return;
    if (options.IsFromIdex()) {
        ReadExchangeBack(options.mode);
    } else {
        ReadIdexBack();
    }
}

}  // namespace korvande::fuzz
