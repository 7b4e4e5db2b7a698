#include "translation/Problem.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "translation/ProblemSentences.h"

namespace korvande {

namespace {

struct ObjectNames {
    TextView one;
    TextView many;
};
constexpr std::array<ObjectNames, objectKinds> objectNames = {{{u"punt", u"punten"},
                                                               {u"lijnstring", u"lijnstrings"},
                                                               {u"lijnsegment", u"lijnsegmenten"},
                                                               {u"boog", u"bogen"},
                                                               {u"tekst", u"teksten"},
                                                               {u"veelhoek", u"veelhoeken"},
                                                               {u"object", u"objecten"}}};

Text LineInBrackets(std::int64_t line) { return line > 0 ? Concat(u" (regel ", line, u")") : Text(); }

Text ValueOf(const Problem& problem, std::int64_t count, TextView place) {
    if (place == u"{n}") return Concat(count);
    if (place == u"{wat}") {
        const ObjectNames& names = objectNames[static_cast<std::size_t>(problem.object)];
        return Text(count == 1 ? names.one : names.many);
    }
    if (place == u"{woorden}") return problem.words;
    if (place == u"{getal}") return Concat(problem.number);
    if (place == u"{naam}") return problem.name;
    if (place == u"{regel}") return Concat(problem.line);
    if (place == u"{, vanaf regel}") return problem.line > 0 ? Concat(u", vanaf regel ", problem.line) : Text();
    return LineInBrackets(problem.line);
}

Text Filled(TextView pattern, const Problem& problem, std::int64_t count) {
    Text sentence;
    while (!pattern.empty()) {
        const std::size_t place = std::min(pattern.find(u'{'), pattern.size());
        AppendTo(sentence, pattern.substr(0, place));
        pattern.remove_prefix(place);
        if (pattern.empty()) break;
        const std::size_t end = pattern.find(u'}') + 1;
        AppendTo(sentence, ValueOf(problem, count, pattern.substr(0, end)));
        pattern.remove_prefix(end);
    }
    return sentence;
}

bool TellsLine(ProblemKind kind) noexcept {
    return SentenceOf(kind).one.find(u"regel}") != TextView::npos ||
           SentenceOf(kind).one.find(u"(regel)") != TextView::npos;
}

// A file that means harm may bring any number of words; behind these they are told without.
constexpr std::ptrdiff_t mostWords = 20;
constexpr TextView otherWords = u"…";

}  // namespace

Problem EscapedError(const RuntimeError& error) {
    return {.kind = ProblemKind::EscapedError, .words = error.Description()};
}

std::string_view NameOf(ProblemKind kind) noexcept { return SentenceOf(kind).name; }

ProblemList ListOf(ProblemKind kind) noexcept { return SentenceOf(kind).list; }

bool IsDamage(ProblemKind kind) noexcept { return SentenceOf(kind).isDamage; }

ProblemKind KindOf(LeftOut reason, ObjectKind object) noexcept {
    switch (reason) {
        case LeftOut::UnknownCode:
            return ProblemKind::UnknownCode;
        case LeftOut::Dummy:
            return ProblemKind::DummyType;
        case LeftOut::OtherType:
            return ProblemKind::OtherType;
        case LeftOut::LineType:
            return ProblemKind::LineTypeNotWritten;
        case LeftOut::EmptyText:
            return ProblemKind::EmptyText;
        case LeftOut::OutsideRectangle:
            return ProblemKind::OutsideRectangle;
        case LeftOut::NoCode:
            return ProblemKind::GroupWithoutCode;
        case LeftOut::NoCoordinates:
            return ProblemKind::GroupWithoutCoordinates;
        case LeftOut::NoPlace:
            return ProblemKind::LeftOutWithoutCoordinates;
        case LeftOut::MissingRecord:
            return ProblemKind::GroupWithoutRecord;
        case LeftOut::InvalidArc:
            return ProblemKind::ArcIncomplete;
        case LeftOut::NoReference:
            return ProblemKind::NoReference;
        case LeftOut::NotTranslated:
            return object == ObjectKind::Polygon ? ProblemKind::PolygonNotTranslated : ProblemKind::KindNotTranslated;
        case LeftOut::Unfinished:
            break;
    }
    return ProblemKind::Unfinished;
}

Text Sentence(const Problem& problem) { return Filled(SentenceOf(problem.kind).one, problem, 1); }

Text SentenceWithLine(const Problem& problem) {
    return TellsLine(problem.kind) ? Sentence(problem) : Concat(Sentence(problem), LineInBrackets(problem.line));
}

Text LineOf(const ProblemCount& problems) {
    const KindSentence& sentence = SentenceOf(problems.kind);
    const bool isOne = problems.count == 1 || sentence.many.empty();
    const Problem first{
        .kind = problems.kind, .object = problems.object, .words = problems.words, .line = problems.firstLine};
    Text line = Filled(isOne ? sentence.one : sentence.many, first, problems.count);
    if (problems.firstLine > 0 && !TellsLine(problems.kind)) {
        AppendTo(line, Concat(isOne ? u" (op regel " : u" (de eerste op regel ", problems.firstLine, u")"));
    }
    return line;
}

bool Problems::Count(ProblemKind kind, ObjectKind object, std::int64_t line) noexcept {
    if (onProblem) return false;
    const auto isIt = [kind, object](const ProblemCount& entry) {
        return entry.kind == kind && entry.object == object && entry.words.empty();
    };
    if (latest >= counts.size() || !isIt(counts[latest])) {
        latest = static_cast<std::size_t>(std::find_if(counts.begin(), counts.end(), isIt) - counts.begin());
        if (latest == counts.size()) return false;
    }
    ProblemCount& entry = counts[latest];
    ++entry.count;
    if (line > 0 && (entry.firstLine == 0 || line < entry.firstLine)) entry.firstLine = line;
    return true;
}

ProblemCount& Problems::CountOf(const Problem& problem) {
    const auto find = [this, &problem](TextView words) {
        return std::find_if(counts.begin(), counts.end(), [&problem, words](const ProblemCount& entry) {
            return entry.kind == problem.kind && entry.object == problem.object && entry.words == words;
        });
    };
    const auto found = find(problem.words);
    if (found != counts.end()) return *found;
    const auto sameKind = std::count_if(counts.begin(), counts.end(),
                                        [&problem](const ProblemCount& entry) { return entry.kind == problem.kind; });
    const bool isTooMuch = !problem.words.empty() && sameKind >= mostWords;
    const Text words = isTooMuch ? Text(otherWords) : problem.words;
    const auto others = isTooMuch ? find(words) : counts.end();
    return others != counts.end() ? *others : counts.emplace_back(ProblemCount{problem.kind, problem.object, words});
}

void Problems::Add(const Problem& problem, std::int64_t count) {
    hasLoss = hasLoss || ListOf(problem.kind) == ProblemList::Loss;
    hasDamage = hasDamage || IsDamage(problem.kind);
    ProblemCount& entry = CountOf(problem);
    entry.count += count;
    if (problem.line > 0 && (entry.firstLine == 0 || problem.line < entry.firstLine)) entry.firstLine = problem.line;
    if (onProblem) onProblem(problem);
}

void Problems::AddAll(const Problems& others) {
    isSum = true;
    errors += others.errors;
    for (const ProblemCount& entry : others.counts) {
        Add({.kind = entry.kind, .object = entry.object, .words = entry.words}, entry.count);
    }
}

std::vector<ProblemCount> Problems::Counts(ProblemList list) const {
    std::vector<ProblemCount> told;
    for (const bool damage : {true, false}) {
        std::copy_if(counts.begin(), counts.end(), std::back_inserter(told), [list, damage](const ProblemCount& entry) {
            const KindSentence& sentence = SentenceOf(entry.kind);
            return sentence.list == list && sentence.isDamage == damage;
        });
    }
    return told;
}

std::vector<Text> Problems::Lines(ProblemList list) const {
    std::vector<Text> lines;
    for (const ProblemCount& entry : Counts(list)) {
        Text line = LineOf(entry);
        const bool isToldOnce = SentenceOf(entry.kind).many.empty();
        if (isSum && isToldOnce && entry.count > 1) AppendTo(line, Concat(u" (", entry.count, u" maal)"));
        lines.push_back(line);
    }
    return lines;
}

}  // namespace korvande
