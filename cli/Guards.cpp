#include "cli/Guards.h"

#include <string_view>

namespace korvande {

std::string Guarded(const std::string& argument) {
    constexpr std::string_view takenForMore = "[{+%\x01";
    const bool isGuarded = !argument.empty() && takenForMore.find(argument.front()) != std::string_view::npos;
    return isGuarded ? guard + argument : argument;
}

void TakeGuardAway(std::string& argument) {
    if (argument.starts_with(guard)) argument.erase(0, 1);
}

namespace {

void TakeGuardsAway(BatchOptions& options) {
    TakeGuardAway(options.atATime);
    TakeGuardAway(options.report);
}

}  // namespace

void TakeGuardsAway(CheckOptions& options) {
    TakeGuardAway(options.project);
    TakeGuardAway(options.reading.characterSet);
    TakeGuardsAway(options.batch);
    for (std::string& file : options.files) TakeGuardAway(file);
}

void TakeGuardsAway(CompareOptions& options) {
    for (std::string* value : {&options.project, &options.reading.characterSet, &options.first, &options.second}) {
        TakeGuardAway(*value);
    }
}

void TakeGuardsAway(DrawOptions& options) {
    for (std::string* value : {&options.project, &options.reading.characterSet, &options.frame, &options.width,
                               &options.input, &options.output}) {
        TakeGuardAway(*value);
    }
}

void TakeGuardsAway(GeoPackageOptions& options) {
    TakeGuardAway(options.project);
    TakeGuardAway(options.reading.characterSet);
    TakeGuardsAway(options.batch);
    for (std::string& file : options.files) TakeGuardAway(file);
}

void TakeGuardsAway(TranslateOptions& options) {
    for (std::string* value :
         {&options.mode, &options.project, &options.logBook, &options.answer, &options.selection, &options.source,
          &options.unknowns, &options.outputFolder, &options.reading.characterSet}) {
        TakeGuardAway(*value);
    }
    TakeGuardsAway(options.batch);
    for (std::string& file : options.files) TakeGuardAway(file);
}

}  // namespace korvande
