#include <wx/msw/wrapwin.h>
// Behind the header above.
#include <winspool.h>

#include <cstddef>
#include <string>
#include <vector>

#include "ui/DefaultPrinter.h"

namespace korvande {

namespace {

// Empty without one.
std::wstring NameOfDefaultPrinter() {
    DWORD length = 0;
    ::GetDefaultPrinterW(nullptr, &length);
    // The length of its name, with the null behind it.
    std::wstring name(length, L'\0');
    if (length == 0 || ::GetDefaultPrinterW(name.data(), &length) == 0 || length == 0) return {};
    name.resize(length - 1);
    return name;
}

class Printer {
 public:
    explicit Printer(std::wstring name) { isOpen = ::OpenPrinterW(name.data(), &handle, nullptr) != 0; }
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;
    ~Printer() {
        if (isOpen) ::ClosePrinter(handle);
    }

    // The bytes of a PRINTER_INFO_2W, with the texts that it points to; none when it does not tell.
    std::vector<std::byte> Information() const {
        constexpr DWORD level = 2;
        DWORD size = 0;
        if (!isOpen) return {};
        ::GetPrinterW(handle, level, nullptr, 0, &size);
        std::vector<std::byte> bytes(size);
        const bool isTold = ::GetPrinterW(handle, level, reinterpret_cast<BYTE*>(bytes.data()), size, &size) != 0;
        if (!isTold || bytes.size() < sizeof(PRINTER_INFO_2W)) return {};
        return bytes;
    }

 private:
    HANDLE handle = nullptr;
    bool isOpen = false;
};

}  // namespace

// A queue that stands still keeps its jobs; one without a port or a way to its printer, or that is being removed, loses
// them. Of a printer that tells nothing, the printing itself tells.
bool DefaultPrinterTakesJobs() {
    constexpr DWORD losesJobs = PRINTER_STATUS_PENDING_DELETION | PRINTER_STATUS_NOT_AVAILABLE |
                                PRINTER_STATUS_OFFLINE | PRINTER_STATUS_SERVER_UNKNOWN;
    const std::wstring name = NameOfDefaultPrinter();
    if (name.empty()) return false;
    const std::vector<std::byte> bytes = Printer(name).Information();
    if (bytes.empty()) return true;
    const auto& information = *reinterpret_cast<const PRINTER_INFO_2W*>(bytes.data());
    const bool hasPort = information.pPortName != nullptr && *information.pPortName != L'\0';
    const bool isOffline = (information.Attributes & PRINTER_ATTRIBUTE_WORK_OFFLINE) != 0;
    return hasPort && !isOffline && (information.Status & losesJobs) == 0;
}

wxArrayString JobsOfDefaultPrinter() { return {}; }

bool DefaultPrinterGotJob(const wxArrayString& /*jobsBefore*/) { return true; }

// The library would not tell.
bool EndDocument(wxDC& printer) { return ::EndDoc(static_cast<HDC>(printer.GetHandle())) > 0; }

}  // namespace korvande
