#include "cli/JsonDocument.h"

#include "cli/Arguments.h"
#include "cli/Print.h"
#include "core/Version.h"

namespace korvande {

namespace {

constexpr int schemaVersion = 1;

}  // namespace

JsonDocument::JsonDocument(bool itIsWanted, std::string_view command) : isWanted(itIsWanted) {
    if (!isWanted) return;
    PrintLine(Concat(u"{\"versie\":", schemaVersion));
    PrintLine(Concat(u",\"programma\":\"", versionText, u"\""));
    PrintLine(Concat(u",\"opdracht\":\"", command, u"\""));
}

JsonDocument::~JsonDocument() {
    if (!isEnded) End(status::failed);
}

void JsonDocument::Member(std::string_view name, std::string_view json) const {
    if (isWanted) PrintLine(Concat(u",\"", name, u"\":", FromUtf8(json)));
}

void JsonDocument::BeginList(std::string_view name) {
    isInList = true;
    if (isWanted) PrintLine(Concat(u",\"", name, u"\":["));
}

void JsonDocument::Element(std::size_t place, std::string_view json) const {
    if (isWanted) PrintLine(Concat(place == 0 ? u"" : u",", FromUtf8(json)));
}

int JsonDocument::End(int status) {
    isEnded = true;
    if (isWanted) PrintLine(Concat(isInList ? u"],\"afsluitstatus\":" : u",\"afsluitstatus\":", status, u"}"));
    return status;
}

}  // namespace korvande
