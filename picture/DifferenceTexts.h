#pragma once

#include <vector>

#include "core/modKORVANDE.h"
#include "picture/ComparedObjects.h"

// What two objects that belong together differ in, in Dutch.
namespace korvande {

struct Translation;

// A drawing being compared.
struct ComparedDrawing {
    Translation& translation;
    const ComparedObjects& objects;
};

// What a pair of objects differs in: "puntnummer 12 > geen; richting 33.3 > 0.0". Empty when they are equal.
Text Changes(const ComparedDrawing& first, const ComparedObject& one, const ComparedDrawing& second,
             const ComparedObject& other, ComparedKind kind);

// "puntnummer 12, 13 > 12", of names or heights at one place: those that the other one does not have, the
// first five of each and how many more.
Text ChangesOfVertex(const std::vector<Text>& first, const std::vector<Text>& second, TextView what);

// What line strings of which both are whole differ in.
Text ChangesOfLine(const Drawing& first, const LineRec& one, const Drawing& second, const LineRec& other);

}  // namespace korvande
