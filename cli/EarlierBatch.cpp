#include "cli/EarlierBatch.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

#include "core/Hash.h"
#include "core/Version.h"
#include "host/Folders.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

// Sixteen hexadecimal digits that change with every option.
Text MarkOf(const TranslateOptions& options) {
    std::string all = ToUtf8(versionText);
    for (const std::string* part : {&options.mode, &options.project, &options.answer, &options.selection,
                                    &options.source, &options.unknowns, &options.reading.characterSet}) {
        all += '\n' + *part;
    }
    all += '\n';
    for (const bool part : {options.withoutLogBook, options.threePointArcs, options.reading.withoutZeroes,
                            options.reading.fromInstrument}) {
        all += part ? '1' : '0';
    }
    std::array<char, 16> digits{};
    const std::uint64_t mark = HashOfBytes(0, all.data(), all.size());
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), mark, 16).ptr;
    const Text written = FromUtf8(std::string(digits.data(), static_cast<std::size_t>(end - digits.data())));
    return Concat(Text(digits.size() - written.size(), u'0'), written);
}

}  // namespace

EarlierBatch::EarlierBatch(const TranslateOptions& options)
    : project(FromUtf8(options.project)), mark(MarkOf(options)) {
    if (!options.resumes) return;
    for (TranslateRow& row : ReadTranslateReport(FromUtf8(options.batch.report))) {
        std::string identity = FileIdentity(row.output);
        rows.insert_or_assign(std::move(identity), std::move(row));
    }
}

std::optional<TranslateRow> EarlierBatch::RowOf(const RunNames& job) const {
    if (rows.empty()) return {};
    const auto found = rows.find(FileIdentity(job.output));
    if (found == rows.end()) return {};
    const TranslateRow& row = found->second;
    if (row.status == status::failed || row.options != mark || row.input != job.input || row.logBook != job.logBook) {
        return {};
    }
    const auto outputTime = WriteTimeOf(job.output);
    const auto inputTime = WriteTimeOf(job.input);
    if (!outputTime || !inputTime || *inputTime >= *outputTime) return {};
    if (!project.empty()) {
        const auto projectTime = WriteTimeOf(project);
        if (!projectTime || *projectTime >= *outputTime) return {};
    }
    if (!job.logBook.empty() && !FileExistsAt(job.logBook)) return {};
    TranslateRow kept = row;
    kept.isSkipped = true;
    return kept;
}

}  // namespace korvande
