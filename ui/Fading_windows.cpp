#include "ui/Fading.h"

namespace korvande {

void FadeNothing() {}

}  // namespace korvande
