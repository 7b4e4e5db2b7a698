#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/support/TestFiles.h"
#include "translation/ProblemSentences.h"

// The page on the log book against the one table of the kinds of problems.
namespace korvande::testing {

namespace {

std::string Page() {
    return FileBytes(FromUtf8((std::filesystem::path(KORVANDE_SOURCE_DIR) / "docs/formats/logboek.md").string()));
}

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
        text.replace(at, from.size(), to);
    }
    return text;
}

// As the page has a sentence, with marks for what varies.
std::string OnPage(TextView sentence, bool isOne) {
    std::string text = Replaced(ToUtf8(sentence), "{n}", isOne ? "1" : "<n>");
    text = Replaced(text, "{wat}", isOne ? "<object>" : "<objecten>");
    text = Replaced(text, "{, vanaf regel}", ", vanaf regel <n>");
    return Replaced(Replaced(text, "{woorden}", "<woorden>"), "{regel}", "<n>");
}

std::string RowOf(const KindSentence& kind) {
    const std::string many = kind.many.empty() ? "" : "`" + OnPage(kind.many, false) + "`";
    return "| `" + OnPage(kind.one, true) + "` | " + many + " |";
}

// The part of the page under a heading, up to the next one.
std::string Section(const std::string& page, const std::string& heading) {
    const std::size_t begin = page.find("\n" + heading + "\n");
    EXPECT_NE(begin, std::string::npos) << heading;
    return page.substr(begin, page.find("\n#", begin + 2) - begin);
}

TEST(ProblemPage, HasEachKindUnderItsHeadingWithItsSentences) {
    const std::string page = Page();
    const std::string damage = Section(page, "### Damage of the input");
    const std::string loss = Section(page, "### Loss");
    const std::string wanted = Section(page, "### Left out as asked, or always so");
    std::ptrdiff_t rows = 0;
    for (int i = 0; i < problemKinds; ++i) {
        const KindSentence& kind = SentenceOf(static_cast<ProblemKind>(i));
        if (kind.list == ProblemList::Errors) continue;
        ++rows;
        const std::string& section = kind.isDamage ? damage : kind.list == ProblemList::Loss ? loss : wanted;
        EXPECT_NE(section.find("\n" + RowOf(kind)), std::string::npos) << RowOf(kind);
    }
    // And no other one.
    std::ptrdiff_t onPage = 0;
    for (const std::string& section : {damage, loss, wanted}) {
        for (std::size_t at = 0; (at = section.find("\n| `", at)) != std::string::npos; ++at) ++onPage;
    }
    EXPECT_EQ(onPage, rows);
}

TEST(ProblemPage, HasEachErrorWithItsSentence) {
    const std::string page = Page();
    for (int i = 0; i < problemKinds; ++i) {
        const auto kind = static_cast<ProblemKind>(i);
        // Errors that escaped have the descriptions of the run-time errors.
        if (ListOf(kind) != ProblemList::Errors || kind == ProblemKind::EscapedError) continue;
        const std::string sentence = Replaced(ToUtf8(SentenceOf(kind).one), "\n", " ");
        // What stands between the things that vary.
        for (std::size_t at = 0; at < sentence.size();) {
            const std::size_t end = std::min(sentence.find('{', at), sentence.size());
            EXPECT_NE(page.find(sentence.substr(at, end - at)), std::string::npos) << sentence;
            at = std::min(sentence.find('}', end), sentence.size() - 1) + 1;
        }
    }
}

}  // namespace

}  // namespace korvande::testing
