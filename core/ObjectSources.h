#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/FixedBytes.h"
#include "core/KeptTexts.h"

namespace korvande {

// What a file says of where an object comes from: Windows-1252 bytes as they stand there, each never filled where it
// says nothing.
struct ObjectSource {
    FixedBytes<8> date;    // of the fieldwork: yyyymmdd
    FixedBytes<5> name;    // of who made it
    FixedBytes<1> kind;    // how it was measured: a digit, the place in the list of source kinds
    FixedBytes<1> status;  // 1: it is there, anything else: it was or is to be changed

    friend bool operator==(const ObjectSource&, const ObjectSource&) = default;
};

// The sources of the objects of a file, by the lines of the input. Most objects have that of the one before, so that
// this takes little, whatever the number of objects.
class ObjectSources {
 public:
    using Number = std::uint32_t;

    // The number of a source, which is kept when it is new.
    Number NumberOf(const ObjectSource& source) { return sources.NumberOf(source); }

    // From this line on, which does not lie before those of earlier calls, everything is of this source.
    void Begin(std::int64_t line, Number source) {
        if (source != last) Append(line, source);
    }

    // The number of the source of what stands on a line; 0: nothing is known of it.
    Number At(std::int32_t line) const noexcept;

    const ObjectSource& operator[](Number number) const noexcept { return sources[number]; }

    // How many there are, number 0 included.
    std::size_t Count() const noexcept { return sources.Count(); }

    void Reset();

 private:
    struct Stretch {
        std::int32_t firstLine = 0;
        Number source = 0;
    };
    void Append(std::int64_t line, Number source);

    KeptTexts<ObjectSource> sources;
    std::vector<Stretch> stretches;
    Number last = 0;  // of the stretch that goes on
};

}  // namespace korvande
