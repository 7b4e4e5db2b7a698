#include "ui/GridCommands.h"

#include "app/GridEditing.h"
#include "app/GridFiles.h"
#include "app/GridHistory.h"
#include "app/GridRows.h"
#include "app/GridView.h"
#include "ui/CodeGrid.h"
#include "ui/GridFileDialogs.h"

namespace korvande {

namespace {

// An action that has nothing to tell.
std::function<Text()> Quietly(std::function<void()> action) {
    return [action = std::move(action)] {
        action();
        return Text();
    };
}

bool Always() { return true; }

std::vector<GridCommand> RowCommands(FormKORVANDE& form, EditedGrid& edited) {
    const auto move = [&form, &edited](int step) {
        return Quietly([&form, &edited, step] { MoveRow(form, edited, step); });
    };
    const auto mayMove = [&edited](int step) { return [&edited, step] { return CanMoveRow(edited, step); }; };
    return {{"cmdAddRow", u"Regel &toevoegen", u"Insert", u"Voegt onderaan de tabel een regel toe",
             Quietly([&form, &edited] { GridKeyDown(form, edited, keys::insertRow); }), Always, true, true},
            {"cmdDeleteRow", u"Regel &wissen", u"Delete", u"Wist de regel van de gekozen cel",
             Quietly([&form, &edited] { GridKeyDown(form, edited, keys::deleteRow); }),
             [&edited] { return HasCurrentRow(edited); }, false, true},
            {"cmdRowUp", u"Om&hoog", u"", u"Verplaatst de regel een plaats naar boven (Alt+pijl omhoog)", move(-1),
             mayMove(-1)},
            {"cmdRowDown", u"Om&laag", u"", u"Verplaatst de regel een plaats naar beneden (Alt+pijl omlaag)", move(1),
             mayMove(1)}};
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the analyser loses sight of functions in a list

std::vector<GridCommand> CellCommands(EditedGrid& edited, CodeGrid& grid) {
    const auto hasRow = [&edited] { return HasCurrentRow(edited); };
    return {{"", u"Wij&zigen", u"F2", u"", Quietly([&grid] { grid.Edit(); }), hasRow, true},
            {"", u"K&nippen", u"Ctrl+X", u"", Quietly([&grid] { grid.Cut(); }), hasRow},
            {"", u"&Kopiëren", u"Ctrl+C", u"", Quietly([&grid] { grid.Copy(); }), hasRow},
            {"", u"&Plakken", u"Ctrl+V", u"", Quietly([&grid] { grid.Paste(); }), Always}};
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the analyser loses sight of functions in a list

std::vector<GridCommand> HistoryCommands(EditedGrid& edited, CodeGrid& grid) {
    return {{"cmdUndo", u"Ongedaan &maken", u"Ctrl+Z", u"Maakt de laatste wijziging in deze tabel ongedaan",
             Quietly([&grid] { grid.UndoChange(); }), [&edited] { return CanUndo(edited); }, true},
            {"cmdRedo", u"&Opnieuw", u"Ctrl+Y", u"Voert de wijziging die ongedaan is gemaakt opnieuw uit",
             Quietly([&grid] { grid.RedoChange(); }), [&edited] { return CanRedo(edited); }}};
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the analyser loses sight of functions in a list

std::vector<GridCommand> TableCommands(FormKORVANDE& form, EditedGrid& edited, CodeGrid& grid) {
    const auto isSorted = [&edited] { return IsSorted(edited); };
    const auto import = [&form, &edited, &grid] {
        const std::optional<Text> name = AskImportName(&grid);
        return name ? ImportGrid(form, edited, *name) : Text();
    };
    const auto write = [&form, &edited, &grid] {
        const std::optional<ExportChoice> choice = AskExportName(&grid);
        return choice ? ExportGrid(form, edited, choice->name, choice->form) : Text();
    };
    return {
        {"cmdImport", u"&Importeren...", u"", u"Leest regels uit een CSV-bestand", import, Always, true},
        {"cmdExport", u"&Exporteren...", u"", u"Schrijft de tabel naar een CSV-bestand", write, Always},
        {"", u"Niet meer &sorteren", u"", u"", Quietly([&form, &edited] { EndSorting(form, edited); }), isSorted, true},
        {"cmdKeepOrder", u"Volgor&de vastleggen...", u"",
         u"Geeft de regels van de tabel de volgorde waarin ze nu gesorteerd staan",
         Quietly([&form, &edited] { KeepSortedOrder(form, edited); }), isSorted},
        {"", u"Kolom&breedten herstellen", u"", u"", Quietly([&grid] { grid.ForgetWidths(); }), Always}};
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the analyser loses sight of functions in a list

}  // namespace

std::vector<GridCommand> CommandsOf(FormKORVANDE& form, EditedGrid& edited, CodeGrid& grid) {
    std::vector<GridCommand> commands;
    for (std::vector<GridCommand>& group :
         std::vector<std::vector<GridCommand>>{RowCommands(form, edited), CellCommands(edited, grid),
                                               HistoryCommands(edited, grid), TableCommands(form, edited, grid)}) {
        for (GridCommand& command : group) commands.push_back(std::move(command));
    }
    return commands;
}

}  // namespace korvande
