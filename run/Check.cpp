#include "run/Check.h"

#include "run/Steps.h"
#include "translation/Translation.h"

namespace korvande {

void CheckDrawing(Translation& translation) {
    translation.options.chkExportUnknowns = translation.options.chkImportUnknowns = true;
    translation.withDiagnosticFiles = false;
    translation.outputTo = OutputTo::Nowhere;
    translation.LogFileName.clear();
    ReadAndWrite(translation);
}

}  // namespace korvande
