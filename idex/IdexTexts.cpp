#include "idex/IdexTexts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "idex/IdexFile.h"
#include "idex/IdexTable.h"
#include "idex/PassedOver.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// A text box, where its items are placed.
struct TextBox {
    bool isDeclared = false;
    std::int32_t anchorPointNo = 0;
    std::int16_t anchorPosition = 0;
    float direction = 0;       // grads
    KeptNumber layerCode = 0;  // the layer's name as a code
};
using TextBoxes = std::vector<TextBox>;

constexpr std::size_t textWidth = TextRec::longest;
constexpr std::size_t codeWidth = 7;

float SingleFloat(double value) {
    if (std::fabs(value) > std::numeric_limits<float>::max()) throw RuntimeError(errors::overflow);
    return static_cast<float>(value);
}

// Reads on to the line that starts with the keyword, which the text table must have.
std::string SkipToTable(IdexFile& file, std::string_view keyword) {
    PassedOver passedOver(file);
    std::string_view line;
    while (file.TryNext(line)) {
        if (StartsWith(line, keyword)) {
            passedOver.Close();
            return std::string(line);
        }
        passedOver.Add(line);
    }
    passedOver.Close();
    throw RuntimeError(errors::inputPastEnd);
}

// The number of each layer's name among the codes of texts; 0 for one that no box was on yet.
class LayerCodes {
 public:
    explicit LayerCodes(Drawing& itsDrawing) : drawing(itsDrawing), numbers(drawing.LayerNames.size(), 0) {}

    KeptNumber operator[](std::size_t layer) {
        KeptNumber& number = numbers[layer];
        if (number == 0) number = drawing.TextCodes.NumberOf(MakeFixedBytes<codeWidth>(drawing.LayerNames[layer]));
        return number;
    }

 private:
    Drawing& drawing;
    std::vector<KeptNumber> numbers;
};

TextBoxes ReadBoxes(IdexFile& file, Drawing& drawing) {
    enum { anchorPointNo, anchorPosition, hzDirection, layerNo };
    IdexTable table(file, "BOX_ON_POINT", {{"ANCHORPOINTNO"}, {"ANCHORPOSITION"}, {"HZDIRECTION"}, {"LAYERNO"}});
    const std::string header = SkipToTable(file, "BOX_ON_POINT");
    table.ReadHeader(header);
    const std::vector<Text>& layerNames = drawing.LayerNames;
    LayerCodes layerCodes(drawing);
    TextBoxes boxes;
    std::string_view row;
    while (file.NextRow(row)) {
        table.Split(row);
        // The separator may be one that a number goes on behind.
        const std::int32_t number = LeadingWholeNumber(row);
        table.NumberOf(table.FirstField(), ProblemKind::NumberNoNumber);
        RequireArrayIndex(number, ++file.boxRows);
        TextBox box;
        box.isDeclared = true;
        box.anchorPointNo = table.Whole(anchorPointNo);
        box.anchorPosition = WholeNumber16(table.Number(anchorPosition));
        box.direction = SingleFloat(table.Number(hzDirection));
        const std::int32_t layer = table.Whole(layerNo);
        if (layer < 0 || static_cast<std::size_t>(layer) >= layerNames.size()) {
            throw RuntimeError(errors::subscriptOutOfRange);
        }
        const auto layerIndex = static_cast<std::size_t>(layer);
        box.layerCode = layerCodes[layerIndex];
        if (TrimRight(TextView(layerNames[layerIndex])).size() > codeWidth) table.Tell(ProblemKind::CodeCut);
        if (static_cast<std::size_t>(number) >= boxes.size()) boxes.resize(static_cast<std::size_t>(number) + 1);
        boxes[static_cast<std::size_t>(number)] = box;
    }
    return boxes;
}

std::size_t LengthOf(std::string_view item) noexcept {
    const std::size_t last = item.find_last_not_of(' ');
    return last == std::string_view::npos ? 0 : last + 1;
}

// The items of texts, whose characters may go on over several.
class ItemsReader {
 public:
    ItemsReader(Translation& itsTranslation, IdexFile& idexFile, const TextBoxes& itsBoxes)
        : translation(itsTranslation), file(idexFile), boxes(itsBoxes) {}

    void Read() {
        enum { textBoxNo, lineNo, textItem };
        IdexTable table(file, "ITEMS", {{"TEXTBOXNO"}, {"LINENO"}, {"TEXTITEM"}});
        const std::string header = SkipToTable(file, "ITEMS");
        table.ReadHeader(header);
        std::string_view row;
        while (file.NextRow(row)) {
            table.Split(row);
            const std::string_view item = table.Unquoted(textItem);
            if (table.Number(lineNo) == 1) {
                AppendText(table.Whole(textBoxNo), item);
            } else {
                ContinueText(item);
            }
        }
    }

 private:
    void AppendText(std::int32_t boxNo, std::string_view item);
    void ContinueText(std::string_view item);
    void TellCut();

    Translation& translation;
    IdexFile& file;
    const TextBoxes& boxes;
    std::int32_t lastCut = 0;  // the text that was told as cut
};

void ItemsReader::TellCut() {
    const std::int32_t last = translation.drawing.Texts.UpperBound();
    if (lastCut != last) file.Tell(ProblemKind::TextCut, std::to_string(textWidth), file.rowLine);
    lastCut = last;
}

void ItemsReader::AppendText(std::int32_t boxNo, std::string_view item) {
    const bool isDeclared = boxNo >= 0 && static_cast<std::size_t>(boxNo) < boxes.size() &&
                            boxes[static_cast<std::size_t>(boxNo)].isDeclared;
    if (!isDeclared) throw RuntimeError(errors::subscriptOutOfRange);
    const TextBox& box = boxes[static_cast<std::size_t>(boxNo)];
    TextRec& text = translation.drawing.Texts.Append();
    text.InputLine = static_cast<std::int32_t>(file.rowLine);
    text.AnchorPointNo = box.anchorPointNo;
    text.AnchorPosition = box.anchorPosition;
    text.HzDirection = box.direction;
    Drawing::SetCodeNumber(text, box.layerCode);
    if (item.size() > textWidth && LengthOf(item) > textWidth) TellCut();
    text.SetCharacters(item);
}

// A further line of a text joins the text before it.
void ItemsReader::ContinueText(std::string_view item) {
    auto& texts = translation.drawing.Texts;
    if (texts.UpperBound() == 0) {
        return Report(translation, {.kind = ProblemKind::ContinuationWithoutText});
    }
    TextRec& text = texts[texts.UpperBound()];
    FixedBytes<textWidth> next{};
    next.Assign(item);
    std::array<char, textWidth + 1 + textWidth> joined{};
    const std::string_view before = text.CharacterBytes().Trimmed();
    const std::size_t length = LengthOf(item);
    if (length > 0 && before.size() + 1 + length > textWidth) TellCut();
    auto end = std::copy(before.begin(), before.end(), joined.begin());
    *end++ = ' ';
    end = std::copy(next.bytes.begin(), next.bytes.end(), end);
    text.SetCharacters(std::string_view(joined.begin(), end));
}

}  // namespace

void ReadTexts(Translation& translation, IdexFile& file) {
    translation.screen.ShowStatus(u"Inlezen Teksten");
    const TextBoxes boxes = ReadBoxes(file, translation.drawing);
    ItemsReader(translation, file, boxes).Read();
}

}  // namespace korvande
