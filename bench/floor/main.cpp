// korvande-floor: what plain C++ needs for the bytes that a translation reads and writes, to compare the program with.
// It holds the whole drawing in plain vectors and knows no code tables, options, log book or exact numbers; what it
// writes is a drawing of the same size, not a translation.

#include <cstdio>
#include <string_view>

#include "bench/floor/Drawing.h"

int main(int argc, char** argv) {
    const std::string_view direction = argc == 4 ? argv[1] : "";
    if (direction == "i2n") {
        korvande::floor::WriteNen(korvande::floor::ReadIdex(argv[2]), argv[3]);
    } else if (direction == "n2i") {
        korvande::floor::WriteIdex(korvande::floor::ReadNen(argv[2]), argv[3]);
    } else {
        std::fputs("usage: korvande-floor i2n IN.idx OUT.sfn\n       korvande-floor n2i IN.sfn OUT.idx\n", stderr);
        return 2;
    }
    return 0;
}
