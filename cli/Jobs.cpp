#include "cli/Jobs.h"

#include <unordered_set>

#include "cli/BatchReport.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

RunNames JobFor(const TranslateOptions& options, Mode mode, const InputFile& input) {
    RunNames job;
    job.input = input.name;
    if (!options.outputFolder.empty()) {
        const Text name = FileNameOf(job.input);
        const std::size_t dot = name.rfind(u'.');
        const Text stem = name.substr(0, dot == 0 ? Text::npos : dot);
        job.output = Concat(FolderWithSeparator(FromUtf8(options.outputFolder)), input.below, stem, u".",
                            NamesOf(mode).extension);
    } else {
        job.output = options.files.size() > 1 ? FromUtf8(options.files[1]) : OutputBeside(job.input, mode);
    }
    if (options.withoutLogBook) return job;
    job.logBook = options.logBook.empty() ? LogBookBeside(job.output) : FromUtf8(options.logBook);
    return job;
}

// What only several inputs can have.
void RefuseBatchOptions(const TranslateOptions& options) {
    const bool isBatch = !options.outputFolder.empty();
    if (!isBatch && options.batch.goesDeep) throw UsageError{u"--recursief gaat samen met --uitvoermap."};
    if (!isBatch && !options.batch.report.empty()) throw UsageError{u"--verslag gaat samen met --uitvoermap."};
    if (options.resumes && options.batch.report.empty()) {
        throw UsageError{u"--hervat gaat samen met --verslag, waarin staat wat er al vertaald is."};
    }
    if (!options.batch.report.empty()) RefuseReportName(FromUtf8(options.batch.report));
}

}  // namespace

std::vector<RunNames> JobsFor(const TranslateOptions& options, Mode mode, const InputFiles& inputs) {
    if (options.files.empty()) throw UsageError{u"Er ontbreekt een invoerbestand."};
    RefuseBatchOptions(options);
    if (options.withoutLogBook && !options.logBook.empty()) {
        throw UsageError{u"--logboek en --geen-logboek gaan niet samen."};
    }
    if (options.outputFolder.empty() && options.files.size() > 2) {
        throw UsageError{u"Te veel bestanden; gebruik --uitvoermap om er meer te vertalen."};
    }
    if (!options.outputFolder.empty() && inputs.files.size() > 1 && !options.logBook.empty()) {
        throw UsageError{u"--logboek gaat samen met een invoerbestand; elk bestand krijgt zijn eigen logboek."};
    }
    const std::size_t count = options.outputFolder.empty() ? 1 : inputs.files.size();
    std::vector<RunNames> jobs;
    for (std::size_t i = 0; i < count; ++i) jobs.push_back(JobFor(options, mode, inputs.files[i]));
    return jobs;
}

void RefuseClashes(const std::vector<RunNames>& jobs, const std::string& project, const std::string& report) {
    const auto refuse = [](TextView what, TextView name) {
        throw UsageError{Concat(what, u" zijn hetzelfde bestand:\n", name)};
    };
    std::unordered_set<std::string> inputs;
    for (const RunNames& job : jobs) inputs.insert(FileIdentity(job.input));
    const std::string table = project.empty() ? std::string() : FileIdentity(FromUtf8(project));
    std::unordered_set<std::string> written;
    for (const RunNames& job : jobs) {
        const std::string output = FileIdentity(job.output);
        if (inputs.contains(output)) refuse(u"Invoer en uitvoer", job.output);
        if (output == table) refuse(u"Controletabel en uitvoer", job.output);
        if (!written.insert(output).second) {
            throw UsageError{Concat(u"Meer dan een invoerbestand krijgt deze uitvoer:\n", job.output)};
        }
    }
    if (!report.empty()) {
        const std::string identity = FileIdentity(FromUtf8(report));
        if (inputs.contains(identity)) refuse(u"Invoer en verslag", FromUtf8(report));
        if (identity == table) refuse(u"Controletabel en verslag", FromUtf8(report));
        if (!written.insert(identity).second) refuse(u"Uitvoer en verslag", FromUtf8(report));
    }
    for (const RunNames& job : jobs) {
        if (job.logBook.empty()) continue;
        const std::string logBook = FileIdentity(job.logBook);
        if (inputs.contains(logBook)) refuse(u"Invoer en logboek", job.logBook);
        if (logBook == table) refuse(u"Controletabel en logboek", job.logBook);
        if (!written.insert(logBook).second) refuse(u"Uitvoer en logboek", job.logBook);
    }
}

}  // namespace korvande
