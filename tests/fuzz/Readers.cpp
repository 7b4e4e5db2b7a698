#include <algorithm>

#include "core/RuntimeError.h"
#include "core/modKORVANDE.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modImportSUFNEN.h"
#include "project/frmKORVANDE.h"
#include "run/ObjectAccount.h"
#include "run/RunValues.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"

namespace korvande::fuzz {

namespace {

unsigned OptionsOf(std::string_view& input) {
    if (input.empty()) return 0;
    const auto options = static_cast<unsigned char>(input.front());
    input.remove_prefix(1);
    return options;
}

// A malformed file may end a reader with a run-time error, and with nothing else.
void Read(void (*reader)()) {
    try {
        reader();
    } catch (const RuntimeError& error) {
        Require(!error.Description().empty(), "an error without a description");
    }
}

// What a drawing refers to is there, or is index 0, which says that it is not.
void RequireSoundDrawing() {
    const Drawing& drawing = TheDrawing();
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
void RequireDrawingInProportion(std::string_view file) {
    const Drawing& drawing = TheDrawing();
    const auto rows = 1 + std::count_if(file.begin(), file.end(), [](char c) { return c == '\n' || c == '\r'; });
    Require(drawing.Points.UpperBound() <= rows && drawing.Edges.UpperBound() <= rows, "more objects than lines");
    Require(drawing.Texts.UpperBound() <= 3 * rows, "more texts than lines account for");
    Require(drawing.Lines.UpperBound() <= std::max<std::int64_t>(1'000'000, 10 * rows), "a boundless line number");
}

}  // namespace

void TryIdex(std::string_view input) {
    const unsigned options = OptionsOf(input);
    ResetProgram();
    FormKORVANDE& form = frmKORVANDE();
    form.chkExportPointnoAsText = (options & 1U) != 0;
    form.chkExportHeightAsText = (options & 2U) != 0;
    form.txtPnoTxtLKI = u"Z30";
    form.txtEleTxtLKI = u"Z31";
    form.SetDateOption(&FormKORVANDE::optDateAlt, (options & 4U) != 0);
    const AnsweringScreen screen(Answer::Cancel);
    TheRun().IdexFileName = WriteFile("invoer", input);
    Read(ReadIdexFile);
    RequireSoundDrawing();
    RequireDrawingInProportion(input);
}

void TryExchange(std::string_view input) {
    const unsigned options = OptionsOf(input);
    ResetProgram();
    LoadProjectFile(WriteFile("tabel", someTable));
    SaveGridData();
    FormKORVANDE& form = frmKORVANDE();
    form.chkImportUnknowns = (options & 1U) != 0;
    form.chkSelectXY = (options & 2U) != 0;
    form.chkImportSymRotation = (options & 4U) != 0;
    TheRun().NenMode = (options & 8U) != 0;
    const AnsweringScreen screen((options & 16U) != 0 ? Answer::No : Answer::Yes);
    TheRun().SufNenFileName = WriteFile("invoer", input);
    TheRun().IdexFileName = NameOf("uitvoer");
    Read(ImportNenSuf);
    RequireSoundDrawing();
    for (const ObjectKind kind : {ObjectKind::Point, ObjectKind::LineString, ObjectKind::Arc, ObjectKind::TextObject}) {
        const KindAccount& account = TheAccount()[kind];
        Require(account.read == account.kept + account.LeftOutTotal(), "an object vanished unaccounted for");
    }
}

}  // namespace korvande::fuzz
