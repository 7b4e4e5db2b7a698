#include "report/JsonParts.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "translation/Translation.h"

namespace korvande {

namespace {

constexpr std::array<std::string_view, objectKinds> objectNames = {"punt",  "lijnstring", "lijnsegment", "boog",
                                                                   "tekst", "veelhoek",   "overig"};

std::string_view NameOf(ObjectKind kind) noexcept { return objectNames[static_cast<std::size_t>(kind)]; }

const char* TableName(char16_t letter) noexcept { return letter == u'P' ? "punt" : letter == u'L' ? "lijn" : "tekst"; }

Json ReasonsJson(ObjectKind kind, const KindAccount& account) {
    Json reasons = Json::array();
    for (std::size_t reason = 0; reason < leftOutReasons; ++reason) {
        if (account.leftOut[reason] == 0) continue;
        const ProblemKind problem = KindOf(static_cast<LeftOut>(reason), kind);
        reasons.push_back({{"soort", NameOf(problem)}, {"aantal", account.leftOut[reason]}});
    }
    return reasons;
}

void AddRemarks(Json& remarks, const Problems& problems, ProblemList list, const char* listName) {
    for (const ProblemCount& problem : problems.Counts(list)) {
        remarks.push_back({{"soort", NameOf(problem.kind)},
                           {"lijst", listName},
                           {"schade", IsDamage(problem.kind)},
                           {"object", NameOf(problem.object)},
                           {"aantal", problem.count},
                           {"eersteRegel", LineOrNull(problem.firstLine)},
                           {"tekst", JsonText(LineOf(problem))}});
    }
}

}  // namespace

Json JsonText(TextView text) { return ToUtf8(text); }

Json TextOrNull(TextView text) { return text.empty() ? Json() : JsonText(text); }

Json LineOrNull(std::int64_t line) { return line > 0 ? Json(line) : Json(); }

std::string OnOneLine(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

Json CountsJson(const Drawing& drawing) {
    return {{"punten", drawing.Points.UpperBound()},
            {"lijnstrings", drawing.Lines.UpperBound()},
            {"lijnsegmenten", drawing.Edges.UpperBound()},
            {"teksten", drawing.Texts.UpperBound()}};
}

Json AccountJson(const ObjectAccount& account) {
    Json kinds = Json::array();
    for (std::size_t place = 0; place < objectKinds; ++place) {
        const auto kind = static_cast<ObjectKind>(place);
        const KindAccount& of = account[kind];
        if (of.read == 0) continue;
        kinds.push_back({{"object", NameOf(kind)},
                         {"gelezen", of.read},
                         {"geschreven", of.written},
                         {"weggelaten", of.LeftOutTotal()},
                         {"redenen", ReasonsJson(kind, of)}});
    }
    return kinds;
}

Json ErrorsJson(std::span<const Problem> errors) {
    Json list = Json::array();
    for (const Problem& error : errors) {
        list.push_back(
            {{"soort", NameOf(error.kind)}, {"regel", LineOrNull(error.line)}, {"tekst", JsonText(Sentence(error))}});
    }
    return list;
}

Json RemarksJson(const Problems& problems) {
    Json remarks = Json::array();
    AddRemarks(remarks, problems, ProblemList::Loss, "verlies");
    AddRemarks(remarks, problems, ProblemList::Wanted, "gewenst");
    return remarks;
}

Json UnknownCodesJson(const Translation& translation) {
    std::vector<UnknownCodeRec> entries = translation.unknowns.Entries();
    const std::vector<UnknownCodeRec>& unlisted = translation.unlistedUnknowns.Entries();
    entries.insert(entries.end(), unlisted.begin(), unlisted.end());
    std::sort(entries.begin(), entries.end(),
              [](const UnknownCodeRec& a, const UnknownCodeRec& b) { return a.Code.View() < b.Code.View(); });
    Json codes = Json::array();
    for (const UnknownCodeRec& entry : entries) {
        const TextView code = entry.Code.View();
        codes.push_back({{"tabel", TableName(code.front())},
                         {"code", JsonText(TrimRight(code.substr(1)))},
                         {"aantal", entry.Count}});
    }
    return codes;
}

Json UsedCodesJson(const CodeTables& codes) {
    Json used = Json::array();
    for (const CodeTable* table : {&codes.lines, &codes.points, &codes.texts}) {
        for (std::size_t row = 1; row < table->rows.size(); ++row) {
            const CodeRow& code = table->rows[row];
            if (code.Count == 0) continue;
            used.push_back({{"tabel", TableName(table->letter)},
                            {"liscad", JsonText(TrimRight(code.LiscadCode.View()))},
                            {"lki", JsonText(TrimRight(code.LkiCode.View()))},
                            {"omschrijving", JsonText(TrimRight(code.Description.View()))},
                            {"aantal", code.Count}});
        }
    }
    return used;
}

}  // namespace korvande
