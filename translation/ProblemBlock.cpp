#include "translation/ProblemBlock.h"

#include "translation/Translation.h"

namespace korvande {

namespace {

void AppendList(std::vector<Text>& lines, TextView title, const std::vector<Text>& list) {
    if (list.empty()) return;
    if (!lines.empty()) lines.emplace_back();
    lines.emplace_back(title);
    for (const Text& line : list) lines.push_back(Concat(u"  ", line));
}

}  // namespace

std::vector<Text> LossLines(const Translation& translation) {
    std::vector<Text> lines;
    AppendList(lines, u"Niet of anders overgekomen:", translation.problems.Lines(ProblemList::Loss));
    return lines;
}

std::vector<Text> ProblemLines(const Translation& translation) {
    std::vector<Text> lines = LossLines(translation);
    AppendList(lines, u"Volgens de controletabel en de instellingen:", translation.problems.Lines(ProblemList::Wanted));
    return lines;
}

std::vector<Text> AccountLines(const Translation& translation) {
    std::vector<Text> lines;
    const Text summary = translation.account.Summary();
    for (TextView rest = summary; !rest.empty();) {
        const std::size_t end = rest.find(u'\n');
        lines.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    return lines;
}

void WriteProblemBlock(Translation& translation) {
    if (!translation.problems.HasLoss()) return;
    LogBook& log = translation.log;
    log.WriteLine();
    for (const Text& line : ProblemLines(translation)) log.WriteLine(line);
    log.WriteLine();
    log.WriteLine(u"Objectbalans:");
    for (const Text& line : AccountLines(translation)) log.WriteLine(line);
}

}  // namespace korvande
