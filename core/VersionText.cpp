#include "core/VersionText.h"

#include "core/Version.h"

namespace korvande {

Text VersionText() { return Concat(versionMajor, u".0", versionMinor, u".0", versionRevision); }

}  // namespace korvande
