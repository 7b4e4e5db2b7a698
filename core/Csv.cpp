#include "core/Csv.h"

#include <algorithm>
#include <utility>

#include "core/modStrings.h"

namespace korvande {

namespace {

class CsvReader {
 public:
    CsvReader(TextView itsText, char16_t itsSeparator) : rest(itsText), separator(itsSeparator) {}

    CsvText Read() {
        while (!rest.empty() && result.error.empty()) ReadLine();
        return std::move(result);
    }

 private:
    void ReadLine() {
        CsvLine line{number, {}};
        while (true) {
            line.fields.push_back(rest.starts_with(u'"') ? QuotedField() : PlainField());
            if (!result.error.empty()) return;
            if (!rest.starts_with(separator)) break;
            rest.remove_prefix(1);
        }
        TakeLineBreak();
        const bool isEmpty = line.fields.size() == 1 && Trim(line.fields.front()).empty();
        if (!isEmpty) result.lines.push_back(std::move(line));
    }

    Text PlainField() {
        const char16_t ends[] = {separator, u'\r', u'\n', u'\0'};
        const std::size_t end = std::min(rest.find_first_of(TextView(ends, 3)), rest.size());
        Text field(rest.substr(0, end));
        rest.remove_prefix(end);
        return field;
    }

    Text QuotedField() {
        const int itsLine = number;
        Text field;
        rest.remove_prefix(1);
        while (true) {
            const std::size_t quote = rest.find(u'"');
            if (quote == TextView::npos) {
                result.error = Concat(u"Regel ", itsLine, u": een veld begint met een aanhalingsteken dat niet sluit.");
                return field;
            }
            number += LineBreaksIn(rest.substr(0, quote));
            AppendTo(field, rest.substr(0, quote));
            rest.remove_prefix(quote + 1);
            if (!rest.starts_with(u'"')) break;
            field.push_back(u'"');
            rest.remove_prefix(1);
        }
        const bool isEnd = rest.empty() || rest.front() == separator || rest.front() == u'\r' || rest.front() == u'\n';
        if (!isEnd) {
            result.error = Concat(u"Regel ", number, u": achter een aanhalingsteken dat sluit, staat nog tekst.");
        }
        return field;
    }

    // A lone carriage return ends a line too.
    static int LineBreaksIn(TextView text) {
        int count = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const bool isPair = text[i] == u'\r' && text.substr(i + 1).starts_with(u'\n');
            if (text[i] == u'\n' || (text[i] == u'\r' && !isPair)) ++count;
        }
        return count;
    }

    void TakeLineBreak() {
        if (rest.empty()) return;
        rest.remove_prefix(rest.starts_with(u"\r\n") ? 2 : 1);
        ++number;
    }

    TextView rest;
    char16_t separator;
    int number = 1;
    CsvText result;
};

}  // namespace

CsvText ReadCsv(TextView text, char16_t separator) { return CsvReader(text, separator).Read(); }

Text QuoteField(TextView value) { return Concat(u"\"", ReplaceAll(value, u"\"", u"\"\""), u"\""); }

Text CsvField(TextView value, char16_t separator) {
    const bool isPlain = value.find(separator) == TextView::npos && value.find_first_of(u"\"\r\n") == TextView::npos &&
                         Trim(value) == value;
    return isPlain ? Text(value) : QuoteField(value);
}

}  // namespace korvande
