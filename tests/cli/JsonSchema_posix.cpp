#include <gtest/gtest.h>

#include "tests/cli/JsonSchema.h"
#include "tests/support/RunProgram.h"

namespace korvande::testing {

void ExpectToFitSchema(const std::string& document) {
    const std::string source = KORVANDE_SOURCE_DIR;
    // The system's own interpreter, which its modules belong to.
    const ProgramResult result = RunProgram(
        {.program = "/usr/bin/python3",
         .arguments = {source + "/tests/cli/validate_json.py", source + "/docs/schema/resultaat-1.schema.json"},
         .input = document});
    EXPECT_EQ(result.status, 0) << result.output << result.error << document;
}

}  // namespace korvande::testing
