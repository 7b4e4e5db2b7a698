#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <ostream>
#include <regex>
#include <set>
#include <sstream>

#include "tests/support/RunProgram.h"
#include "tests/support/TestFiles.h"

// The pages in docs/formats against the program: their examples are what it writes, to the byte, their keys and
// sentences are those of the sources. docs/formats/README.md tells how an example says where it comes from.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

const fs::path& Source() {
    static const fs::path folder = fs::path(KORVANDE_SOURCE_DIR);
    return folder;
}

std::string BytesOf(const fs::path& path) { return FileBytes(FromUtf8(path.generic_string())); }

// The lines of a text, without what ends them.
Strings LinesOf(const std::string& text) {
    Strings lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

// The pages, but for the one that tells about them.
std::vector<fs::path> Pages() {
    std::vector<fs::path> pages;
    for (const auto& entry : fs::directory_iterator(Source() / "docs" / "formats")) {
        const fs::path name = entry.path().filename();
        if (name.extension() == ".md" && name != "README.md") pages.push_back(entry.path());
    }
    std::sort(pages.begin(), pages.end());
    return pages;
}

Strings PageLines(const char* name) { return LinesOf(BytesOf(Source() / "docs" / "formats" / name)); }

// Examples

// A fenced block that is a whole file: the words of its first line, and the file's bytes.
struct Example {
    std::string page;
    std::string kind;  // idex, nen1878, suf2, controletabel or logboek
    std::map<std::string, std::string> words;
    std::string bytes;

    std::string Word(const std::string& name) const {
        const auto found = words.find(name);
        return found == words.end() ? std::string() : found->second;
    }
    std::string File() const { return Word("file"); }
    bool IsMade() const { return words.contains("mode"); }
};
void PrintTo(const Example& example, std::ostream* out) { *out << example.page << ", " << example.File(); }

// A line of a file by the one that shows it: a dot at the end stands for a blank, records are filled.
std::string FileLine(const std::string& kind, std::string shown) {
    constexpr std::string_view dot = "\u00B7";
    constexpr std::size_t recordLength = 64;
    std::size_t blanks = 0;
    for (; shown.ends_with(dot); ++blanks) shown.resize(shown.size() - dot.size());
    std::string line = Utf8ToWindows1252(shown) + std::string(blanks, ' ');
    if (kind == "nen1878" || kind == "suf2") line.resize(std::max(line.size(), recordLength), ' ');
    return line + "\r\n";
}

Example ExampleFrom(const std::string& page, const std::string& firstLine) {
    Example example;
    example.page = page;
    std::istringstream stream(firstLine.substr(3));
    stream >> example.kind;
    for (std::string word; stream >> word;) {
        const std::size_t equals = std::min(word.find('='), word.size());
        example.words[word.substr(0, equals)] = word.substr(std::min(equals + 1, word.size()));
    }
    return example;
}

std::vector<Example> ExamplesOn(const fs::path& page) {
    std::vector<Example> examples;
    bool isInside = false;
    for (const std::string& line : LinesOf(BytesOf(page))) {
        if (line.starts_with("```")) {
            isInside = !isInside;
            if (isInside) examples.push_back(ExampleFrom(page.filename().string(), line));
        } else if (isInside) {
            examples.back().bytes += FileLine(examples.back().kind, line);
        }
    }
    std::erase_if(examples, [](const Example& example) { return example.File().empty(); });
    return examples;
}

const std::vector<Example>& AllExamples() {
    static const std::vector<Example> all = [] {
        std::vector<Example> examples;
        for (const fs::path& page : Pages()) {
            for (Example& example : ExamplesOn(page)) examples.push_back(std::move(example));
        }
        return examples;
    }();
    return all;
}

std::vector<Example> MadeExamples() {
    std::vector<Example> made = AllExamples();
    std::erase_if(made, [](const Example& example) { return !example.IsMade(); });
    return made;
}

// A log book's output has its name, with the extension of the format.
std::string OutputOf(const Example& example) {
    if (example.kind != "logboek") return example.File();
    const std::string mode = example.Word("mode");
    const char* const extension = mode.ends_with("-idex") ? ".idx" : mode.ends_with("-suf2") ? ".sf2" : ".sfn";
    return fs::path(example.File()).replace_extension(extension).string();
}

Strings ArgumentsFor(const Example& example) {
    if (example.Word("mode") == "maak") return {"project", "maak", example.File()};
    Strings arguments = {"vertaal", "--stil", "--modus", example.Word("mode")};
    for (const auto& [word, option] : {std::pair("project", "--project"), std::pair("answer", "--antwoord")}) {
        if (!example.Word(word).empty()) arguments.insert(arguments.end(), {option, example.Word(word)});
    }
    if (example.kind == "logboek") {
        arguments.insert(arguments.end(), {"--logboek", example.File()});
    } else {
        arguments.emplace_back("--geen-logboek");
    }
    arguments.insert(arguments.end(), {example.Word("from"), OutputOf(example)});
    return arguments;
}

ProgramResult RunConsole(const Strings& arguments, const TestFolder& folder) {
    Start start;
    start.program = KORVANDE_CLI;
    start.arguments = arguments;
    start.folder = folder.Path();
    start.environment = {{"SOURCE_DATE_EPOCH", "1717198200"}, {"KORVANDE_DRIVE_D", {}}};
    return RunProgram(start);
}

// Where two files begin to differ, in UTF-8, so that a person can read it.
void ExpectSameBytes(const std::string& expected, const std::string& actual) {
    if (expected == actual) return;
    std::istringstream expectedLines(expected);
    std::istringstream actualLines(actual);
    std::string expectedLine;
    std::string actualLine;
    int number = 0;
    bool hasMore = true;
    while (hasMore && expectedLine == actualLine) {
        ++number;
        hasMore = static_cast<bool>(std::getline(expectedLines, expectedLine));
        hasMore = static_cast<bool>(std::getline(actualLines, actualLine)) || hasMore;
    }
    ADD_FAILURE() << "line " << number << "\n  the page:    " << Windows1252ToUtf8(expectedLine)
                  << "\n  the program: " << Windows1252ToUtf8(actualLine);
}

class DocumentExample : public ::testing::TestWithParam<Example> {};

TEST_P(DocumentExample, IsWhatTheProgramWrites) {
    const Example& example = GetParam();
    const TestFolder folder;
    for (const Example& other : AllExamples()) {
        if (other.File() != example.File()) folder.Write(other.File(), other.bytes);
    }
    const ProgramResult result = RunConsole(ArgumentsFor(example), folder);
    ASSERT_TRUE(FileIsThere(folder / example.File())) << result.error;
    ExpectSameBytes(example.bytes, FileBytes(folder / example.File()));
}

INSTANTIATE_TEST_SUITE_P(Examples, DocumentExample, ::testing::ValuesIn(MadeExamples()), [](const auto& example) {
    std::string name = example.param.File();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
});

TEST(Documents, EveryPageOnAFormatHasAnExample) {
    ASSERT_FALSE(Pages().empty());
    for (const fs::path& page : Pages()) EXPECT_FALSE(ExamplesOn(page).empty()) << page;
}

TEST(Documents, EveryExampleHasANameOfItsOwnAndComesFromOneThatIsThere) {
    std::set<std::string> names;
    for (const Example& example : AllExamples()) EXPECT_TRUE(names.insert(example.File()).second) << example.File();
    for (const Example& example : AllExamples()) {
        for (const char* const word : {"from", "project"}) {
            const std::string name = example.Word(word);
            EXPECT_TRUE(name.empty() || names.contains(name)) << example.File() << " names " << name;
        }
    }
}

// Keys of the control table

// The first cell of a row of a table when it is code, such as "| `SymRotation` | ...": what stands in it.
std::string CodeInFirstCell(const std::string& line) {
    constexpr std::string_view before = "| `";
    if (!line.starts_with(before)) return {};
    return line.substr(before.size(), line.find('`', before.size()) - before.size());
}

// The keys below the headings "### [NEN1878]", "### [Import]" and "### [Export]", each with its section.
Strings KeysOnThePage() {
    Strings keys;
    std::string section;
    for (const std::string& line : PageLines("controletabel.md")) {
        if (line.starts_with("#")) section = line.starts_with("### [") ? line.substr(4) : std::string();
        const std::string key = CodeInFirstCell(line);
        if (!section.empty() && !key.empty()) keys.push_back(section + key);
    }
    return keys;
}

// The keys of a control table up to its code tables.
Strings KeysOf(const std::string& controlTable) {
    Strings keys;
    std::string section;
    for (const std::string& line : LinesOf(controlTable)) {
        if (line == "[Points]") break;
        const std::size_t equals = line.find(" =");
        if (line.starts_with('[')) section = line;
        if (equals != std::string::npos) keys.push_back(section + line.substr(0, equals));
    }
    return keys;
}

TEST(Documents, TheControlTablePageHasTheKeysThatTheProgramWritesInTheirOrder) {
    const TestFolder folder;
    const ProgramResult result = RunConsole({"project", "maak", "nieuw.nst"}, folder);
    ASSERT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(KeysOnThePage(), KeysOf(FileBytes(folder / "nieuw.nst")));
}

// Sentences of the log book

// The sources that have a word in a log book; a folder that is not there has none.
Strings SourcesBelow(std::initializer_list<const char*> folders) {
    Strings sources;
    for (const char* const folder : folders) {
        if (!fs::exists(Source() / folder)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(Source() / folder)) {
            const fs::path extension = entry.path().extension();
            if (extension == ".cpp" || extension == ".h") sources.push_back(BytesOf(entry.path()));
        }
    }
    return sources;
}
Strings LogBookSources() { return SourcesBelow({"core", "project", "translation", "idex", "nensuf", "run", "cli"}); }

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }

// The string literals of a source, with line breaks as the blanks that a log book makes of them.
Strings LiteralsIn(const std::string& source) {
    Strings literals;
    for (std::size_t at = 0; at < source.size(); ++at) {
        const char c = source[at];
        const bool isDigitSeparator = c == '\'' && at > 0 && IsDigit(source[at - 1]);
        if (c == '/' && source.compare(at, 2, "//") == 0) at = std::min(source.find('\n', at), source.size());
        if ((c != '"' && c != '\'') || isDigitSeparator) continue;
        std::string literal;
        for (++at; at < source.size() && source[at] != c; ++at) {
            const bool isEscape = source[at] == '\\';
            if (isEscape) ++at;
            literal.push_back(isEscape && (source[at] == 'n' || source[at] == 'r') ? ' ' : source[at]);
        }
        if (c == '"') literals.push_back(literal);
    }
    return literals;
}

// A literal between whose parts a program puts values: "{}" and the like.
Strings PartsOf(const std::string& literal) {
    static const std::regex place(R"(\{[^}]*\}|%[0-9a-z])");
    std::sregex_token_iterator part(literal.begin(), literal.end(), place, -1);
    Strings parts(part, std::sregex_token_iterator());
    // A single letter says nothing, and would make up any word.
    std::erase_if(parts,
                  [](const std::string& text) { return text.empty() || (text.size() == 1 && IsLetter(text.front())); });
    return parts;
}

std::set<std::string> WordsOfTheSources() {
    std::set<std::string> words;
    for (const std::string& source : LogBookSources()) {
        for (const std::string& literal : LiteralsIn(source)) {
            for (std::string& part : PartsOf(literal)) words.insert(std::move(part));
        }
    }
    return words;
}

// Whether a text is at most three such words one behind the other; of more, any sentence could be made.
bool IsMadeOf(const std::string& text, const std::set<std::string>& words) {
    constexpr std::size_t most = 3;
    std::vector<std::size_t> fewest(text.size() + 1, most + 1);  // words up to each place
    fewest[0] = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        for (const std::string& word : words) {
            if (text.compare(at, word.size(), word) != 0) continue;
            std::size_t& behind = fewest[at + word.size()];
            behind = std::min(behind, fewest[at] + 1);
        }
    }
    return fewest[text.size()] <= most;
}

// The sentences of the table on the page, without "FOUT:  "; what varies stands between "<" and ">".
Strings Problems() {
    constexpr std::string_view mark = "FOUT:  ";
    Strings problems;
    for (const std::string& line : PageLines("logboek.md")) {
        const std::string sentence = CodeInFirstCell(line);
        const bool isOne = sentence.starts_with(mark) && sentence != "FOUT:  …";
        if (isOne) problems.push_back(sentence.substr(mark.size()));
    }
    return problems;
}

// The lines that a sentence stands for. The line of the input is not always known.
std::regex PatternOf(const std::string& problem) {
    static const std::regex special(R"([.*+?^${}()|\[\]\\])");
    std::string pattern = std::regex_replace(problem, special, "\\$&");
    pattern = std::regex_replace(pattern, std::regex("<n>"), "-?[0-9]+");
    pattern = std::regex_replace(pattern, std::regex("<[a-z]+>"), ".+");
    const std::string lineNumber = R"( \(regel -?[0-9]+\))";
    if (pattern.ends_with(lineNumber)) {
        pattern = pattern.substr(0, pattern.size() - lineNumber.size()) + "(" + lineNumber + ")?";
    }
    return std::regex(pattern);
}

bool IsOnThePage(const std::string& problem) {
    const Strings problems = Problems();
    return std::any_of(problems.begin(), problems.end(),
                       [&](const std::string& known) { return std::regex_match(problem, PatternOf(known)); });
}

TEST(Documents, EveryProblemOnTheLogBookPageIsMadeOfWordsInTheSources) {
    const std::set<std::string> words = WordsOfTheSources();
    const Strings problems = Problems();
    ASSERT_FALSE(problems.empty());
    static const std::regex varies("<[a-z]+>");
    for (const std::string& problem : problems) {
        std::sregex_token_iterator part(problem.begin(), problem.end(), varies, -1);
        for (; part != std::sregex_token_iterator(); ++part) EXPECT_TRUE(IsMadeOf(*part, words)) << problem;
    }
}

TEST(Documents, EveryProblemInAGoldenLogBookIsOnTheLogBookPage) {
    constexpr std::string_view mark = "FOUT:  ";
    std::set<std::string> problems;
    for (const auto& entry : fs::recursive_directory_iterator(Source() / "tests" / "golden")) {
        if (entry.is_directory()) continue;
        for (const std::string& line : LinesOf(Windows1252ToUtf8(BytesOf(entry.path())))) {
            if (line.starts_with(mark)) problems.insert(line.substr(mark.size()));
        }
    }
    ASSERT_FALSE(problems.empty());
    for (const std::string& problem : problems) EXPECT_TRUE(IsOnThePage(problem)) << problem;
}

TEST(Documents, TheLogBookPageHasEveryDescriptionOfARunTimeError) {
    const std::string page = BytesOf(Source() / "docs" / "formats" / "logboek.md");
    for (const std::string& literal : LiteralsIn(BytesOf(Source() / "core" / "RuntimeError.cpp"))) {
        if (literal.ends_with(".h")) continue;
        EXPECT_TRUE(Holds(page, "| " + literal + " |")) << literal;
    }
}

}  // namespace

}  // namespace korvande::testing
