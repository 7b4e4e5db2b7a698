#include "idex/IdexTexts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <type_traits>
#include <vector>

#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "idex/IdexFile.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// A text box, where its items are placed.
struct TextBox {
    bool isDeclared = false;
    std::int32_t anchorPointNo = 0;
    std::int16_t anchorPosition = 0;
    float direction = 0;  // grads
    FixedText<7> layer{};
};
using TextBoxes = std::vector<TextBox>;

float SingleFloat(std::string_view field) {
    const double value = LeadingNumber(field);
    if (std::fabs(value) > std::numeric_limits<float>::max()) throw RuntimeError(errors::overflow);
    return static_cast<float>(value);
}

// Reads on to the line that starts with the keyword, which the text table must have.
std::string SkipToTable(IdexFile& file, std::string_view keyword) {
    std::string line;
    if (!file.SkipToStart(keyword, line)) throw RuntimeError(errors::inputPastEnd);
    return line;
}

TextBoxes ReadBoxes(IdexFile& file, const std::vector<Text>& layerNames) {
    enum { anchorPointNo, anchorPosition, hzDirection, layerNo };
    IdexTable table(file, {"ANCHORPOINTNO", "ANCHORPOSITION", "HZDIRECTION", "LAYERNO"});
    table.ReadHeader(SkipToTable(file, "BOX_ON_POINT"));
    TextBoxes boxes;
    std::string_view row;
    while (file.NextRow(row)) {
        table.Split(row);
        const std::int32_t number = LeadingWholeNumber(row);
        RequireArrayIndex(number, ++file.boxRows);
        TextBox box;
        box.isDeclared = true;
        box.anchorPointNo = LeadingWholeNumber(table.Field(anchorPointNo));
        box.anchorPosition = WholeNumber16(LeadingNumber(table.Field(anchorPosition)));
        box.direction = SingleFloat(table.Field(hzDirection));
        const std::int32_t layer = LeadingWholeNumber(table.Field(layerNo));
        if (layer < 0 || static_cast<std::size_t>(layer) >= layerNames.size()) {
            throw RuntimeError(errors::subscriptOutOfRange);
        }
        box.layer = layerNames[static_cast<std::size_t>(layer)];
        if (static_cast<std::size_t>(number) >= boxes.size()) boxes.resize(static_cast<std::size_t>(number) + 1);
        boxes[static_cast<std::size_t>(number)] = box;
    }
    return boxes;
}

void AppendText(Drawing& drawing, const TextBoxes& boxes, std::int32_t boxNo, std::string_view item) {
    const bool isDeclared = boxNo >= 0 && static_cast<std::size_t>(boxNo) < boxes.size() &&
                            boxes[static_cast<std::size_t>(boxNo)].isDeclared;
    if (!isDeclared) throw RuntimeError(errors::subscriptOutOfRange);
    const TextBox& box = boxes[static_cast<std::size_t>(boxNo)];
    TextRec& text = drawing.Texts.Append();
    text.AnchorPointNo = box.anchorPointNo;
    text.AnchorPosition = box.anchorPosition;
    text.HzDirection = box.direction;
    drawing.SetCode(text, box.layer.View());
    text.SetCharacters(item);
}

// A further line of a text joins the text before it.
void ContinueText(Translation& translation, std::string_view item) {
    auto& texts = translation.drawing.Texts;
    if (texts.UpperBound() == 0) {
        return Report(translation, {.kind = ProblemKind::ContinuationWithoutText});
    }
    TextRec& text = texts[texts.UpperBound()];
    const auto& characters = text.Characters();
    constexpr std::size_t width = std::remove_cvref_t<decltype(characters)>::width;
    FixedText<width> next{};
    next.Assign(item);
    std::array<char16_t, width + 1 + width> joined{};
    const TextView before = characters.Trimmed();
    auto end = std::copy(before.begin(), before.end(), joined.begin());
    *end++ = u' ';
    end = std::copy(next.characters.begin(), next.characters.end(), end);
    text.SetCharacters(TextView(joined.begin(), end));
}

void ReadItems(Translation& translation, IdexFile& file, const TextBoxes& boxes) {
    enum { textBoxNo, lineNo, textItem };
    IdexTable table(file, {"TEXTBOXNO", "LINENO", "TEXTITEM"});
    table.ReadHeader(SkipToTable(file, "ITEMS"));
    std::string_view row;
    while (file.NextRow(row)) {
        table.Split(row);
        const std::string_view item = table.Unquoted(textItem);
        if (LeadingNumber(table.Field(lineNo)) == 1) {
            AppendText(translation.drawing, boxes, LeadingWholeNumber(table.Field(textBoxNo)), item);
        } else {
            ContinueText(translation, item);
        }
    }
}

}  // namespace

void ReadTexts(Translation& translation, IdexFile& file) {
    translation.screen.ShowStatus(u"Inlezen Teksten");
    ReadItems(translation, file, ReadBoxes(file, translation.drawing.LayerNames));
}

}  // namespace korvande
