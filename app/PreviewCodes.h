#pragma once

#include <cstddef>
#include <vector>

#include "picture/DisplayList.h"
#include "picture/ObjectInfo.h"

namespace korvande {

// The codes of a picture as a list shows them: unknown ones first, then points, lines and texts, each by code; and
// which of them are to be seen.
class PreviewCodes {
 public:
    PreviewCodes() = default;
    explicit PreviewCodes(const DisplayList& itsList);

    std::size_t Count() const noexcept { return rows.size(); }
    const PictureCode& CodeAt(std::size_t row) const { return list->codes[rows[row]]; }

    // Of a code of the picture, its row.
    std::size_t RowOf(std::uint32_t code) const noexcept { return rowOfCode[code]; }

    bool IsShown(std::size_t row) const { return !isHidden[rows[row]]; }
    void Show(std::size_t row, bool isShown) { isHidden[rows[row]] = !isShown; }
    void ShowAll(bool isShown);

    // Hides the codes that others hide.
    void HideAlso(const PreviewCodes& others);

    // An entry for each code of the picture.
    const std::vector<bool>& Hidden() const noexcept { return isHidden; }

    // The first object of a row's code behind this one, beginning anew after the last; nothing when it has none.
    std::optional<PictureRef> NextOf(std::size_t row, const std::optional<PictureRef>& after) const;

 private:
    const DisplayList* list = nullptr;
    std::vector<std::uint32_t> rows;
    std::vector<std::size_t> rowOfCode;
    std::vector<bool> isHidden;
};

// The code as a person reads it, also of objects without one; and what its objects are.
Text NameOf(const PictureCode& code);
TextView KindOf(const PictureCode& code) noexcept;

// "40 codes, 12 onbekend" and the like, and whether the drawing lies outside RD.
Text SummaryOf(const DisplayList& list);

// What an object is, in some lines.
Text TextOf(const ObjectInfo& info);

// Where a place of a picture is: "X 121000.500   Y 487000.250".
Text TextOfPlace(const DisplayList& list, Position millimetres);

}  // namespace korvande
