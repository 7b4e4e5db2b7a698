#include "core/FolderNames.h"

// The system looks for names without regard to case itself.
namespace korvande {

OwnChange::OwnChange(std::string_view) {}

OwnChange::~OwnChange() = default;

}  // namespace korvande
