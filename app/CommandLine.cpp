#include "app/CommandLine.h"

#include <algorithm>

namespace korvande {

namespace {

constexpr TextView registrationSwitch = u"/LISCAD";

constexpr TextView blanks = u" \t";

Text Comparable(TextView path) {
    Text text = ToCapitals(path);
    std::replace(text.begin(), text.end(), u'/', u'\\');
    return text;
}

Text WithoutQuotes(TextView text) {
    Text result(text);
    std::erase(result, u'"');
    return result;
}

}  // namespace

Text BehindProgramName(TextView commandLine, TextView program) {
    commandLine = Trim(commandLine);
    if (commandLine.starts_with(u'"')) {
        const std::size_t end = commandLine.find(u'"', 1);
        return end == TextView::npos ? Text() : Text(Trim(commandLine.substr(end + 1)));
    }
    std::size_t end = commandLine.find_first_of(blanks);
    for (const Text& path : {Concat(program, u".exe"), Text(program)}) {
        const bool isIt = !program.empty() && Comparable(commandLine.substr(0, path.size())) == Comparable(path);
        const TextView behind = commandLine.substr(isIt ? path.size() : 0);
        if (!isIt || (!behind.empty() && blanks.find(behind.front()) == TextView::npos)) continue;
        end = path.size();
        break;
    }
    return end >= commandLine.size() ? Text() : Text(Trim(commandLine.substr(end + 1)));
}

Text OnlyArgument(TextView commandLine) {
    commandLine = Trim(commandLine);
    const bool isQuoted = commandLine.size() > 1 && commandLine.starts_with(u'"') && commandLine.ends_with(u'"');
    if (isQuoted) commandLine = commandLine.substr(1, commandLine.size() - 2);
    const bool isOne = commandLine.find_first_of(isQuoted ? TextView(u"\"") : blanks) == TextView::npos;
    return isOne ? Text(commandLine) : Text();
}

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
