#pragma once

#include "app/GridCsv.h"

namespace korvande {

struct FormKORVANDE;

// Reads a CSV file into a grid; a question tells whether its rows replace the grid's or come behind them. A file that
// is not right changes nothing, and a message tells on which lines. What was done, in one sentence; empty: nothing.
Text ImportGrid(FormKORVANDE& form, EditedGrid& edited, TextView name);

// Writes a grid into a CSV file, whose name a dialog has asked for; one without the ending of such a file gets it.
Text ExportGrid(FormKORVANDE& form, const EditedGrid& edited, TextView name, const CsvForm& csvForm);

}  // namespace korvande
