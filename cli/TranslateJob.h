#pragma once

#include <string>

#include "cli/Jobs.h"
#include "cli/TranslateReport.h"
#include "project/CodeTables.h"
#include "translation/Problem.h"

namespace korvande {

class ConsoleScreen;
struct Project;

// What became of a job.
struct JobResult {
    TranslateRow row;
    Problems problems;
    std::string json;  // what became of it, when that is wanted
};

// The row of a job that nothing came of.
TranslateRow FailedRow(const RunNames& job);

// Translates a job, and tells on the standard streams what became of it. The code tables, those of the project that
// were taken as grids would give them back, are handed on from job to job.
JobResult TranslateJob(ConsoleScreen& screen, const Project& project, CodeTables& codes, const RunNames& job, Mode mode,
                       const TranslateOptions& options);

}  // namespace korvande
