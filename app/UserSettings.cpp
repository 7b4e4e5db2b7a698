#include "run/UserSettings.h"

#include <array>

#include "host/modFileHandling.h"
#include "host/modRegistry.h"
#include "project/frmKORVANDE.h"

namespace korvande {

namespace {

constexpr TextView settingsKey = u"Software\\TERAMUND\\KORVANDE";

struct BoundSetting {
    TextView name;
    Text FormKORVANDE::*box;
    TextView initial;
};
constexpr std::array<BoundSetting, 4> bounds = {{{u"MinX", &FormKORVANDE::txtMinX, u"0"},
                                                 {u"MaxX", &FormKORVANDE::txtMaxX, u"999999"},
                                                 {u"MinY", &FormKORVANDE::txtMinY, u"0"},
                                                 {u"MaxY", &FormKORVANDE::txtMaxY, u"999999"}}};

Text Setting(TextView name, TextView initial) {
    Text value;
    return ReadRegistryValue(hives::currentUser, settingsKey, name, value) ? value : Text(initial);
}

}  // namespace

void ReadUserSettings() {
    FormKORVANDE& form = frmKORVANDE();
    CurrentProject() = Setting(u"CurrProject", {});
    form.chkSelectXY = Setting(u"ClipXY", u"0") == u"1";
    for (const BoundSetting& bound : bounds) form.*bound.box = Setting(bound.name, bound.initial);
    if (form.changed) form.changed();
}

void SaveUserSettings() {
    const FormKORVANDE& form = frmKORVANDE();
    RegKey key{};
    if (RegCreateSubKey(hives::currentUser, settingsKey, key)) RegCloseKeyHandle(key);
    const auto save = [](TextView setting, TextView data) {
        WriteRegistryValue(hives::currentUser, settingsKey, setting, data);
    };
    save(u"CurrProject", CurrentProject());
    save(u"ClipXY", form.chkSelectXY ? u"1" : u"0");
    for (const BoundSetting& bound : bounds) save(bound.name, form.*bound.box);
}

}  // namespace korvande
