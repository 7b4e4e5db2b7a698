#pragma once

#include <string>

namespace korvande::testing {

// A document that a command printed must be what the schema in docs/schema says; where there is no program that can
// tell, it must be JSON.
void ExpectToFitSchema(const std::string& document);

}  // namespace korvande::testing
