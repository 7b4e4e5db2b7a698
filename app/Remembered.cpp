#include "app/Remembered.h"

#include "host/modFileHandling.h"
#include "host/modRegistry.h"

namespace korvande {

namespace {

constexpr TextView settingsKey = u"Software\\TERAMUND\\KORVANDE";

}  // namespace

Text Remembered(TextView name, TextView initial) {
    Text value;
    return ReadRegistryValue(hives::currentUser, settingsKey, name, value) ? value : Text(initial);
}

void Remember(TextView name, TextView data) {
    Text kept;
    if (ReadRegistryValue(hives::currentUser, settingsKey, name, kept) && kept == data) return;
    RegKey key{};
    if (RegCreateSubKey(hives::currentUser, settingsKey, key)) RegCloseKeyHandle(key);
    WriteRegistryValue(hives::currentUser, settingsKey, name, data);
}

}  // namespace korvande
