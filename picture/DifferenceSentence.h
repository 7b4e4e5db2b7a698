#pragma once

#include "picture/Comparison.h"

// What a difference is, in Dutch.
namespace korvande {

// "Lijnsegmenten", "lijnsegment".
TextView HeadingOf(ComparedKind kind) noexcept;
TextView NameOf(ComparedKind kind) noexcept;

// "gewijzigd", "ontbreekt" or "toegevoegd".
TextView NameOf(DifferenceKind kind) noexcept;

// "121000.500 487000.250".
Text TextOfMetres(Position place);

// "punt 'BOOM' op 121000.500 487000.250 (regel 12 en 7): hoogte 1.140 > geen [reason]".
Text SentenceOf(const Difference& difference);

}  // namespace korvande
