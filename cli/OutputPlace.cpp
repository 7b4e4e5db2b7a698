#include "cli/OutputPlace.h"

#include <cstdio>

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "host/modFileHandling.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// The log book is closed by now, so this goes behind its end.
void ReportNotInPlace(Translation& translation) {
    LogBook& log = translation.log;
    try {
        if (!translation.LogFileName.empty()) log.Reopen(translation.LogFileName);
    } catch (const RuntimeError&) {
        // Standard error tells it too.
    }
    Report(translation, {.kind = ProblemKind::OutputNotPutInPlace, .name = OutputName(translation)});
    if (log.IsOpen()) log.Close();
}

}  // namespace

Text TemporaryNameFor(const Text& output) {
    if (!IsRegularFileOrMissing(output)) return {};
    try {
        if (FileExistsAt(output)) std::fclose(OpenNativeFile(output, OpenMode::Append));
    } catch (const RuntimeError&) {
        return {};
    }
    return TemporaryNameBeside(output);
}

void PutInPlace(Translation& translation) {
    const Text& temporary = translation.temporaryOutput;
    if (temporary.empty()) return;
    if (translation.outcome.Failed()) {
        DeleteFileAt(temporary);
    } else if (!RenameFileAt(temporary, OutputName(translation))) {
        DeleteFileAt(temporary);
        translation.outcome.outputFailed = true;
        ReportNotInPlace(translation);
    }
}

}  // namespace korvande
