// Translates an IDEX file to NEN1878 with the library:
//
//     korvande-example voorbeeld.nst straat.idx straat.sfn
#include "core/LineWriter.h"
#include "project/ControlTable.h"
#include "run/TranslateFiles.h"
#include "translation/Translation.h"

int main(int count, char** words) {
    if (count != 4) return 2;
    korvande::SilentScreen screen;
    korvande::Project project;
    if (!korvande::LoadProjectFile(screen, project, korvande::FromUtf8(words[1]))) return 3;
    korvande::Translation translation(screen, project);
    translation.mode = {korvande::Direction::FromIdex, korvande::Variant::Nen1878};
    translation.IdexFileName = korvande::FromUtf8(words[2]);
    translation.outputTo = korvande::OutputTo::Memory;
    korvande::TranslateFiles(translation);
    if (translation.outcome.Failed()) return 3;
    korvande::LineWriter file;
    file.Open(korvande::FromUtf8(words[3]));
    file.Put(translation.outputBytes);
    file.Close();
    return 0;
}
