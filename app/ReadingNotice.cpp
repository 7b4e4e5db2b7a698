#include "app/ReadingNotice.h"

#include <algorithm>

#include "picture/DisplayList.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

Text InOneLine(TextView text) {
    Text line(text);
    std::replace_if(
        line.begin(), line.end(), [](char16_t character) { return character == u'\n' || character == u'\r'; }, u' ');
    return line;
}

void AddLine(Text& lines, TextView line) {
    if (!lines.empty()) AppendTo(lines, u"\n");
    AppendTo(lines, line);
}

bool IsEmpty(const DisplayList& list) {
    return list.points.empty() && list.lines.empty() && list.texts.empty() && list.notShown == 0;
}

}  // namespace

void ReadingNotice::Listen(Translation& translation) {
    translation.problems.onError = [this](const Problem& problem) {
        if (errors++ == 0) firstError = InOneLine(SentenceWithLine(problem));
    };
}

void ReadingNotice::AddQuestion(TextView question) { questions.push_back(InOneLine(question)); }

Text ReadingNotice::Lines(TextView fileName, const Translation& translation, const DisplayList& list) const {
    Text lines;
    for (const Text& question : questions) AddLine(lines, Concat(question, u" (hier getoond met Ja)"));
    if (errors > 0) {
        const Text more = errors == 1   ? Text()
                          : errors == 2 ? Text(u", en nog 1 fout")
                                        : Concat(u", en nog ", errors - 1, u" fouten");
        AddLine(lines, Concat(u"Niet alles van ", fileName, u" is gelezen: ", firstError, more));
    } else if (translation.problems.HasDamage()) {
        // Damage stands first.
        AddLine(lines, Concat(fileName, u" is beschadigd: ", translation.problems.Lines(ProblemList::Loss).front()));
    }
    if (IsEmpty(list)) AddLine(lines, Concat(fileName, u" bevat geen objecten"));
    return lines;
}

Text ReadingNotice::Failure(TextView name, TextView message) const {
    if (message.find(name) != TextView::npos) return Text(message);
    Text text = Concat(u"Het bestand kan niet worden gelezen:\n", name);
    const TextView reason = firstError.empty() ? message : TextView(firstError);
    if (!reason.empty()) AddLine(text, reason);
    return text;
}

}  // namespace korvande
