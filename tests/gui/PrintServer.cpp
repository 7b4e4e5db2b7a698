#include "tests/gui/PrintServer.h"

#include <filesystem>
#include <iomanip>
#include <sstream>

#include "tests/gui/Waiting.h"

namespace korvande::testing {

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
                 "<DefaultPrinter proef>\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\n</DefaultPrinter>\n");
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
