#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "cli/Arguments.h"
#include "cli/DrawingBatch.h"
#include "cli/OrderedProblems.h"
#include "cli/Turns.h"
#include "core/Text.h"
#include "geopackage/DrawingRows.h"
#include "project/CodeTables.h"

namespace korvande {

class GeoPackageFile;
class ReadingScreen;
struct InputDrawing;
struct Project;
struct Translation;

// What became of an input.
struct AddedDrawing {
    int status = status::failed;  // the exit status, had it been the only one
    RowCounts counts;
    std::int64_t notShown = 0;  // objects that were left out
    std::int64_t errors = 0;
    Text remarks;  // why it was left out, or the lines of what did not come across
};

// A line on standard output of what went into a file from another one, or from all.
void PrintCounts(const Text& name, const RowCounts& counts);

// Puts the drawings of a batch into a file: some are read at a time, one is written, in the order of the inputs. No
// worker has more than one drawing in memory.
class GeoPackageInputs {
 public:
    GeoPackageInputs(const GeoPackageOptions& itsOptions, const Project& itsProject, const DrawingBatch& itsBatch,
                     GeoPackageFile& itsFile);

    // A run-time error when the file cannot be written, a TranslationAborted when an interrupt came; then nothing but
    // leaving the file alone is left to do.
    void AddAll();

    // Of each input.
    const std::vector<AddedDrawing>& Added() const noexcept { return added; }

    RowCounts Total() const noexcept;
    const Problems& AllProblems() const noexcept { return problems.All(); }

 private:
    void AddOne(std::size_t job, std::size_t worker);
    void AddDrawing(std::size_t job, ReadingScreen& screen, const InputDrawing& found, Translation& translation);

    const GeoPackageOptions& options;
    const Project& project;
    const DrawingBatch& batch;
    GeoPackageFile& file;
    std::vector<AddedDrawing> added;
    std::vector<CodeTables> codes;  // of each worker
    OrderedProblems problems;
    Turns turns;
};

}  // namespace korvande
