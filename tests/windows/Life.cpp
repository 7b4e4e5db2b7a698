#include "tests/windows/Life.h"

#include <windows.h>
// Behind the header above.
#include <psapi.h>
#include <winternl.h>

#include <algorithm>
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

// GetProcessHandleCount would tell, but says 0 under Wine.
std::optional<int> HandlesOf(DWORD process) {
    constexpr std::size_t most = 1'000'000;
    for (std::size_t room = 1'000; room <= most; room *= 2) {
        std::vector<SYSTEM_HANDLE_ENTRY> told(room);
        ULONG needed = 0;
        if (::NtQuerySystemInformation(SystemHandleInformation, told.data(),
                                       static_cast<ULONG>(room * sizeof told.front()), &needed) != 0)
            continue;
        const auto* const all = reinterpret_cast<const SYSTEM_HANDLE_INFORMATION*>(told.data());
        const SYSTEM_HANDLE_ENTRY* const first = all->Handle;
        return static_cast<int>(std::count_if(first, first + all->Count, [process](const SYSTEM_HANDLE_ENTRY& entry) {
            return entry.OwnerPid == process;
        }));
    }
    return {};
}

// A count that does not see what this program makes itself sees no other's either.
bool CountsHandlesThatAreMade() {
    constexpr int made = 25;
    const DWORD self = ::GetCurrentProcessId();
    const std::optional<int> before = HandlesOf(self);
    HANDLE events[made] = {};
    for (HANDLE& event : events) event = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const std::optional<int> with = HandlesOf(self);
    for (HANDLE const event : events) ::CloseHandle(event);
    return before && with && *with == *before + made && HandlesOf(self) == before;
}

bool CountsObjectsThatAreMade() {
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

bool CanTellWhatIsUsed() { return CountsHandlesThatAreMade() && CountsObjectsThatAreMade(); }

bool PrintWhatIsUsed(unsigned long process, int times) {
    HANDLE const handle = ::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process);
    if (handle == nullptr) return false;
    PROCESS_MEMORY_COUNTERS memory{};
    FILETIME made{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    const std::optional<int> handles = HandlesOf(process);
    const std::optional<int> objects = GdiObjectsOf(handle);
    const bool isTold = ::GetProcessMemoryInfo(handle, &memory, sizeof memory) != 0 &&
                        ::GetProcessTimes(handle, &made, &ended, &kernel, &user) != 0 && handles && objects;
    ::CloseHandle(handle);
    if (!isTold) return false;
    std::printf("%d %llu %d %d %.2f\n", times, static_cast<unsigned long long>(memory.PagefileUsage / 1024), *handles,
                *objects, SecondsOf(kernel) + SecondsOf(user));
    std::fflush(stdout);
    return true;
}
