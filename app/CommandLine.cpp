#include "app/CommandLine.h"

#include <algorithm>

namespace korvande {

namespace {

constexpr TextView registrationSwitch = u"/LISCAD";

Text WithoutQuotes(TextView text) {
    Text result(text);
    std::erase(result, u'"');
    return result;
}

}  // namespace

CommandLineConversion SplitCommandLine(TextView commandLine) {
    const Text capitals = ToCapitals(Trim(commandLine));
    CommandLineConversion conversion;
    if (capitals.empty()) return conversion;
    const char16_t first = capitals.front();
    if (first >= u'0' && first <= u'9') conversion.direction = static_cast<std::int16_t>(first - u'0');
    const TextView rest = Trim(TextView(capitals).substr(1));
    const bool isQuoted = rest.starts_with(u'"');
    const std::size_t end = rest.find(isQuoted ? u'"' : u' ', 1);
    const TextView name = rest.substr(0, end);
    conversion.sufNenFile = isQuoted ? WithoutQuotes(name) : Text(name);
    if (end != TextView::npos) conversion.idexFile = WithoutQuotes(Trim(rest.substr(end + 1)));
    return conversion;
}

Text JoinArguments(const std::vector<Text>& arguments) {
    Text line;
    for (const Text& argument : arguments) {
        if (!line.empty()) line.push_back(u' ');
        const bool needsQuotes = argument.find(u' ') != Text::npos && argument.find(u'"') == Text::npos;
        AppendTo(line, needsQuotes ? Concat(u"\"", argument, u"\"") : argument);
    }
    return line;
}

bool HasRegistrationSwitch(TextView commandLine) {
    return ToCapitals(commandLine).find(registrationSwitch) != Text::npos;
}

bool HasRegistrationSwitch(const std::vector<Text>& arguments) {
    return std::any_of(arguments.begin(), arguments.end(),
                       [](const Text& argument) { return ToCapitals(Trim(argument)) == registrationSwitch; });
}

}  // namespace korvande
