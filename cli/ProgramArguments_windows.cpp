#include <windows.h>

#include <shellapi.h>

#include "cli/ProgramArguments.h"
#include "core/WideText_windows.h"

namespace korvande {

std::vector<std::string> ProgramArguments(int, char**) {
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 0; words != nullptr && i < count; ++i) arguments.push_back(ToUtf8(FromWide(words[i])));
    ::LocalFree(words);
    return arguments;
}

}  // namespace korvande
