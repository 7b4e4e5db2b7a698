// Translates an IDEX file to NEN1878 with the library, and prints the result:
//
//     korvande-example voorbeeld.nst straat.idx > straat.sfn
#include <cstdio>

#include "project/ControlTable.h"
#include "run/TranslateFiles.h"
#include "translation/Translation.h"

int main(int count, char** words) {
    if (count != 3) return 2;
    korvande::SilentScreen screen;
    korvande::Project project;
    if (!korvande::LoadProjectFile(screen, project, korvande::FromUtf8(words[1]))) return 3;
    korvande::Translation translation(screen, project);
    translation.mode = {korvande::Direction::FromIdex, korvande::Variant::Nen1878};
    translation.IdexFileName = korvande::FromUtf8(words[2]);
    translation.outputTo = korvande::OutputTo::Memory;
    korvande::TranslateFiles(translation);
    std::fwrite(translation.outputBytes.data(), 1, translation.outputBytes.size(), stdout);
    return translation.outcome.Failed() ? 3 : 0;
}
