#include <clocale>
#include <vector>

#include "app/CommandLine.h"
#include "ui/App.h"

namespace {

// Arguments are UTF-8, in every locale.
korvande::StartUpArguments TakeArguments(int argc, char** argv) {
    std::vector<korvande::Text> arguments;
    for (int i = 1; i < argc; ++i) arguments.push_back(korvande::FromUtf8(argv[i]));
    return {korvande::JoinArguments(arguments), korvande::HasRegistrationSwitch(arguments)};
}

}  // namespace

// The library sees none of the arguments: it would take some for itself, and stumble over others under a locale without
// UTF-8.
int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    wxApp::SetInstance(new korvande::App(TakeArguments(argc, argv)));
    int ownArguments = 1;
    return wxEntry(ownArguments, argv);
}
