#include "app/RecentFiles.h"

#include <algorithm>
#include <optional>

#include "app/OutputName.h"
#include "app/Remembered.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

// Each file has a value of its own, its mode's text and its name, in one of ten places; one more value tells the order
// of the places, newest first. So a new file changes no more than two values.
constexpr TextView orderName = u"RecentOrder";
constexpr TextView placeDigits = u"0123456789";
constexpr char16_t behindMode = u'|';

Text PlaceName(char16_t place) { return Concat(u"Recent", TextView(&place, 1)); }

// The places in use, each once.
Text Order() {
    Text order;
    for (const char16_t place : Remembered(orderName)) {
        if (placeDigits.find(place) != TextView::npos && order.find(place) == Text::npos) order.push_back(place);
    }
    return order;
}

std::optional<RecentFile> FileAt(char16_t place) {
    const Text kept = Remembered(PlaceName(place));
    const std::size_t end = kept.find(behindMode);
    if (end == Text::npos || end + 1 == kept.size()) return {};
    const bool isPlain = std::none_of(kept.begin(), kept.end(), [](char16_t character) { return character < u' '; });
    const TextView modeText = TextView(kept).substr(0, end);
    const auto* const mode =
        std::find_if(modes.begin(), modes.end(), [modeText](const ModeNames& names) { return names.text == modeText; });
    if (!isPlain || mode == modes.end()) return {};
    return RecentFile{kept.substr(end + 1), mode->mode};
}

bool IsAt(char16_t place, TextView name) {
    const std::optional<RecentFile> file = FileAt(place);
    return file && ToCapitals(file->name) == ToCapitals(name);
}

// The place for a file: its own, or else a free one, or that of the oldest.
char16_t PlaceFor(const Text& order, TextView name) {
    const auto own = std::find_if(order.begin(), order.end(), [name](char16_t place) { return IsAt(place, name); });
    if (own != order.end()) return *own;
    const std::size_t free = placeDigits.find_first_not_of(order);
    return free == TextView::npos ? order.back() : placeDigits[free];
}

void Forget(const RecentFile& file) {
    Text order = Order();
    std::erase_if(order, [&file](char16_t place) { return IsAt(place, file.name); });
    Remember(orderName, order);
}

}  // namespace

std::vector<RecentFile> RecentFiles() {
    std::vector<RecentFile> files;
    for (const char16_t place : Order()) {
        if (const std::optional<RecentFile> file = FileAt(place)) files.push_back(*file);
    }
    return files;
}

Text OfferOf(const RecentFile& file) {
    return Concat(FileNameOf(file.name), u"  –  ", NamesOf(file.mode).text, u"  –  ", FolderOf(file.name));
}

void RememberInput(const FormKORVANDE& form) {
    constexpr std::size_t longest = 1000;  // of a value that can be read back
    const Text name = FullName(InputInForm(form));
    const Text value = Concat(form.cboXlateMode.SelectedText(), TextView(&behindMode, 1), name);
    if (value.size() > longest) return;
    Text order = Order();
    const char16_t place = PlaceFor(order, name);
    std::erase(order, place);
    Remember(PlaceName(place), value);
    Remember(orderName, Concat(TextView(&place, 1), order));
}

void TakeRecentFile(FormKORVANDE& form, const RecentFile& file) {
    if (!FileExistsAt(file.name)) {
        const Text question = Concat(u"Het bestand is er niet meer:\n", file.name, u"\n\nUit deze lijst halen?");
        if (form.screen.ShowMessage({question, {}, Icon::Question, Buttons::YesNo}) == Answer::Yes) Forget(file);
        return;
    }
    const auto& items = form.cboXlateMode.items;
    const auto item = std::find(items.begin(), items.end(), NamesOf(file.mode).text);
    if (item != items.end()) form.cboXlateMode.index = static_cast<int>(item - items.begin());
    // An output named after the input that the project remembers goes along.
    form.chosenInput = InputInForm(form);
    Options& options = form.project.options;
    (file.mode.direction == Direction::FromIdex ? options.txtFileIDEX : options.txtFileSUFNEN) = file.name;
    DeriveOutputName(form);
    TellChanged(form);
}

}  // namespace korvande
