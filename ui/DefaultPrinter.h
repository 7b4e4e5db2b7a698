#pragma once

#include <wx/arrstr.h>
#include <wx/dc.h>

namespace korvande {

// Platform: the user's default printer. A printing system may refuse what is printed without a word to the program that
// prints; what it tells is asked for here.

// Whether there is one that takes jobs. Asked before printing, since a printing system without one may answer late or
// never.
bool DefaultPrinterTakesJobs();

// Its jobs, those that are done too, and whether one has come since they were asked for. Where the printing itself
// tells, or nothing does: none, and always.
wxArrayString JobsOfDefaultPrinter();
bool DefaultPrinterGotJob(const wxArrayString& jobsBefore);

// Ends a document on a printer's device context: false when the printing system does not take what was printed.
bool EndDocument(wxDC& printer);

}  // namespace korvande
