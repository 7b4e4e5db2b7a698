#include "app/CheckInput.h"

#include <algorithm>

#include "app/OutputName.h"
#include "app/RunActivity.h"
#include "app/RunFiles.h"
#include "app/RunTranslation.h"
#include "app/RunningScreen.h"
#include "app/frmKORVANDE.h"
#include "picture/RdArea.h"
#include "project/OwnerBoxes.h"
#include "run/Check.h"
#include "translation/ProblemBlock.h"
#include "translation/Translation.h"
#include "translation/UnknownObjects.h"

namespace korvande {

namespace {

struct KindNames {
    TextView name;
    TextView one;
    TextView many;
};
constexpr std::array<KindNames, findingKinds> kindNames = {{{u"Fout", u"fout", u"fouten"},
                                                            {u"Verlies", u"keer verlies", u"keer verlies"},
                                                            {u"Vraag", u"vraag", u"vragen"},
                                                            {u"Onbekende code", u"onbekende code", u"onbekende codes"},
                                                            {u"Instellingen", u"melding", u"meldingen"}}};

const KindNames& NamesOf(FindingKind kind) noexcept { return kindNames[static_cast<std::size_t>(kind)]; }

std::int64_t CountOf(const CheckReport& report, FindingKind kind) noexcept {
    return report.counts[static_cast<std::size_t>(kind)];
}

FindingKind KindOf(ProblemList list) noexcept {
    switch (list) {
        case ProblemList::Loss:
            return FindingKind::Loss;
        case ProblemList::Wanted:
            return FindingKind::Wanted;
        case ProblemList::Errors:
            break;
    }
    return FindingKind::Error;
}

Text InOneLine(Text text) {
    std::replace(text.begin(), text.end(), u'\n', u' ');
    return text;
}

void Add(CheckReport& report, Finding finding) {
    ++report.counts[static_cast<std::size_t>(finding.kind)];
    if (report.findings.size() < mostFindings) report.findings.push_back(std::move(finding));
}

// A screen for checking. Its messages say what the problems say already; a question is a problem, after which the check
// goes on with what is proposed.
class CheckScreen : public RunningScreen {
 public:
    explicit CheckScreen(Screen& itsOwner) : RunningScreen(itsOwner) {}

    std::function<void(const Text& question)> onQuestion;

    Answer ShowMessage(const MessageBox& box) override {
        switch (box.buttons) {
            case Buttons::Ok:
                return Answer::Ok;
            case Buttons::YesNo:
            case Buttons::YesNoCancel:
                onQuestion(InOneLine(box.text));
                return Answer::Yes;
            default:
                return RunningScreen::ShowMessage(box);
        }
    }
};

void AddUnknownCodes(UnknownCodeTally& unknowns, CheckReport& report) {
    unknowns.Sort();
    for (const UnknownCodeRec& unknown : unknowns.Entries()) {
        Add(report, {.kind = FindingKind::UnknownCode, .sentence = UnknownCodeSentence(unknown)});
    }
}

void TakeSettings(FormKORVANDE& form, Translation& translation) {
    SaveGridData(form);
    TakeOwner(form.project.options, form.project.owner);
    translation.options = form.project.options;
    translation.owner = form.project.owner;
    translation.codes = form.project.codes;
    translation.mode = SelectedMode(form);
}

// The check itself; false when a person ended it.
bool Check(FormKORVANDE& form, CheckReport& report) {
    CheckScreen screen(form.screen);
    Translation translation(screen);
    TakeSettings(form, translation);
    const bool isFromIdex = translation.mode.direction == Direction::FromIdex;
    (isFromIdex ? translation.IdexFileName : translation.SufNenFileName) = report.input;
    translation.problems.onProblem = [&report](const Problem& problem) {
        Add(report, {problem.line, KindOf(ListOf(problem.kind)), InOneLine(Sentence(problem))});
    };
    screen.onQuestion = [&](const Text& question) {
        Add(report, {translation.inputLine, FindingKind::Question, Concat(question, u" (hier gecontroleerd met Ja)")});
    };
    CheckDrawing(translation);
    if (translation.outcome.cancelled) return false;
    AddUnknownCodes(translation.unknowns, report);
    if (translation.outcome.inputUnreadable && CountOf(report, FindingKind::Error) == 0) {
        Add(report, {.sentence = u"Het bestand kan niet worden gelezen"});
    }
    report.account = AccountLines(translation);
    if (const auto extent = ExtentOf(translation.drawing)) report.place = RdPlaceOf(*extent);
    std::stable_sort(report.findings.begin(), report.findings.end(),
                     [](const Finding& one, const Finding& other) { return one.line < other.line; });
    return true;
}

Text LineOf(const Finding& finding) {
    const Text line = finding.line > 0 ? Concat(finding.line) : Text();
    return Concat(line, u"\t", NameOf(finding.kind), u"\t", finding.sentence, u"\n");
}

}  // namespace

TextView NameOf(FindingKind kind) noexcept { return NamesOf(kind).name; }

bool IsFlawless(const CheckReport& report) noexcept {
    return std::all_of(report.counts.begin(), report.counts.end() - 1, [](std::int64_t count) { return count == 0; });
}

Text SummaryOf(const CheckReport& report) {
    Text summary;
    for (std::size_t i = 0; i + 1 < findingKinds; ++i) {
        const std::int64_t count = report.counts[i];
        if (count == 0) continue;
        if (!summary.empty()) AppendTo(summary, u", ");
        AppendTo(summary, Concat(count, u" ", count == 1 ? kindNames[i].one : kindNames[i].many));
    }
    if (summary.empty()) summary = u"Geen problemen gevonden";
    AppendTo(summary, u".");
    return summary;
}

Text RemarksOf(const CheckReport& report) {
    Text remarks;
    if (const TextView place = RdRemark(report.place); !place.empty())
        remarks = Concat(u"De tekening ligt ", place, place.ends_with(u'?') ? u"" : u".");
    if (const std::int64_t wanted = CountOf(report, FindingKind::Wanted); wanted > 0) {
        const KindNames& names = NamesOf(FindingKind::Wanted);
        if (!remarks.empty()) AppendTo(remarks, u" ");
        AppendTo(remarks, Concat(u"Volgens de controletabel en de instellingen: ", wanted, u" ",
                                 wanted == 1 ? names.one : names.many, u"."));
    }
    std::int64_t all = 0;
    for (const std::int64_t count : report.counts) all += count;
    const auto listed = static_cast<std::int64_t>(report.findings.size());
    if (all > listed) {
        AppendTo(remarks, Concat(remarks.empty() ? u"" : u" ", u"De eerste ", listed, u" staan in de lijst."));
    }
    return remarks;
}

Text TextOf(const CheckReport& report, const std::vector<std::size_t>& places) {
    Text text;
    for (const std::size_t place : places) AppendTo(text, LineOf(report.findings[place]));
    return text;
}

Text TextOf(const CheckReport& report) {
    Text text = Concat(report.input, u" (", report.modeText, u")\n", SummaryOf(report), u"\n");
    if (const Text remarks = RemarksOf(report); !remarks.empty()) AppendTo(text, Concat(remarks, u"\n"));
    if (!report.findings.empty()) AppendTo(text, u"\nRegel\tSoort\tMelding\n");
    for (const Finding& finding : report.findings) AppendTo(text, LineOf(finding));
    AppendTo(text, u"\nObjectbalans:\n");
    for (const Text& line : report.account) AppendTo(text, Concat(line, u"\n"));
    return text;
}

std::optional<CheckReport> CheckInput(FormKORVANDE& form) {
    if (IsRunning(form)) return {};
    TakeQuotesAway(form);
    CheckReport report;
    report.input = InputInForm(form);
    report.modeText = form.cboXlateMode.SelectedText();
    if (!InputIsThere(form, report.input)) return {};
    bool isFinished = false;
    {
        const Running running(form.activity, RunKind::Check);
        TellChanged(form);
        isFinished = Check(form, report);
    }
    ShowNoProgress(form);
    TellChanged(form);
    if (IsEndOfRunAsked(form)) {
        Unload(form);
        return {};
    }
    return isFinished ? std::optional(std::move(report)) : std::nullopt;
}

}  // namespace korvande
