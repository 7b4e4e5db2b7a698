#include "ui/WxText.h"

#include <wx/strconv.h>

namespace korvande {

namespace {

const wxMBConv& Utf8() {
    static const wxMBConvUTF8 conversion(wxMBConvUTF8::MAP_INVALID_UTF8_TO_PUA);
    return conversion;
}

}  // namespace

wxString ToWx(TextView text) {
    const std::string utf8 = ToUtf8(text);
    return {utf8.data(), Utf8(), utf8.size()};
}

Text FromWx(const wxString& text) {
    const auto utf8 = text.mb_str(Utf8());
    return FromUtf8({utf8.data(), utf8.length()});
}

}  // namespace korvande
