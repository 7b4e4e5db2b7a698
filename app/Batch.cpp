#include "app/Batch.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "app/GivenFile.h"
#include "app/Remembered.h"
#include "app/RunFiles.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "run/Recognise.h"

namespace korvande {

namespace {

constexpr TextView folderValue = u"BatchFolder";

bool IsFolder(TextView name) { return !FileExistsAt(name) && !IsFreeName(name); }

Text StemOf(TextView name) {
    const Text file = FileNameOf(name);
    const std::size_t dot = file.rfind(u'.');
    return file.substr(0, dot == 0 ? Text::npos : dot);
}

void NameOutputs(Batch& batch) {
    for (BatchFile& file : batch.files) {
        if (!file.format) continue;
        const TextView extension = NamesOf(ModeFor(batch, file)).extension;
        file.output = Concat(batch.folder, StemOf(file.input), u".", ToCapitals(extension));
        file.logBook = WithLastThreeReplaced(file.output, u"LOG");
    }
}

// Gathers files, each once.
class Gathering {
 public:
    Gathering(FormKORVANDE& itsForm, Batch& itsBatch) : form(itsForm), batch(itsBatch) {}

    void AddFile(const Text& name) { Add(name, FormatOfFile(form.screen, name)); }
    void AddFolder(TextView name) {
        const Text folder = FolderWithSeparator(name);
        for (const Text& file : ListFiles(folder, u"*")) {
            const Text path = Concat(folder, file);
            const std::optional<Format> format = FormatOfFile(form.screen, path);
            if (format) {
                Add(path, format);
            } else {
                ++batch.passedOver;
            }
        }
    }

 private:
    void Add(const Text& name, std::optional<Format> format) {
        if (known.insert(FileIdentity(name)).second) batch.files.push_back({name, format, {}, {}});
    }

    FormKORVANDE& form;
    Batch& batch;
    std::unordered_set<std::string> known;
};

// What a batch may not write over, and what it writes already, by FileIdentity.
class Written {
 public:
    void Protect(const Text& name, TextView what) { names.emplace(FileIdentity(name), Use{Text(what), {}}); }

    // Why a file may not be written for an input; empty when nothing is in the way.
    Text Add(const Text& name, TextView what, const Text& input) {
        const auto [place, isNew] = names.emplace(FileIdentity(name), Use{{}, input});
        if (isNew) return {};
        const Use& other = place->second;
        if (other.input.empty()) {
            return Concat(other.what, u" en ", what, u" zijn hetzelfde bestand:\n", name,
                          u"\n\nKies een andere map, of haal het bestand uit de lijst.");
        }
        return Concat(u"Twee bestanden zouden ", what == u"logboek" ? u"hetzelfde " : u"dezelfde ", what,
                      u" krijgen:\n", name, u"\n\nHet zijn:\n", other.input, u"\n", input,
                      u"\n\nHaal er een uit de lijst, en vertaal dat bestand in een andere map.");
    }

 private:
    struct Use {
        Text what;   // of what is protected
        Text input;  // for which it is written
    };
    std::unordered_map<std::string, Use> names;
};

}  // namespace

bool AreBatch(const std::vector<Text>& names) {
    return names.size() > 1 || (names.size() == 1 && IsFolder(names.front()));
}

Batch BatchOf(FormKORVANDE& form, const std::vector<Text>& names) {
    const BusyPointer busy(form.screen);
    Batch batch;
    Gathering gathering(form, batch);
    for (const Text& name : names) {
        if (IsFolder(name)) {
            gathering.AddFolder(name);
        } else {
            gathering.AddFile(name);
        }
    }
    const Text remembered = Remembered(folderValue);
    const bool isThere = !remembered.empty() && IsFolder(remembered);
    const Text first = batch.files.empty() ? Text() : FolderOf(batch.files.front().input);
    batch.folder = isThere ? FolderWithSeparator(remembered) : first;
    if (form.cboXlateMode.SelectedText().ends_with(u"SUF2")) batch.variant = Variant::Suf2;
    NameOutputs(batch);
    return batch;
}

void RememberFolder(const Batch& batch) { Remember(folderValue, batch.folder); }

Mode ModeFor(const Batch& batch, const BatchFile& file) {
    const Mode reading = ModeReading(*file.format);
    return reading.direction == Direction::FromIdex ? Mode{reading.direction, batch.variant} : reading;
}

bool HasIdex(const Batch& batch) {
    return std::any_of(batch.files.begin(), batch.files.end(),
                       [](const BatchFile& file) { return file.format == Format::Idex; });
}

void ChooseVariant(Batch& batch, Variant variant) {
    batch.variant = variant;
    NameOutputs(batch);
}

void ChooseFolder(Batch& batch, TextView folder) {
    batch.folder = FolderWithSeparator(Trim(folder));
    NameOutputs(batch);
}

void DropFile(Batch& batch, std::size_t place) {
    batch.files.erase(batch.files.begin() + static_cast<std::ptrdiff_t>(place));
}

Text ObstacleTo(const FormKORVANDE& form, const Batch& batch) {
    const bool isEmpty = std::none_of(batch.files.begin(), batch.files.end(),
                                      [](const BatchFile& file) { return file.format.has_value(); });
    if (isEmpty) return u"Geen van deze bestanden is een IDEX-, NEN1878- of SUF2-bestand.";
    if (!IsFolder(batch.folder)) return Concat(u"De map voor de resultaten bestaat niet:\n", batch.folder);
    Written written;
    if (const Text table = ControlTableOf(form); !table.empty()) written.Protect(table, u"Controletabel");
    for (const BatchFile& file : batch.files) written.Protect(file.input, u"Invoer");
    for (const BatchFile& file : batch.files) {
        if (!file.format) continue;
        for (const auto& [name, what] : {std::pair(file.output, u"uitvoer"), std::pair(file.logBook, u"logboek")}) {
            if (Text obstacle = written.Add(name, what, file.input); !obstacle.empty()) return obstacle;
        }
    }
    return {};
}

}  // namespace korvande
