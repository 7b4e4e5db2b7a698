#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// What a fuzzer, or a plain test over the inputs it kept, does with bytes that nobody wrote on purpose. Every target
// makes what it works on, so the same bytes always do the same.
namespace korvande::fuzz {

// Something that must hold for every input did not.
class Finding : public std::logic_error {
    using std::logic_error::logic_error;
};

inline void Require(bool holds, const std::string& what) {
    if (!holds) throw Finding(what);
}

// In these the input's first byte chooses options and the rest is a file.
void TryIdex(std::string_view input);      // an IDEX file is read
void TryExchange(std::string_view input);  // a NEN1878 or SUF2 file is read
void TryRun(std::string_view input);  // a control table up to its "[End]", then a drawing, in one of the four modes
void TryComparison(std::string_view input);  // the same, and the reference translator makes the same of it

void TryControlTable(std::string_view input);  // a control table is loaded and saved
void TryCommandLine(std::string_view input);   // arguments, separated by line feeds, in UTF-8

void TryRoundTrip(std::string_view input);  // a byte of options and a drawing, which goes to the other format and back
void TryLibrary(std::string_view input);    // calls of the C interface, a byte each, up to a line feed; then a drawing
void TryGrid(std::string_view input);       // keys and words for the grids of a control table

struct Target {
    std::string_view name;
    void (*attempt)(std::string_view input);

    // What knows how its inputs are built; nothing when their bytes are changed as they come.
    std::string (*mutate)(std::string_view input, unsigned seed, std::size_t limit) = nullptr;

    std::string_view inputs = name;  // whose inputs were kept for it
};
const std::vector<Target>& Targets();

}  // namespace korvande::fuzz
