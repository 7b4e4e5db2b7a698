#pragma once

#include <cstdint>
#include <vector>

#include "core/Text.h"

// LISCAD's installation for the current user, and its "Data Conversions" menus.
namespace korvande {

class Screen;

// Element 0 is the preferred version (empty when there is none), the others are the installed versions in the
// registry's order.
void ListLiscadVersions(std::vector<Text>& versions);

// A version's folders, ending in "\"; empty when the value cannot be read.
Text GetLiscadDataPath(TextView version);
Text GetLiscadUserPath(TextView version);

// Makes this the user's folder of LISCAD's release; false when that cannot be written.
bool SetLiscadUserPath(TextView folder);

// "nl", "NL", "uk", "UK", or "us" for anything else.
Text GetLiscadLanguage(TextView version);

// Creates (or opens) the keys of the conversion menus of a version; false when its \SEE key is not there or a step
// fails.
bool EnsureDataConversionsKeys(TextView version);

// Writes one entry into the import (kind 1) or export menu of a version: in place of an earlier one with the same file
// pattern, else behind the last.
bool RegisterMenuItem(TextView version, std::int16_t kind, TextView label, TextView pattern);

// Registers an item with all versions: selector 1 import, 2 export, 0 or 3 both. The result is the report with the
// marks %1 to %5 between its four lists.
Text RegisterWithLiscad(std::int16_t selector, TextView label, TextView pattern, std::vector<Text>& versions);

// Registers the translator's menu items with these versions and shows the report.
void AnnounceToLiscad(Screen& screen, std::vector<Text>& versions);

}  // namespace korvande
