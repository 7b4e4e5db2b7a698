#include "project/Options.h"

#include <algorithm>

#include "core/Clock.h"

namespace korvande {

namespace {

constexpr Option optionTable[] = {
    Option{"NEN1878", "SUFNENFile", OptionKind::PlainText, &Options::txtFileSUFNEN, u"voorbeeld.sfn", true,
           u"NEN1878/SUF2 bestand"},
    Option{"NEN1878", "IDEXFile", OptionKind::PlainText, &Options::txtFileIDEX, u"voorbeeld.idx", true,
           u"IDEX bestand"},
    Option{"NEN1878", "NameLong", OptionKind::Owner, &Options::txtNameLong, u"", false, u"Naam"},
    Option{"NEN1878", "NameShort", OptionKind::Owner, &Options::txtNameShort, u"", false, u"Korte naam"},
    Option{"NEN1878", "Street", OptionKind::Owner, &Options::txtStreet, u"", false, u"Straat"},
    Option{"NEN1878", "Number", OptionKind::Owner, &Options::txtNumber, u"", false, u"Nummer"},
    Option{"NEN1878", "Extra", OptionKind::Owner, &Options::txtSuffix, u"", false, u"Toevoeging"},
    Option{"NEN1878", "ZipCode", OptionKind::Owner, &Options::txtZipcode, u"", false, u"Postcode"},
    Option{"NEN1878", "Town", OptionKind::Owner, &Options::txtCity, u"", false, u"Plaats"},
    Option{"NEN1878", "Source", OptionKind::Owner, &Options::txtSource, u"", false, u"Bron"},
    Option{"NEN1878", "Reporting", OptionKind::Report, &Options::optReportScreen, u"1", true, u"Logboek"},

    Option{"Import", "AcceptUnknown", OptionKind::CheckBox, &Options::chkImportUnknowns, u"1", true,
           u"Onbekende objecten"},
    Option{"Import", "SymRotation", OptionKind::CheckBox, &Options::chkImportSymRotation, u"", false,
           u"Symboolrotatie aanpassen"},

    Option{"Export", "IncludeUnknown", OptionKind::CheckBox, &Options::chkExportUnknowns, u"", true,
           u"Onbekende objecten"},
    Option{"Export", "IncludeNrAsField", OptionKind::CheckBox, &Options::chkExportPointnoAsField, u"", true,
           u"Puntnummer als veld"},
    Option{"Export", "IncludeNrAsText", OptionKind::CheckBox, &Options::chkExportPointnoAsText, u"", true,
           u"Puntnummer als tekst"},
    Option{"Export", "PointIDLKI", OptionKind::PlainText, &Options::txtPnoTxtLKI, u"", false,
           u"LKI-code puntnummertekst"},
    Option{"Export", "IncludeZ", OptionKind::CheckBox, &Options::chkExport3D, u"", false, u"3D"},
    Option{"Export", "IncludeZAsText", OptionKind::CheckBox, &Options::chkExportHeightAsText, u"", true,
           u"Hoogte als tekst"},
    Option{"Export", "ElevationLKI", OptionKind::PlainText, &Options::txtEleTxtLKI, u"", false,
           u"LKI-code hoogtetekst"},
    Option{"Export", "SymRotation", OptionKind::CheckBox, &Options::chkExportSymRotation, u"", false,
           u"Symboolrotatie aanpassen"},
    Option{"Export", "ThreePointArcs", OptionKind::SetCheckBox, &Options::chkThreePointArcs, u"", true,
           u"Bogen als driepuntsboog wegschrijven"},
    Option{"Export", "AltDate", OptionKind::DateText, &Options::txtAltDatum, u"", false, u"Veldwerkdatum"},
    Option{"Export", "UseDateAlt", OptionKind::DateOption, &Options::optDateAlt, u"", false, u""},
    Option{"Export", "UseDateSEE", OptionKind::DateOption, &Options::optDateSEE, u"1", false, u""},
    Option{"Export", "UseDateNow", OptionKind::DateOption, &Options::optDateNow, u"", false, u""},

    Option{"", "ClipXY", OptionKind::PerUser, &Options::chkSelectXY, u"", false, u""},
    Option{"", "MinX", OptionKind::PerUser, &Options::txtMinX, u"0", false, u""},
    Option{"", "MaxX", OptionKind::PerUser, &Options::txtMaxX, u"999999", false, u""},
    Option{"", "MinY", OptionKind::PerUser, &Options::txtMinY, u"0", false, u""},
    Option{"", "MaxY", OptionKind::PerUser, &Options::txtMaxY, u"999999", false, u""},
    Option{"", "CharacterSet", OptionKind::PerUser, &Options::cboCharacterSet, characterSetNames[0], false, u""},
    Option{"", "WithoutZeroes", OptionKind::PerUser, &Options::chkWithoutZeroes, u"", false, u""},
    Option{"", "LogBookWindow", OptionKind::PerUser, &Options::logBookInWindow, u"1", false, u""},
};

void PutInitial(Options& options, const Option& option) {
    if (const auto* const text = std::get_if<Text Options::*>(&option.member)) {
        options.** text = option.initial;
    } else {
        options.*std::get<bool Options::*>(option.member) = !option.initial.empty();
    }
}

}  // namespace

Options::Options() {
    for (const Option& option : optionTable) PutInitial(*this, option);
    txtAltDatum = FromWindows1252(CompactDate(Now()));
}

CharacterSet CharacterSetOf(const Options& options) noexcept {
    const auto found = std::find(characterSetNames.begin(), characterSetNames.end(), options.cboCharacterSet);
    if (found == characterSetNames.end()) return CharacterSet::Automatic;
    return static_cast<CharacterSet>(found - characterSetNames.begin());
}

std::span<const Option> AllOptions() noexcept { return optionTable; }

void ResetOptions(Options& options) {
    for (const Option& option : optionTable) {
        if (!option.isReset) continue;
        if (option.kind == OptionKind::Report) {
            SelectReport(options, std::get<bool Options::*>(option.member));
        } else {
            PutInitial(options, option);
        }
    }
}

void SelectReport(Options& options, bool Options::*option) noexcept {
    options.optReportScreen = options.optReportDisk = options.optReportPrinter = options.optReportNone = false;
    options.*option = true;
}

void SetDateOption(Options& options, bool Options::*option, bool value) noexcept {
    if (value) options.optDateSEE = options.optDateNow = options.optDateAlt = false;
    options.*option = value;
}

}  // namespace korvande
