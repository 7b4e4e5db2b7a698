#include "cli/BatchSummary.h"

#include <algorithm>

#include "cli/Arguments.h"
#include "cli/Print.h"
#include "translation/Problem.h"

namespace korvande {

namespace {

void TellLines(TextView title, const std::vector<Text>& lines) {
    if (lines.empty()) return;
    PrintErrorLine(title);
    for (const Text& line : lines) PrintErrorLine(Concat(u"  ", line));
}

Text Counted(std::int64_t count, TextView one, TextView many) { return Concat(count, u" ", count == 1 ? one : many); }

Text FilesOf(const InputFiles& inputs) {
    return Counted(static_cast<std::int64_t>(inputs.files.size()), u"bestand", u"bestanden");
}

// How many files of folders were passed over, in these words behind "bestand" and "bestanden".
void TellPassedOver(const InputFiles& inputs, TextView one, TextView many) {
    if (inputs.passedOver == 1) {
        PrintErrorLine(Concat(u"1 ander bestand ", one, u" en deed niet mee"));
    } else if (inputs.passedOver > 1) {
        PrintErrorLine(Concat(inputs.passedOver, u" andere bestanden ", many, u" en deden niet mee"));
    }
}

// The problems of all of them by kind.
void TellProblems(const Problems& problems) {
    TellLines(u"Niet of anders overgekomen:", problems.Lines(ProblemList::Loss));
    TellLines(u"Volgens de controletabel en de instellingen:", problems.Lines(ProblemList::Wanted));
}

constexpr TextView noDrawing = u"is geen tekening";
constexpr TextView noDrawings = u"zijn geen tekening";

}  // namespace

void TellTranslated(const InputFiles& inputs, const std::vector<TranslateRow>& rows, const Problems& problems) {
    TranslateRow total;
    for (const TranslateRow& row : rows) {
        total.read += row.read;
        total.written += row.written;
        total.leftOut += row.leftOut;
        total.errors += row.errors;
    }
    const auto count = [&rows](auto isIt) { return std::count_if(rows.begin(), rows.end(), isIt); };
    const auto skipped = count([](const TranslateRow& row) { return row.isSkipped; });
    const auto failed = count([](const TranslateRow& row) { return row.status == status::failed; });
    const auto translated = static_cast<std::int64_t>(rows.size()) - skipped - failed;
    const auto notTranslated = static_cast<std::int64_t>(inputs.files.size()) - skipped - translated;
    Text line = Concat(u"Alles samen: ", FilesOf(inputs), u", waarvan ", translated, u" vertaald");
    if (skipped > 0) AppendTo(line, Concat(u", ", skipped, u" eerder vertaald"));
    if (notTranslated > 0) AppendTo(line, Concat(u", ", notTranslated, u" niet vertaald"));
    PrintErrorLine(line);
    TellPassedOver(inputs, u"past niet bij de modus", u"passen niet bij de modus");
    PrintErrorLine(Concat(Counted(total.read, u"object", u"objecten"), u" gelezen, ", total.written, u" geschreven, ",
                          total.leftOut, u" weggelaten; ", Counted(total.errors, u"fout", u"fouten")));
    TellProblems(problems);
}

void TellChecked(const InputFiles& inputs, const std::vector<CheckedFile>& files, const Problems& problems) {
    CheckResult total;
    for (const CheckedFile& file : files) {
        total.points += file.result.points;
        total.lineStrings += file.result.lineStrings;
        total.edges += file.result.edges;
        total.texts += file.result.texts;
        total.unknown += file.result.unknown;
    }
    const auto count = [&files](int status) {
        return std::count_if(files.begin(), files.end(),
                             [status](const CheckedFile& file) { return file.result.status == status; });
    };
    Text line = Concat(u"Alles samen: ", FilesOf(inputs), u", waarvan ", count(status::done), u" zonder problemen");
    if (const auto failed = count(status::failed); failed > 0) AppendTo(line, Concat(u", ", failed, u" niet te lezen"));
    PrintErrorLine(line);
    TellPassedOver(inputs, noDrawing, noDrawings);
    PrintErrorLine(Concat(total.points, u" punten, ", total.lineStrings, u" lijnstrings, ", total.edges,
                          u" lijnsegmenten, ", total.texts, u" teksten, ", total.unknown, u" onbekende objecten; ",
                          Counted(problems.errors, u"fout", u"fouten")));
    TellProblems(problems);
}

void TellTakenOver(const InputFiles& inputs, std::int64_t takenOver, const Problems& problems) {
    Text line = Concat(u"Alles samen: ", FilesOf(inputs), u", waarvan ", takenOver, u" overgenomen");
    const auto others = static_cast<std::int64_t>(inputs.files.size()) - takenOver;
    if (others > 0) AppendTo(line, Concat(u", ", others, u" niet overgenomen"));
    PrintErrorLine(line);
    TellPassedOver(inputs, noDrawing, noDrawings);
    TellProblems(problems);
}

}  // namespace korvande
