#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "app/GridEditing.h"
#include "app/Projects.h"
#include "app/RunActivity.h"
#include "app/RunTranslation.h"
#include "app/StartUp.h"
#include "app/frmKORVANDE.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"
#include "tests/support/TestRegistry.h"

namespace korvande::testing {

// What the program finds when it starts: a registry and a project folder of the test's own, and a fixed moment.
class AppFiles : public ::testing::Test {
 protected:
    AppFiles() { std::filesystem::create_directory(projects); }

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

    // The names in the project folder, separated by blanks.
    std::string ProjectNames() const {
        std::string names;
        for (const Text& name : ListFiles(FromUtf8(projects), u"*")) names += (names.empty() ? "" : " ") + ToUtf8(name);
        return names;
    }
    // The names in the tests' folder; off Windows the settings are a file there too.
    std::string ListingWithoutSettings() const {
        std::string names = folder.Listing();
        const std::string settings = " registry.reg";
        if (const std::size_t place = names.find(settings); place != std::string::npos) {
            names.erase(place, settings.size());
        }
        return names;
    }
    std::string ProjectBytes(const std::string& name) const { return FileBytes(folder / ("projecten/" + name)); }

    // A drawing of one point with the code BOOM, and a NEN1878 file of one.
    static std::string Drawing() {
        return WithCrLf(
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n"
            "1,\"P1\",121000.5,487000.25,1.5,\"BOOM\",\"\",0;\nEND POINTS\nEND DATABASE\n");
    }
    static std::string Nen1878() {
        const auto line = [](std::string text, const char* endCode) {
            text.resize(62, ' ');
            return text + endCode + "\r\n";
        };
        return line("010NEN1878    V202611202611       0101S05", "01") +
               "020102150201         0         0         1         0         101\r\n" +
               line("03MBOOM     G010111   ", "00") + line("04I1        X121000500Y487000250", "01") + line("99", "  ");
    }

    TestFolder folder;
    TestRegistry registry{folder};
    EnvironmentValue moment{"SOURCE_DATE_EPOCH", "1795230000"};  // 21-11-2026 03:00:00 UTC
    const std::string projects = folder.Path() + "/projecten";
    const std::string separator{static_cast<char>(std::filesystem::path::preferred_separator)};
};

// A program that is about to start, without a window.
class AppTest : public AppFiles {
 protected:
    AppTest() { form.ProjectFolder = FromUtf8(projects + "/"); }

    std::string LoadedTown() const { return ToUtf8(form.project.options.txtCity); }

    RecordingScreen screen;
    FormKORVANDE form{screen};
    Options& options = form.project.options;
};

// A program that translates.
class AppRunTest : public AppTest {
 protected:
    AppRunTest() { options.chkExportUnknowns = true; }

    // Chooses the files and the mode in the form.
    void Choose(int mode, const Text& idex, const Text& sufNen) {
        form.cboXlateMode.index = mode;
        options.txtFileIDEX = idex;
        options.txtFileSUFNEN = sufNen;
    }
};

}  // namespace korvande::testing
