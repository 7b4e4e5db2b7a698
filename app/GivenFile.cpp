#include "app/GivenFile.h"

#include <algorithm>
#include <array>
#include <exception>
#include <optional>

#include "app/CommandLine.h"
#include "app/OutputName.h"
#include "app/RunTranslation.h"
#include "app/frmKORVANDE.h"
#include "core/LineReader.h"
#include "host/modFileHandling.h"
#include "run/Recognise.h"
#include "translation/Mode.h"

namespace korvande {

namespace {

bool HasExtension(TextView name, TextView extension) { return ToCapitals(name).ends_with(extension); }

Text& BoxByExtension(FormKORVANDE& form, TextView name) {
    constexpr std::array<TextView, 3> ofSufNen = {u".SFN", u".NEN", u".SF2"};
    Options& options = form.project.options;
    const bool isSufNen = std::any_of(ofSufNen.begin(), ofSufNen.end(),
                                      [name](TextView extension) { return HasExtension(name, extension); });
    if (isSufNen) return options.txtFileSUFNEN;
    const bool modeReadsIdex = SelectedMode(form).direction == Direction::FromIdex;
    return modeReadsIdex || HasExtension(name, u".IDX") ? options.txtFileIDEX : options.txtFileSUFNEN;
}

}  // namespace

Text GivenFile(TextView commandLine) {
    const Text name = OnlyArgument(commandLine);
    return !name.empty() && FileExistsAt(name) ? FullName(name) : Text();
}

void TakeGivenFile(FormKORVANDE& form, const Text& name) {
    const std::optional<Format> format = FormatOfFile(form.screen, name);
    if (format) {
        const auto* const mode = std::find_if(modes.begin(), modes.end(), [format](const ModeNames& names) {
            return InputFormat(names.mode) == *format;
        });
        form.cboXlateMode.index = static_cast<int>(mode - modes.begin());
        // An output named after the input that the project remembers goes along.
        form.chosenInput = InputInForm(form);
    }
    Options& options = form.project.options;
    Text& box =
        !format ? BoxByExtension(form, name) : (*format == Format::Idex ? options.txtFileIDEX : options.txtFileSUFNEN);
    box = name;
    if (&box == &InputInForm(form)) DeriveOutputName(form);
    TellChanged(form);
}

}  // namespace korvande
