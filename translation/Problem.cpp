#include "translation/Problem.h"

#include <algorithm>
#include <array>
#include <utility>

namespace korvande {

namespace {

// "{woorden}", "{getal}", "{naam}" and "{regel}" stand for what varies; "{(regel)}" for " (regel N)" when there is a
// line.
struct KindSentence {
    ProblemKind kind;
    TextView sentence;
};
constexpr std::array<KindSentence, 16> sentences = {{
    {ProblemKind::EscapedError, u"{woorden}{(regel)}"},
    {ProblemKind::FileNotOpened, u"Error:{getal} - {woorden}\n{naam}"},
    {ProblemKind::ExportNotOpened, u"Kon bestand: '{naam}' niet opslaan;\nFoutcode: {getal}"},
    {ProblemKind::OutputNotPutInPlace, u"Kon bestand: '{naam}' niet opslaan"},
    {ProblemKind::NoHeader, u"Geen HEADER gevonden in het IDEX bestand"},
    {ProblemKind::NoLayers, u"Geen LAYERS gevonden in het IDEX bestand"},
    {ProblemKind::NoDatabase, u"Geen DATABASE gevonden in het IDEX bestand"},
    {ProblemKind::ContinuationWithoutText, u"Tekstregel zonder tekst (regel {regel})"},
    {ProblemKind::NoProjectRecord, u"NEN1878 bestand bevat geen '01' (KOP) record."},
    {ProblemKind::NoFrameRecord, u"NEN1878 bestand bevat geen '02' (KOP) record."},
    {ProblemKind::NoCoordinatesRecord, u"{woorden} 04 record ontbreekt"},
    {ProblemKind::NoTextRecord, u"Tekst, 06 record ontbreekt"},
    {ProblemKind::InvalidArc, u"Ongeldige boog"},
    {ProblemKind::ArcInLineString, u"Boog in lijnstring wordt niet ondersteund"},
    {ProblemKind::UnknownPoint, u"{woorden} {getal} verwijst naar een onbekend punt"},
    {ProblemKind::UnknownLine, u"{woorden} {getal} verwijst naar een onbekende lijn"},
}};

TextView PatternOf(ProblemKind kind) {
    return std::find_if(sentences.begin(), sentences.end(),
                        [kind](const KindSentence& entry) { return entry.kind == kind; })
        ->sentence;
}

Text LineInBrackets(const Problem& problem) {
    return problem.line > 0 ? Concat(u" (regel ", problem.line, u")") : Text();
}

Text ValueOf(const Problem& problem, TextView place) {
    if (place == u"{woorden}") return problem.words;
    if (place == u"{getal}") return Concat(problem.number);
    if (place == u"{naam}") return problem.name;
    if (place == u"{regel}") return Concat(problem.line);
    return LineInBrackets(problem);
}

}  // namespace

Problem EscapedError(const RuntimeError& error) {
    return {.kind = ProblemKind::EscapedError, .words = error.Description()};
}

Text Sentence(const Problem& problem) {
    TextView pattern = PatternOf(problem.kind);
    Text sentence;
    while (!pattern.empty()) {
        const std::size_t place = std::min(pattern.find(u'{'), pattern.size());
        AppendTo(sentence, pattern.substr(0, place));
        pattern.remove_prefix(place);
        if (pattern.empty()) break;
        const std::size_t end = pattern.find(u'}') + 1;
        AppendTo(sentence, ValueOf(problem, pattern.substr(0, end)));
        pattern.remove_prefix(end);
    }
    return sentence;
}

Text SentenceWithLine(const Problem& problem) {
    const bool tellsLine = PatternOf(problem.kind).find(u"regel") != TextView::npos;
    return tellsLine ? Sentence(problem) : Concat(Sentence(problem), LineInBrackets(problem));
}

}  // namespace korvande
