#include "tests/fuzz/Runs.h"

#include "idex/modImportIDEX.h"
#include "nensuf/modImportSUFNEN.h"
#include "run/TranslateFiles.h"
#include "tests/fuzz/Mutators.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"
#include "translation/Translation.h"

namespace korvande::fuzz {

Choice TakeChoice(std::string_view& input) {
    const auto byte = input.empty() ? 0U : static_cast<unsigned char>(input.front());
    input.remove_prefix(input.empty() ? 0 : 1);
    return {modes[byte % modes.size()].mode, (byte & 4U) != 0 ? Answer::No : Answer::Yes, (byte & 8U) != 0,
            static_cast<std::int32_t>((byte >> 4U) % 6)};
}

void ApplyChoice(const Choice& choice, Options& options) {
    options.chkSelectXY = choice.withSelection;
    options.lstSource = choice.source;
}

std::string_view TakeTable(std::string_view& input) {
    const std::string_view table = input.substr(0, EndOfTable(input));
    input.remove_prefix(table.size());
    return table.empty() ? someTable : table;
}

namespace {

std::int64_t CountOf(std::string_view text, std::string_view part) {
    std::int64_t count = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string_view::npos; at += part.size()) ++count;
    return count;
}

// The log book tells of the whole run, and of every error.
void RequireLogBook(std::int64_t errors) {
    const std::string log = FileBytes("logboek");
    Require(log.starts_with("\r\n--- LISCAD  -  NEN1878/SUF2 Vertaler "), "the log book has no heading");
    Require(log.find("\r\n     Gereed:     ") != std::string::npos, "the log book has no end");
    Require(CountOf(log, "\r\nFOUT:  ") == errors, "the log book misses an error");
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
void ReadExchangeBack(const Translation& there, const Project& project) {
    RequireRecords(there.outputBytes);
    AnsweringScreen screen(Answer::Cancel);
    Translation back(screen, project);
    back.mode = {Direction::ToIdex, there.mode.variant};
    back.options.chkSelectXY = false;
    back.options.chkImportUnknowns = true;
    back.inputBytes = there.outputBytes;
    back.outputTo = OutputTo::Nowhere;
    ImportNenSuf(back);
    const ObjectAccount& read = back.account;
    const ObjectAccount& written = there.account;
    Require(screen.Questions() == 0, "the output looks like the other variant");
    Require(!back.outcome.Failed(), "the output cannot be read back");
    Require(read[ObjectKind::Point].read == written[ObjectKind::Point].written, "other points than written");
    Require(read[ObjectKind::LineString].read + read[ObjectKind::Arc].read == written[ObjectKind::LineSegment].written,
            "other segments than written");
    Require(read[ObjectKind::TextObject].read == written[ObjectKind::TextObject].written, "other texts than written");
    Require(read[ObjectKind::Other].read == 0, "records of objects that nobody wrote");
}

bool HaveTheSameCounts(const Drawing& a, const Drawing& b) {
    return a.Points.UpperBound() == b.Points.UpperBound() && a.Lines.UpperBound() == b.Lines.UpperBound() &&
           a.Edges.UpperBound() == b.Edges.UpperBound() && a.Texts.UpperBound() == b.Texts.UpperBound();
}

void ReadIdexBack(const Translation& there, const Project& project) {
    Require(there.outputBytes.ends_with("END DATABASE\r\n"), "the output has no end");
    AnsweringScreen screen(Answer::Cancel);
    Translation back(screen, project);
    back.mode = {Direction::FromIdex, there.mode.variant};
    back.options.chkExportPointnoAsText = back.options.chkExportHeightAsText = false;
    back.withDiagnosticFiles = false;
    back.inputBytes = there.outputBytes;
    ReadIdexFile(back);
    Require(!back.outcome.Failed() && back.problems.errors == 0, "the output cannot be read back");
    Require(HaveTheSameCounts(back.drawing, there.drawing), "another drawing than written");
}

}  // namespace

void TryRun(std::string_view input) {
    const Choice choice = TakeChoice(input);
    const std::string_view table = TakeTable(input);
    AnsweringScreen screen(choice.answer);
    Project project = ProjectOf(screen, table);
    ApplyChoice(choice, project.options);
    Translation translation(screen, project);
    translation.mode = choice.mode;
    translation.modeText = NamesOf(choice.mode).text;
    translation.inputBytes = input;
    translation.outputTo = OutputTo::Memory;
    translation.LogFileName = NameOf("logboek");
    translation.withDiagnosticFiles = false;
    Require(TranslateFiles(translation), "the run did not begin");
    Require(translation.account.Balances(),
            "the account of objects does not balance:\n" + ToUtf8(translation.account.Summary()));
    RequireLogBook(translation.problems.errors);
    if (translation.outcome.Failed()) return;
    if (choice.mode.direction == Direction::FromIdex) {
        ReadExchangeBack(translation, project);
    } else {
        ReadIdexBack(translation, project);
    }
}

}  // namespace korvande::fuzz
