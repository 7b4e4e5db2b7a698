#include "tests/windows/Life.h"

#include <windows.h>
// Behind the header above.
#include <psapi.h>
#include <winternl.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

// What stands in the table of GDI objects that a process has; one that is free has no type.
struct GdiObject {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint8_t type;
    std::uint8_t flags;
    std::uint64_t user;
};
constexpr std::size_t gdiObjects = 0x4000;
constexpr std::size_t placeOfTheTable = 0xF8;  // in what the system keeps of a process of 64 bits

template <class Value>
bool Read(HANDLE process, std::uint64_t address, Value* values, std::size_t count = 1) {
    SIZE_T read = 0;
    return ::ReadProcessMemory(process, reinterpret_cast<const void*>(address), values, count * sizeof(Value), &read) !=
               0 &&
           read == count * sizeof(Value);
}

// GetGuiResources would tell, but not under Wine.
std::optional<int> GdiObjectsOf(HANDLE process) {
    PROCESS_BASIC_INFORMATION information{};
    if (::NtQueryInformationProcess(process, ProcessBasicInformation, &information, sizeof information, nullptr) != 0)
        return {};
    std::uint64_t table = 0;
    const auto place = reinterpret_cast<std::uint64_t>(information.PebBaseAddress) + placeOfTheTable;
    if (!Read(process, place, &table) || table == 0) return {};
    std::vector<GdiObject> objects(gdiObjects);
    if (!Read(process, table, objects.data(), objects.size())) return {};
    int count = 0;
    for (const GdiObject& object : objects) count += object.type != 0 ? 1 : 0;
    return count;
}

// A count that does not see what this program makes itself sees no other's either.
bool CountsWhatIsMade() {
    constexpr int made = 25;
    const std::optional<int> before = GdiObjectsOf(::GetCurrentProcess());
    HPEN pens[made] = {};
    for (HPEN& pen : pens) pen = ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    const std::optional<int> with = GdiObjectsOf(::GetCurrentProcess());
    for (HPEN const pen : pens) ::DeleteObject(pen);
    return before && with && *with == *before + made && GdiObjectsOf(::GetCurrentProcess()) == before;
}

double SecondsOf(const FILETIME& time) {
    constexpr double seconds = 1e-7;
    return ((static_cast<double>(time.dwHighDateTime) * 4294967296.0) + time.dwLowDateTime) * seconds;
}

}  // namespace

bool CanTellWhatIsUsed() { return CountsWhatIsMade(); }

bool PrintWhatIsUsed(unsigned long process, int times) {
    HANDLE const handle = ::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process);
    if (handle == nullptr) return false;
    PROCESS_MEMORY_COUNTERS memory{};
    DWORD handles = 0;
    FILETIME made{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    const std::optional<int> objects = GdiObjectsOf(handle);
    const bool isTold = ::GetProcessMemoryInfo(handle, &memory, sizeof memory) != 0 &&
                        ::GetProcessHandleCount(handle, &handles) != 0 &&
                        ::GetProcessTimes(handle, &made, &ended, &kernel, &user) != 0 && objects;
    ::CloseHandle(handle);
    if (!isTold) return false;
    std::printf("%d %llu %lu %d %.2f\n", times, static_cast<unsigned long long>(memory.PagefileUsage / 1024), handles,
                *objects, SecondsOf(kernel) + SecondsOf(user));
    std::fflush(stdout);
    return true;
}
