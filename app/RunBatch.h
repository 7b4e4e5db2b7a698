#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/Text.h"

namespace korvande {

struct Batch;
struct FormKORVANDE;

// What became of a file of a batch.
struct BatchOutcome {
    Text input;
    Text output;   // empty: none was written
    Text logBook;  // empty: there is none
    Text result;   // as the outcome line tells it
    bool isTranslated = false;
    bool wentWell = false;  // nothing was lost; also of a file that a person wanted to be skipped
    std::int64_t read = 0;  // objects
    std::int64_t written = 0;
    std::int64_t errors = 0;
};

// Saves the settings and the project as a translation does, and translates the files of a batch that has no obstacle,
// one after the other; outputs that are there already are asked about once, before anything is saved. A file that fails
// stops no other; a stop leaves those that follow untranslated. The outcomes, in the order of the files, also go into
// the form's last run. Nothing when a person did not want it begun, or the form is unloaded because that was asked
// meanwhile. During a run it does nothing.
std::optional<std::vector<BatchOutcome>> TranslateBatch(FormKORVANDE& form, const Batch& batch);

// "4 van 5 bestanden vertaald, waarvan 1 met fouten of verlies": what became of all of them.
Text SummaryOf(const std::vector<BatchOutcome>& outcomes);

}  // namespace korvande
