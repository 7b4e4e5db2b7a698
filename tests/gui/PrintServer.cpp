#include "tests/gui/PrintServer.h"

#include <filesystem>
#include <iomanip>
#include <sstream>

#include "tests/gui/Waiting.h"

namespace korvande::testing {

namespace {

// A printer that takes documents of one kind, which nothing makes.
constexpr char foreignPrinter[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "VREEMD.PPD"
*Manufacturer: "Proef"
*Product: "(Proef)"
*ModelName: "Proef"
*ShortNickName: "Proef"
*NickName: "Proef"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*cupsFilter: "application/x-proef 0 -"
*OpenUI *PageSize/Media Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 36 577 806"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*DefaultFont: Courier
*Font Courier: Standard "(002.004S)" Standard ROM
)ppd";

}  // namespace

// Documents are kept in the spool folder as they came.
PrintServer::PrintServer() {
    const std::string& path = folder.Path();
    for (const char* const name : {"configuration", "spool", "cache", "state", "temporary"}) {
        std::filesystem::create_directory(path + "/" + name);
    }
    const Text settings =
        folder.Write("cupsd.conf", "Listen " + path +
                                       "/socket\nBrowsing No\nWebInterface No\nDefaultAuthType None\n"
                                       "PreserveJobFiles Yes\n"
                                       "<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
                                       "<Policy default>\n  <Limit All>\n    Order allow,deny\n    Allow all\n"
                                       "  </Limit>\n</Policy>\n");
    const Text places = folder.Write(
        "cups-files.conf", "ServerRoot " + path + "/configuration\nRequestRoot " + path + "/spool\nCacheDir " + path +
                               "/cache\nStateDir " + path + "/state\nTempDir " + path + "/temporary\nAccessLog " +
                               path + "/access_log\nErrorLog " + path + "/error_log\nPageLog " + path +
                               "/page_log\nFileDevice Yes\n");
    folder.Write("configuration/printers.conf",
                 "<DefaultPrinter proef>\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\n</DefaultPrinter>\n"
                 "<Printer vreemd>\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\n</Printer>\n");
    std::filesystem::create_directory(path + "/configuration/ppd");
    folder.Write("configuration/ppd/vreemd.ppd", foreignPrinter);
    server.emplace(Start{.program = "/usr/sbin/cupsd",
                         .arguments = {"-f", "-c", ToUtf8(settings), "-s", ToUtf8(places)},
                         .timeLimit = std::chrono::seconds(300)});
    WaitUntil("the printing system", [this] { return FileIsThere(folder / "socket"); });
}

std::string PrintServer::TakeDocument() {
    std::ostringstream name;
    name << "spool/d" << std::setw(5) << std::setfill('0') << ++documents << "-001";
    WaitUntil("the printed document", [&] { return FileIsThere(folder / name.str()); });
    return folder.Path() + "/" + name.str();
}

}  // namespace korvande::testing
