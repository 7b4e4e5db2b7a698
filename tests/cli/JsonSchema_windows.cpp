#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/cli/JsonSchema.h"

namespace korvande::testing {

void ExpectToFitSchema(const std::string& document) { EXPECT_TRUE(nlohmann::json::accept(document)) << document; }

}  // namespace korvande::testing
