#pragma once

#include <filesystem>

#include "app/GridEditing.h"
#include "app/Projects.h"
#include "app/StartUp.h"
#include "host/LiscadRegistry.h"
#include "run/RunTranslation.h"
#include "tests/run/RunTest.h"
#include "tests/support/TestRegistry.h"

namespace korvande::testing {

// A program that is about to start, on a registry and a project folder of its own.
class AppTest : public RunTest {
 protected:
    AppTest() {
        std::filesystem::create_directory(projects);
        CurrentProject().clear();
        ProjectFolder() = FromUtf8(projects + "/");
        StartedByCommandLine() = false;
        TheLiscad() = {};
        LiscadVersions().clear();
        InitialiseEditing();
    }

    // LISCAD 5.1 in Dutch, with the project folder as its user's folder.
    void InstallLiscad() const {
        const Text version = u"SOFTWARE\\LISTECH\\LISCAD\\5.1";
        TestRegistry::Set(version, u"Language", u"NL");
        TestRegistry::Set(Concat(version, u"\\SEE"), u"UserPath", FromUtf8(projects));
        TestRegistry::Set(Concat(version, u"\\SEE"), u"DataPath", u"C:\\LISCAD\\Data");
    }

    // A control table whose owner's town tells which one it is.
    void WriteProject(const std::string& name, const std::string& town = {}, const std::string& more = {}) const {
        folder.Write("projecten/" + name, WithCrLf("[NEN1878]\nTown = " + town + "\n" + more + "[End]\n"));
    }
    static std::string LoadedTown() { return ToUtf8(frmKORVANDE().txtCity); }

    // The names in the project folder, separated by blanks.
    std::string ProjectNames() const {
        std::string names;
        for (const Text& name : ListFiles(FromUtf8(projects), u"*")) names += (names.empty() ? "" : " ") + ToUtf8(name);
        return names;
    }
    std::string ProjectBytes(const std::string& name) const { return FileBytes(folder / ("projecten/" + name)); }

    const std::string projects = folder.Path() + "/projecten";
};

}  // namespace korvande::testing
