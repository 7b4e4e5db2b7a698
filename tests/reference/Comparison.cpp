#include "tests/reference/Comparison.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "core/Numbers.h"
#include "tests/reference/Texts.h"
#include "tests/reference/Translate.h"

namespace korvande::reference {

namespace {

// A text of fixed width that was never filled holds characters 0, and is blank.
std::string Bytes(TextView text) {
    std::string bytes;
    const bool isFilled = !text.empty() && text.front() != 0;
    for (const char16_t c : text) bytes += isFilled ? ToWindows1252(c) : ' ';
    return bytes;
}

std::string Filled(std::string_view bytes) {
    const bool isFilled = bytes.find_first_not_of('\0') != std::string_view::npos;
    return isFilled ? std::string(bytes) : std::string(bytes.size(), ' ');
}

Table TableOf(const CodeTable& table) {
    Table rows;
    for (const CodeRow& row : table.rows) {
        rows.push_back({Bytes(row.LiscadCode.View()), Bytes(row.LkiCode.View()), Bytes(row.Type.View()),
                        Bytes(row.Description.View()), row.P, row.I, row.B});
    }
    return rows;
}

Answer AnswerOf(korvande::Answer answer) {
    if (answer == korvande::Answer::Yes) return Answer::Yes;
    return answer == korvande::Answer::No ? Answer::No : Answer::Cancel;
}

Drawing DrawingOf(const Translation& run) {
    const korvande::Drawing& from = run.drawing;
    Drawing to;
    for (std::int32_t i = 1; i <= from.Points.UpperBound(); ++i) {
        const PointRec& point = from.Points[i];
        to.points.push_back({point.East, point.North, point.Elevation, point.SymDir, point.PointNo,
                             Filled(point.PointIDBytes().View()), Filled(from.CodeBytes(point).View()),
                             Filled(from.DescriptionBytes(point).View())});
    }
    to.lines.resize(static_cast<std::size_t>(std::max(from.Lines.UpperBound(), 0)) + 1);
    for (std::int32_t i = 1; i <= from.Lines.UpperBound(); ++i) {
        const LineRec& line = from.Lines[i];
        const bool isBlank = from.CodeBytes(line).IsBlank() && from.DescriptionBytes(line).IsBlank();
        if (isBlank && line.Flags1 == 0 && line.Flags2 == 0) continue;
        to.lines[static_cast<std::size_t>(i)] = {Filled(from.CodeBytes(line).View()),
                                                 Filled(from.DescriptionBytes(line).View()), line.Flags1, line.Flags2};
    }
    for (std::int32_t i = 1; i <= from.Edges.UpperBound(); ++i) {
        const EdgeRec& edge = from.Edges[i];
        to.edges.push_back({edge.LineNo, edge.StartPt, edge.EndPt, Filled(from.LineTypeBytes(edge).View())});
    }
    for (std::int32_t i = 1; i <= from.Texts.UpperBound(); ++i) {
        const TextRec& text = from.Texts[i];
        to.labels.push_back({text.AnchorPointNo, text.HzDirection, text.AnchorPosition,
                             Filled(from.CodeBytes(text).View()), Filled(text.CharacterBytes().View())});
    }
    return to;
}

// A number of the reference becomes the program's when they differ by no more than arithmetic may, so that what is made
// of them can be compared to the byte.
template <class Number>
void SettleNumber(Number program, Number& number, double doubt) {
    const double size = std::fmax(std::fabs(program), std::fabs(number));
    if (!(std::fabs(program - number) > doubt + 1e-9 + 1e-13 * size)) number = program;
}

void Settle(const Drawing& program, Drawing& drawing) {
    for (std::size_t i = 1; i < std::min(program.points.size(), drawing.points.size()); ++i) {
        Point& point = drawing.points[i];
        SettleNumber(program.points[i].east, point.east, point.doubt);
        SettleNumber(program.points[i].north, point.north, point.doubt);
        SettleNumber(program.points[i].height, point.height, 0);
        SettleNumber(program.points[i].direction, point.direction, 0);
    }
    for (std::size_t i = 1; i < std::min(program.labels.size(), drawing.labels.size()); ++i) {
        constexpr double asFloat = 1e-4;
        SettleNumber(program.labels[i].direction, drawing.labels[i].direction, asFloat);
    }
}

// The lines of a log book, from its start to its statistics, that tell of problems, questions and answers.
std::string ProblemsOf(const std::string& logBook) {
    std::string problems;
    std::istringstream lines(logBook);
    for (std::string line; std::getline(lines, line);) {
        if (EndsWith(line, "\r")) line.pop_back();
        if (BeginsWith(line, "FOUT:  ") || BeginsWith(line, "==>  ") || EndsWith(line, " verder verwerken ?") ||
            BeginsWith(line, "Tekening bevat ongeldige veldwerkdatum")) {
            problems += line + "\n";
        }
    }
    return problems;
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
}

std::string CountsOf(const Table& table) {
    std::string counts;
    for (const Row& row : table) counts += row.liscad + " " + std::to_string(row.uses) + "\n";
    return counts;
}

std::string CountsOf(const CodeTable& table) {
    std::string counts;
    for (const CodeRow& row : table.rows)
        counts += Bytes(row.LiscadCode.View()) + " " + std::to_string(row.Count) + "\n";
    return counts;
}

// Control characters would hide what stands behind them.
std::string Shown(std::string line) {
    for (char& c : line) {
        if (static_cast<unsigned char>(c) < 0x20) c = '?';
    }
    return line;
}

std::string FirstDifference(const std::string& what, const std::string& product, const std::string& reference) {
    if (product == reference) return "";
    std::istringstream ours(product);
    std::istringstream theirs(reference);
    for (int number = 1;; ++number) {
        std::string our;
        std::string their;
        const bool hasOur = static_cast<bool>(std::getline(ours, our));
        const bool hasTheir = static_cast<bool>(std::getline(theirs, their));
        if (hasOur != hasTheir || our != their || !hasOur) {
            return what + ", line " + std::to_string(number) + "\n  program:   " + (hasOur ? Shown(our) : "(none)") +
                   "\n  reference: " + (hasTheir ? Shown(their) : "(none)") + "\n";
        }
    }
}

// The tests fix the moment, in UTC.
Date Today() {
    const char* const moment = std::getenv("SOURCE_DATE_EPOCH");
    if (moment == nullptr) throw std::logic_error("the moment is not fixed");
    const std::chrono::sys_seconds now{std::chrono::seconds{std::atoll(moment)}};
    const std::chrono::year_month_day day{std::chrono::floor<std::chrono::days>(now)};
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

}  // namespace

Settings SettingsOf(const Project& project, const Translation& begun, korvande::Answer answer) {
    const Options& options = begun.options;
    Settings settings;
    settings.acceptUnknown = options.chkImportUnknowns;
    settings.importsToNorth = options.chkImportSymRotation;
    if (options.chkSelectXY) {
        settings.rectangle = Rectangle{LeadingNumber(Bytes(options.txtMinX)), LeadingNumber(Bytes(options.txtMaxX)),
                                       LeadingNumber(Bytes(options.txtMinY)), LeadingNumber(Bytes(options.txtMaxY))};
    }
    settings.answer = AnswerOf(answer);
    settings.includeUnknown = options.chkExportUnknowns;
    settings.namesAsField = options.chkExportPointnoAsField;
    settings.namesAsText = options.chkExportPointnoAsText;
    settings.heights = options.chkExport3D;
    settings.heightsAsText = options.chkExportHeightAsText;
    settings.exportsToNorth = options.chkExportSymRotation;
    settings.nameCode = Bytes(options.txtPnoTxtLKI);
    settings.heightCode = Bytes(options.txtEleTxtLKI);
    if (options.optDateNow) settings.dateFrom = DateFrom::Today;
    if (options.optDateAlt) settings.dateFrom = DateFrom::Project;
    settings.projectDate = Bytes(options.txtAltDatum);
    settings.sourceKind = options.lstSource;
    settings.today = Today();
    const OwnerRec& owner = project.owner;
    settings.nameLong = Bytes(owner.NameLong.View());
    settings.nameShort = Bytes(owner.NameShort.View());
    settings.street = Bytes(owner.Street.View());
    settings.number = Bytes(owner.Number.View());
    settings.suffix = Bytes(owner.Extra.View());
    settings.zipCode = Bytes(owner.ZipCode.View());
    settings.town = Bytes(owner.Town.View());
    settings.source = Bytes(owner.Source.View());
    settings.points = TableOf(begun.codes.points);
    settings.lines = TableOf(begun.codes.lines);
    settings.texts = TableOf(begun.codes.texts);
    return settings;
}

std::string DifferenceFrom(const Translation& run, const std::string& logBook, Settings settings) {
    const std::string input(*run.inputBytes);
    const Format format = run.mode.variant == Variant::Nen1878 ? Format::Nen1878 : Format::Suf2;
    const Direction direction =
        run.mode.direction == korvande::Direction::ToIdex ? Direction::ToIdex : Direction::FromIdex;
    Result result = ReadDrawing(input, direction, format, settings);
    // What a person's Yes makes of a file without LAYERS is no part of the reference.
    if (result.lacksLayers && settings.answer == Answer::Yes) return "";
    const Drawing drawing = DrawingOf(run);
    Settle(drawing, result.drawing);
    std::string difference = FirstDifference("drawing", Dump(drawing), Dump(result.drawing));
    if (!difference.empty()) return difference;
    WriteDrawing(result, direction, format, settings);
    difference = FirstDifference("log book", ProblemsOf(logBook), ProblemsOf(Joined(result.log)));
    difference += FirstDifference("points' codes", CountsOf(run.codes.points), CountsOf(settings.points));
    difference += FirstDifference("lines' codes", CountsOf(run.codes.lines), CountsOf(settings.lines));
    difference += FirstDifference("texts' codes", CountsOf(run.codes.texts), CountsOf(settings.texts));
    if (run.outcome.Failed() == result.isOfTheFormat) difference += "one of the two has an output, the other has none";
    if (run.outcome.Failed()) return difference;
    return difference + FirstDifference("output", run.outputBytes, result.output);
}

}  // namespace korvande::reference
