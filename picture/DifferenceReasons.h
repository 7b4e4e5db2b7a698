#pragma once

#include "picture/DifferenceTexts.h"

// Why two drawings may differ in an object, in Dutch, as far as the drawings and their code tables tell: what a
// translation from the first to the second does with it. Empty when they tell nothing.
namespace korvande {

Text WhyMissing(const ComparedDrawing& first, const ComparedObject& object, ComparedKind kind);
Text WhyChanged(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
                const ComparedObject& other, ComparedKind kind);
Text WhyAdded(const ComparedDrawing& second, const ComparedObject& object, ComparedKind kind);

}  // namespace korvande
