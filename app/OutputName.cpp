#include "app/OutputName.h"

#include <utility>

#include "app/RunTranslation.h"
#include "app/frmKORVANDE.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

Text WithoutExtension(TextView name) {
    const Text file = FileNameOf(name);
    const std::size_t dot = file.rfind(u'.');
    return Concat(FolderOf(name), file.substr(0, dot == 0 ? Text::npos : dot));
}

// Whether two files have one name but for their extensions.
bool ShareStem(TextView name, TextView other) {
    return ToCapitals(WithoutExtension(name)) == ToCapitals(WithoutExtension(other));
}

TextView ExtensionOf(Mode mode) {
    if (mode.direction == Direction::ToIdex) return u"IDX";
    return mode.variant == Variant::Nen1878 ? u"SFN" : u"SF2";
}

}  // namespace

void TakeQuotesAway(FormKORVANDE& form) {
    Options& options = form.project.options;
    bool hasChanged = false;
    for (Text* const box : {&options.txtFileIDEX, &options.txtFileSUFNEN}) {
        const TextView name = Trim(*box);
        if (name.size() < 2 || !name.starts_with(u'"') || !name.ends_with(u'"')) continue;
        *box = Text(Trim(name.substr(1, name.size() - 2)));
        hasChanged = true;
    }
    if (hasChanged) TellChanged(form);
}

const Text& InputInForm(const FormKORVANDE& form) noexcept {
    const Options& options = form.project.options;
    return SelectedMode(form).direction == Direction::FromIdex ? options.txtFileIDEX : options.txtFileSUFNEN;
}

void DeriveOutputName(FormKORVANDE& form) {
    TakeQuotesAway(form);
    const Text input = InputInForm(form);
    const Text previous = std::exchange(form.chosenInput, input);
    if (Trim(input).empty()) return;
    Options& options = form.project.options;
    const Mode mode = SelectedMode(form);
    Text& output = mode.direction == Direction::FromIdex ? options.txtFileSUFNEN : options.txtFileIDEX;
    const bool isOurs = Trim(output).empty() || FolderOf(output).empty() || ShareStem(output, input) ||
                        (!previous.empty() && ShareStem(output, previous));
    if (!isOurs) return;
    output = Concat(WithoutExtension(input), u".", ExtensionOf(mode));
    TellChanged(form);
}

Text BesideInput(TextView output, TextView input) {
    const bool hasRoot = output.starts_with(u'\\') || output.starts_with(u'/') || output.substr(1, 1) == u":";
    return hasRoot ? Text(output) : Concat(FolderOf(input), output);
}

}  // namespace korvande
