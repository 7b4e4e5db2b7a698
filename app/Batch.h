#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "core/Text.h"
#include "translation/Mode.h"

namespace korvande {

struct FormKORVANDE;

// Several files that are to be translated one after the other, with the project on the screen and into one folder.

struct BatchFile {
    Text input;
    std::optional<Format> format;  // by the content; nothing: it holds no drawing, and is not translated
    Text output;                   // empty without a format
    Text logBook;
};

struct Batch {
    std::vector<BatchFile> files;
    std::size_t passedOver = 0;          // files of given folders that hold no drawing
    Text folder;                         // of the results, ending in a separator
    Variant variant = Variant::Nen1878;  // that IDEX files are translated to
};

// Whether names ask for a batch rather than for one file: more than one, or a folder.
bool AreBatch(const std::vector<Text>& names);

// The files of these names, and of the folders among them those that hold a drawing (folders in folders count not);
// each file once. The results go where the last batch's went, as long as that folder is there, else beside the first
// file.
Batch BatchOf(FormKORVANDE& form, const std::vector<Text>& names);

// What a file of a batch is translated to.
Mode ModeFor(const Batch& batch, const BatchFile& file);

// Whether there are files whose target is to be chosen.
bool HasIdex(const Batch& batch);

// Chooses a target for the IDEX files, and a folder; the names of outputs and log books follow.
void ChooseVariant(Batch& batch, Variant variant);
void ChooseFolder(Batch& batch, TextView folder);

// Has the next batch begin with this one's folder.
void RememberFolder(const Batch& batch);

// Takes a file out.
void DropFile(Batch& batch, std::size_t place);

// Why the batch cannot be translated as it is: nothing to translate, no such folder, or a file that would be written
// over another one. Empty: it can.
Text ObstacleTo(const FormKORVANDE& form, const Batch& batch);

}  // namespace korvande
