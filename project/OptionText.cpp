#include "project/OptionText.h"

#include <variant>

namespace korvande {

namespace {

TextView ReportText(const Options& options) {
    return options.optReportDisk      ? u"schijf"
           : options.optReportPrinter ? u"printer"
           : options.optReportNone    ? u"geen"
                                      : u"scherm";
}

Text DateText(const Options& options) {
    if (options.optDateNow) return u"vandaag";
    if (options.optDateAlt) return Concat(u"alternatief: ", options.txtAltDatum);
    return u"uit het bestand";
}

}  // namespace

Text OptionText(const Options& options, const Option& option) {
    switch (option.kind) {
        case OptionKind::Report:
            return Text(ReportText(options));
        case OptionKind::DateText:
            return DateText(options);
        default:
            break;
    }
    if (const auto* const text = std::get_if<Text Options::*>(&option.member)) return options.**text;
    return options.*std::get<bool Options::*>(option.member) ? u"ja" : u"nee";
}

}  // namespace korvande
