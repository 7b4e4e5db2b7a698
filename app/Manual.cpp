#include "app/Manual.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "app/TabPlacement.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

constexpr std::string_view digits = "0123456789ABCDEF";

bool StandsForItself(char byte) noexcept {
    const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    return isLetter || (byte >= '0' && byte <= '9') || std::string_view("/-._~").find(byte) != std::string_view::npos;
}

}  // namespace

TextView ManualChapter(int tab) noexcept {
    switch (tab) {
        case tabGeneral:
            return u"venster";
        case tabSettings:
            return u"instellingen";
        case tabPoints:
        case tabLines:
        case tabTexts:
            return u"codetabellen";
        default:
            return {};
    }
}

std::optional<Text> FindManual(TextView programFolder) {
    constexpr int deepestBuild = 5;
    const Text folder = FolderWithSeparator(programFolder);
    std::vector<Text> places = {folder, Concat(folder, u"../share/korvande/")};
    Text above = FolderOf(folder);
    for (int i = 0; i < deepestBuild && !above.empty(); ++i, above = FolderOf(above)) {
        places.push_back(Concat(above, u"docs/"));
    }
    for (const Text& place : places) {
        const Text page = Concat(place, u"handleiding/handleiding.html");
        if (FileExistsAt(page)) return FullName(page);
    }
    return {};
}

std::string FileAddress(TextView name) {
    std::string path = ToUtf8(name);
    std::replace(path.begin(), path.end(), '\\', '/');
    // A server's name stands where no name stands for this computer; a drive has no separator before it.
    std::string address = path.starts_with("//") ? "file:" : (path.starts_with("/") ? "file://" : "file:///");
    const bool hasDrive = path.size() > 1 && path[1] == ':';
    if (hasDrive) address.append(path, 0, 2);
    for (const char byte : std::string_view(path).substr(hasDrive ? 2 : 0)) {
        if (StandsForItself(byte)) {
            address.push_back(byte);
        } else {
            const auto value = static_cast<unsigned char>(byte);
            address.append({'%', digits[value / 16], digits[value % 16]});
        }
    }
    return address;
}

std::string PageLeadingTo(TextView page, TextView chapter) {
    const std::string address = FileAddress(page) + "#" + ToUtf8(chapter);
    return "<!DOCTYPE html>\n<html lang=\"nl\">\n<head>\n<meta charset=\"utf-8\">\n<title>Handleiding "
           "KORVANDE</title>\n"
           "<meta http-equiv=\"refresh\" content=\"0; url=" +
           address + "\">\n</head>\n<body>\n<p><a href=\"" + address +
           "\">Naar de handleiding</a></p>\n</body>\n</html>\n";
}

}  // namespace korvande
