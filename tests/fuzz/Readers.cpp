#include <algorithm>

#include "core/RuntimeError.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modImportSUFNEN.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"
#include "translation/Translation.h"

namespace korvande::fuzz {

namespace {

unsigned OptionsOf(std::string_view& input) {
    if (input.empty()) return 0;
    const auto options = static_cast<unsigned char>(input.front());
    input.remove_prefix(1);
    return options;
}

// A malformed file may end a reader with a run-time error, and with nothing else.
void Read(void (*reader)(Translation&), Translation& translation) {
    try {
        reader(translation);
    } catch (const RuntimeError& error) {
        Require(!error.Description().empty(), "an error without a description");
    }
}

// What a drawing refers to is there, or is index 0, which says that it is not.
void RequireSoundDrawing(const Drawing& drawing) {
    const std::int32_t points = drawing.Points.UpperBound();
    for (std::int32_t index = 1; index <= points; ++index) {
        const std::int32_t found = drawing.PointIndex.Find(drawing.Points[index].PointNo);
        Require(found >= 1 && found <= points, "the point index misses a point");
    }
    for (std::int32_t index = 1; index <= drawing.Edges.UpperBound(); ++index) {
        const EdgeRec& edge = drawing.Edges[index];
        Require(edge.StartPt >= 0 && edge.StartPt <= points && edge.EndPt >= 0 && edge.EndPt <= points,
                "an edge refers to no element of the points");
    }
}

// No drawing is larger than its file accounts for. A row gives at most a point and two texts; line numbers up to a
// million are taken as they come.
void RequireDrawingInProportion(const Drawing& drawing, std::string_view file) {
    const auto rows = 1 + std::count_if(file.begin(), file.end(), [](char c) { return c == '\n' || c == '\r'; });
    Require(drawing.Points.UpperBound() <= rows && drawing.Edges.UpperBound() <= rows, "more objects than lines");
    Require(drawing.Texts.UpperBound() <= 3 * rows, "more texts than lines account for");
    Require(drawing.Lines.UpperBound() <= std::max<std::int64_t>(1'000'000, 10 * rows), "a boundless line number");
}

}  // namespace

void TryIdex(std::string_view input) {
    const unsigned choice = OptionsOf(input);
    AnsweringScreen screen(Answer::Cancel);
    Translation translation(screen, ProjectOf(screen, {}));
    Options& options = translation.options;
    options.chkExportPointnoAsText = (choice & 1U) != 0;
    options.chkExportHeightAsText = (choice & 2U) != 0;
    options.txtPnoTxtLKI = u"Z30";
    options.txtEleTxtLKI = u"Z31";
    SetDateOption(options, &Options::optDateAlt, (choice & 4U) != 0);
    translation.mode = {Direction::FromIdex, Variant::Nen1878};
    translation.inputBytes = input;
    translation.withDiagnosticFiles = false;
    Read(ReadIdexFile, translation);
    RequireSoundDrawing(translation.drawing);
    RequireDrawingInProportion(translation.drawing, input);
}

void TryExchange(std::string_view input) {
    const unsigned choice = OptionsOf(input);
    AnsweringScreen screen((choice & 16U) != 0 ? Answer::No : Answer::Yes);
    Translation translation(screen, ProjectOf(screen, someTable));
    Options& options = translation.options;
    options.chkImportUnknowns = (choice & 1U) != 0;
    options.chkSelectXY = (choice & 2U) != 0;
    options.chkImportSymRotation = (choice & 4U) != 0;
    translation.mode = {Direction::ToIdex, (choice & 8U) != 0 ? Variant::Nen1878 : Variant::Suf2};
    translation.inputBytes = input;
    translation.outputTo = OutputTo::Nowhere;
    Read(ImportNenSuf, translation);
    RequireSoundDrawing(translation.drawing);
    for (const ObjectKind kind : {ObjectKind::Point, ObjectKind::LineString, ObjectKind::Arc, ObjectKind::TextObject}) {
        const KindAccount& account = translation.account[kind];
        Require(account.read == account.kept + account.LeftOutTotal(), "an object vanished unaccounted for");
    }
}

}  // namespace korvande::fuzz
