#pragma once

#include <wx/timer.h>

#include <filesystem>
#include <functional>

#include "tests/gui/WindowTest.h"

namespace korvande::testing {

// Looks at the window every few milliseconds as long as this object lives.
class Looking : public wxTimer {
 public:
    explicit Looking(std::function<void()> itsLook) : look(std::move(itsLook)) { Start(5); }
    void Notify() override { look(); }

 private:
    std::function<void()> look;
};

// The window with the sample project, the sample drawing in a folder, and the log book kept on disk.
class TranslationFixture : public WindowTest {
 protected:
    TranslationFixture() {
        const std::string samples = KORVANDE_SOURCE_DIR "/samples/";
        std::filesystem::copy(samples + "voorbeeld.nst", projects + "/voorbeeld.nst");
        std::filesystem::copy(samples + "straat.idx", folder.Path() + "/straat.idx");
    }

    void Open() {
        Start();
        Type("txtFileIDEX", ToUtf8(folder / "straat.idx"));
        Type("txtFileSUFNEN", ToUtf8(folder / "straat.sfn"));
        SelectReport(form.project.options, &Options::optReportDisk);
        window->ShowForm();
    }

    // Lets something happen while the translation runs: at its first look at the waiting events.
    void DuringTheRun(const std::function<void()>& action) { window->CallAfter(action); }

    // A drawing of many points, which takes a while.
    Text LargeDrawing(int points) const {
        std::string text =
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n";
        for (int i = 1; i <= points; ++i) {
            const std::string number = std::to_string(i);
            text.append(number).append(",\"P").append(number).append("\",121000.5,487000.25,1.5,\"MV\",\"\",0;\n");
        }
        return folder.Write("groot.idx", WithCrLf(text + "END POINTS\nEND DATABASE\n"));
    }

    // The log book, in UTF-8 and with line feeds.
    std::string LogBookText(const std::string& name = "straat.LOG") const {
        std::string text = Windows1252ToUtf8(FileBytes(folder / name));
        std::erase(text, '\r');
        return text;
    }
    // The closing message of the sample drawing, of which a few texts do not come across as they are.
    std::string SampleIsTranslated() const {
        return ToUtf8(folder / "straat.idx") + " is vertaald, met gegevens die niet of anders zijn overgekomen.";
    }
    std::string KeptMessage(const std::string& name = "straat.LOG") const {
        return "LOGBOEK is opgeslagen in:\n\n" + ToUtf8(folder / name);
    }
};

}  // namespace korvande::testing
