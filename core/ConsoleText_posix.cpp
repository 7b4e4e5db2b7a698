#include "core/ConsoleText.h"

namespace korvande {

void PutText(std::FILE* stream, std::string_view utf8) { std::fwrite(utf8.data(), 1, utf8.size(), stream); }

}  // namespace korvande
