#include "tests/faults/SystemCalls.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <span>
#include <vector>

#include "tests/faults/Memory.h"

// A request of the system that does not go through the filter, which knows the place behind it.
extern "C" {
long korvandeRequest(long number, long a, long b, long c, long d, long e, long f);
extern const char korvandeRequestMade[];
}
asm(R"(
    .text
    .globl korvandeRequest
    .type korvandeRequest, @function
korvandeRequest:
    mov %rdi, %rax
    mov %rsi, %rdi
    mov %rdx, %rsi
    mov %rcx, %rdx
    mov %r8, %r10
    mov %r9, %r8
    mov 8(%rsp), %r9
    syscall
    .globl korvandeRequestMade
korvandeRequestMade:
    ret
)");

namespace korvande::testing {

namespace {

constexpr std::size_t recordSize = std::size_t{1} << 26;

struct Call {
    long number;
    std::array<long, 6> arguments;
};

long Do(const Call& call) {
    const auto& a = call.arguments;
    return korvandeRequest(call.number, a[0], a[1], a[2], a[3], a[4], a[5]);
}

long Ask(long number, long a = 0, long b = 0, long c = 0, long d = 0) {
    return korvandeRequest(number, a, b, c, d, 0, 0);
}

template <class Value>
long Pointer(Value* value) {
    return reinterpret_cast<long>(value);
}

// Which requests are handed over, and as what they count.
struct Kind {
    long number;
    Operation operation;
};
constexpr std::array kinds = {
    Kind{SYS_open, Operation::Open},       Kind{SYS_openat, Operation::Open},
    Kind{SYS_creat, Operation::Create},    Kind{SYS_mkdir, Operation::Create},
    Kind{SYS_mkdirat, Operation::Create},  Kind{SYS_read, Operation::Read},
    Kind{SYS_pread64, Operation::Read},    Kind{SYS_readv, Operation::Read},
    Kind{SYS_write, Operation::Write},     Kind{SYS_pwrite64, Operation::Write},
    Kind{SYS_writev, Operation::Write},    Kind{SYS_ftruncate, Operation::Resize},
    Kind{SYS_truncate, Operation::Resize}, Kind{SYS_fallocate, Operation::Resize},
    Kind{SYS_fsync, Operation::Flush},     Kind{SYS_fdatasync, Operation::Flush},
    Kind{SYS_close, Operation::Close},     Kind{SYS_rename, Operation::Rename},
    Kind{SYS_renameat, Operation::Rename}, Kind{SYS_renameat2, Operation::Rename},
    Kind{SYS_unlink, Operation::Remove},   Kind{SYS_unlinkat, Operation::Remove},
    Kind{SYS_rmdir, Operation::Remove},    Kind{SYS_stat, Operation::Look},
    Kind{SYS_lstat, Operation::Look},      Kind{SYS_fstat, Operation::Look},
    Kind{SYS_newfstatat, Operation::Look}, Kind{SYS_statx, Operation::Look},
    Kind{SYS_access, Operation::Look},     Kind{SYS_faccessat, Operation::Look},
    Kind{SYS_faccessat2, Operation::Look}, Kind{SYS_readlink, Operation::Look},
    Kind{SYS_readlinkat, Operation::Look}, Kind{SYS_getdents64, Operation::List},
    Kind{SYS_fchmod, Operation::Rights},   Kind{SYS_fchown, Operation::Rights},
};

Operation OperationOf(const Call& call) {
    const bool makes = (call.number == SYS_open && (call.arguments[1] & O_CREAT) != 0) ||
                       (call.number == SYS_openat && (call.arguments[2] & O_CREAT) != 0);
    if (makes) return Operation::Create;
    for (const Kind& kind : kinds) {
        if (kind.number == call.number) return kind.operation;
    }
    std::abort();
}

Fault awaited;

bool IsToFail(Operation operation, std::int64_t number) {
    if (awaited.operation != operation || awaited.number == 0) return false;
    return awaited.manner == Manner::FailsFromHereOn ? number >= awaited.number : number == awaited.number;
}

// The name that a request gives, or that of the open file that it concerns.
void NotePlace(const Call& call) {
    Requests& requests = SharedRequests();
    if (requests.isStruck) return;
    requests.isStruck = true;
    const bool isAt = call.number == SYS_openat || call.number == SYS_newfstatat || call.number == SYS_unlinkat ||
                      call.number == SYS_renameat || call.number == SYS_renameat2 || call.number == SYS_readlinkat ||
                      call.number == SYS_faccessat || call.number == SYS_faccessat2 || call.number == SYS_statx;
    const auto* const name = reinterpret_cast<const char*>(call.arguments[isAt ? 1 : 0]);
    const Operation operation = OperationOf(call);
    const bool isOpen = operation == Operation::Read || operation == Operation::Write ||
                        operation == Operation::Flush || operation == Operation::Close ||
                        operation == Operation::List || operation == Operation::Rights ||
                        call.number == SYS_ftruncate || call.number == SYS_fstat;
    const bool isUnnamed = call.number == SYS_newfstatat && name != nullptr && *name == '\0';
    if (!isOpen && !isUnnamed) {
        std::strncpy(requests.place, name == nullptr ? "?" : name, sizeof requests.place - 1);
        return;
    }
    char path[64];
    std::snprintf(path, sizeof path, "/proc/self/fd/%ld", call.arguments[0]);
    Ask(SYS_readlink, Pointer(path), Pointer(requests.place), sizeof requests.place - 1);
}

long GoWrong(Call call) {
    NotePlace(call);
    // Whatever is told of it, the number of an open file is free afterwards.
    if (call.number == SYS_close) Do(call);
    switch (awaited.manner) {
        case Manner::IsInterrupted:
            return -EINTR;
        case Manner::IsShort:
            if (call.number != SYS_readv && call.number != SYS_writev && call.arguments[2] > 1) call.arguments[2] /= 2;
            return Do(call);
        default:
            return -awaited.error;
    }
}

// The record, shared as the counts are.

char* record = nullptr;
bool isRecording = false;

struct StepSizes {
    Change change;
    std::uint64_t file;
    std::int64_t place;
    std::uint64_t nameSize;
    std::uint64_t bytesSize;
};

void Append(const void* bytes, std::size_t size) {
    Requests& requests = SharedRequests();
    if (requests.bytes + size > recordSize) std::abort();
    std::memcpy(record + requests.bytes, bytes, size);
    requests.bytes += size;
}

void Keep(Change change, std::uint64_t file, std::int64_t place, std::string_view name, std::string_view bytes) {
    const StepSizes sizes{change, file, place, name.size(), bytes.size()};
    Append(&sizes, sizeof sizes);
    Append(name.data(), name.size());
    Append(bytes.data(), bytes.size());
}

struct stat StatusOf(long descriptor) {
    struct stat status {};
    Ask(SYS_fstat, descriptor, Pointer(&status));
    return status;
}

const char* NameIn(long argument) { return reinterpret_cast<const char*>(argument); }

// One that may make or empty a file.
long RecordOpen(const Call& call) {
    const std::size_t first = call.number == SYS_openat ? 1 : 0;
    const char* const name = NameIn(call.arguments[first]);
    const long flags = call.number == SYS_creat ? O_CREAT | O_TRUNC : call.arguments[first + 1];
    const bool wasThere = Ask(SYS_access, Pointer(name), F_OK) == 0;
    const long descriptor = Do(call);
    if (descriptor < 0 || (flags & (O_CREAT | O_TRUNC)) == 0) return descriptor;
    const struct stat status = StatusOf(descriptor);
    if (!wasThere) {
        Keep(Change::Create, status.st_ino, 0, name, {});
    } else if ((flags & O_TRUNC) != 0) {
        Keep(Change::Resize, status.st_ino, 0, {}, {});
    }
    return descriptor;
}

long RecordWrite(const Call& call) {
    const struct stat status = StatusOf(call.arguments[0]);
    const bool appends = (Ask(SYS_fcntl, call.arguments[0], F_GETFL) & O_APPEND) != 0;
    const long place = call.number == SYS_pwrite64 ? call.arguments[3]
                       : appends                   ? status.st_size
                                                   : Ask(SYS_lseek, call.arguments[0], 0, SEEK_CUR);
    const long count = Do(call);
    if (count <= 0 || !S_ISREG(status.st_mode)) return count;
    if (call.number != SYS_writev) {
        Keep(Change::Write, status.st_ino, place, {}, {NameIn(call.arguments[1]), static_cast<std::size_t>(count)});
        return count;
    }
    const std::span parts(reinterpret_cast<const struct iovec*>(call.arguments[1]),
                          static_cast<std::size_t>(call.arguments[2]));
    long done = 0;
    for (const struct iovec& part : parts) {
        const auto size = std::min(part.iov_len, static_cast<std::size_t>(count - done));
        Keep(Change::Write, status.st_ino, place + done, {}, {static_cast<const char*>(part.iov_base), size});
        done += static_cast<long>(size);
    }
    return count;
}

long Record(const Call& call) {
    const auto& arguments = call.arguments;
    const Operation operation = OperationOf(call);
    if (operation == Operation::Open || operation == Operation::Create) return RecordOpen(call);
    if (operation == Operation::Write) return RecordWrite(call);
    const long result = Do(call);
    if (result != 0) return result;
    if (operation == Operation::Resize) {
        Keep(Change::Resize, StatusOf(arguments[0]).st_ino, arguments[1], {}, {});
    } else if (operation == Operation::Flush) {
        const struct stat status = StatusOf(arguments[0]);
        Keep(S_ISDIR(status.st_mode) ? Change::FlushFolder : Change::Flush, status.st_ino, 0, {}, {});
    } else if (operation == Operation::Rename) {
        const bool isAt = call.number != SYS_rename;
        Keep(Change::Rename, 0, 0, NameIn(arguments[isAt ? 1 : 0]), NameIn(arguments[isAt ? 3 : 1]));
    } else if (operation == Operation::Remove) {
        Keep(Change::Remove, 0, 0, NameIn(arguments[call.number == SYS_unlinkat ? 1 : 0]), {});
    }
    return result;
}

void Answer(int, siginfo_t*, void* context) {
    auto& registers = static_cast<ucontext_t*>(context)->uc_mcontext.gregs;
    const Call call{registers[REG_RAX],
                    {registers[REG_RDI], registers[REG_RSI], registers[REG_RDX], registers[REG_R10], registers[REG_R8],
                     registers[REG_R9]}};
    const Operation operation = OperationOf(call);
    const std::int64_t number =
        std::atomic_ref(SharedRequests().counts[static_cast<std::size_t>(operation)]).fetch_add(1) + 1;
    if (isRecording) {
        registers[REG_RAX] = Record(call);
    } else {
        registers[REG_RAX] = IsToFail(operation, number) ? GoWrong(call) : Do(call);
    }
}

void Require(bool success, const char* what) {
    if (success) return;
    std::perror(what);
    std::abort();
}

// Has the kernel hand over every request of these kinds but those made here.
void HandOver() {
    struct sigaction action {};
    action.sa_sigaction = Answer;
    action.sa_flags = SA_SIGINFO | SA_NODEFER | SA_RESTART;
    Require(::sigaction(SIGSYS, &action, nullptr) == 0, "sigaction");
    const auto address = reinterpret_cast<std::uintptr_t>(korvandeRequestMade);
    std::vector<sock_filter> filter = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const auto toTheEnd = static_cast<std::uint8_t>(kinds.size() - i);
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(kinds[i].number), toTheEnd, 0));
    }
    const std::array rest = {
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, instruction_pointer)),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(address), 0, 3),
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, instruction_pointer) + 4),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(address >> 32U), 0, 1),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRAP),
    };
    filter.insert(filter.end(), rest.begin(), rest.end());
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    Require(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0, "PR_SET_NO_NEW_PRIVS");
    Require(::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0, "PR_SET_SECCOMP");
}

void* SharedMemory(std::size_t size) {
    void* const memory =
        ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    Require(memory != MAP_FAILED, "mmap");
    return memory;
}

bool IsMemoryToFail() {
    Requests& requests = SharedRequests();
    const auto place = static_cast<std::size_t>(Operation::Memory);
    const bool fails = IsToFail(Operation::Memory, std::atomic_ref(requests.counts[place]).fetch_add(1) + 1);
    if (fails) requests.isStruck = true;
    return fails;
}

}  // namespace

Requests& SharedRequests() {
    static auto* const requests = static_cast<Requests*>(SharedMemory(sizeof(Requests)));
    return *requests;
}

void BeginRequests(const Fault& fault) {
    HandOver();
    awaited = fault;
    WatchMemory(IsMemoryToFail);
}

void BeginRecording() {
    if (record == nullptr) std::abort();
    isRecording = true;
    HandOver();
}

bool NextStep(std::size_t& place, Step& step) {
    if (record == nullptr) record = static_cast<char*>(SharedMemory(recordSize));
    if (place >= SharedRequests().bytes) return false;
    StepSizes sizes{};
    std::memcpy(&sizes, record + place, sizeof sizes);
    const char* const name = record + place + sizeof sizes;
    step = {sizes.change, sizes.file, sizes.place, std::string(name, sizes.nameSize),
            std::string(name + sizes.nameSize, sizes.bytesSize)};
    place += sizeof sizes + sizes.nameSize + sizes.bytesSize;
    return true;
}

}  // namespace korvande::testing
