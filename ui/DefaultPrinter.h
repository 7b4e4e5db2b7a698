#pragma once

namespace korvande {

// Platform: whether the user has a default printer that takes jobs. Asked before printing, since a printing system
// without one may answer late or never, and one whose queue takes no jobs refuses them without a word to the program.
bool DefaultPrinterTakesJobs();

}  // namespace korvande
