#include "app/UserSettings.h"

#include "app/frmKORVANDE.h"
#include "host/modFileHandling.h"
#include "host/modRegistry.h"
#include "project/Options.h"

namespace korvande {

namespace {

constexpr TextView settingsKey = u"Software\\TERAMUND\\KORVANDE";
constexpr TextView currentProject = u"CurrProject";
constexpr TextView isSet = u"1";
constexpr TextView isNotSet = u"0";

Text Setting(TextView name, TextView initial) {
    Text value;
    return ReadRegistryValue(hives::currentUser, settingsKey, name, value) ? value : Text(initial);
}

// What is kept already is not written again: each write may wait for the disk.
void Save(TextView name, TextView data) {
    Text kept;
    if (ReadRegistryValue(hives::currentUser, settingsKey, name, kept) && kept == data) return;
    WriteRegistryValue(hives::currentUser, settingsKey, name, data);
}

// Calls an action with the name and the option of each setting that is kept per user.
template <class Action>
void ForEachSetting(Action action) {
    for (const Option& option : AllOptions()) {
        if (option.kind == OptionKind::PerUser) action(FromWindows1252(option.key), option);
    }
}

}  // namespace

void ReadUserSettings(FormKORVANDE& form) {
    Options& options = form.project.options;
    form.CurrentProject = Setting(currentProject, {});
    ForEachSetting([&options](const Text& name, const Option& option) {
        const Text value = Setting(name, option.initial);
        if (const auto* const text = std::get_if<Text Options::*>(&option.member)) {
            options.** text = value;
        } else {
            options.*std::get<bool Options::*>(option.member) = value == isSet;
        }
    });
    TellChanged(form);
}

void SaveUserSettings(const FormKORVANDE& form) {
    const Options& options = form.project.options;
    RegKey key{};
    if (RegCreateSubKey(hives::currentUser, settingsKey, key)) RegCloseKeyHandle(key);
    Save(currentProject, form.CurrentProject);
    ForEachSetting([&options](const Text& name, const Option& option) {
        if (const auto* const text = std::get_if<Text Options::*>(&option.member)) {
            Save(name, options.**text);
        } else {
            Save(name, options.*std::get<bool Options::*>(option.member) ? isSet : isNotSet);
        }
    });
}

}  // namespace korvande
