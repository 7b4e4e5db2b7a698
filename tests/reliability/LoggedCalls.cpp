// Loaded in front of a program's libraries: writes a line into the file that KORVANDE_TEST_CALLS names for every file
// that is made new, flushed to the disk or renamed, in their order.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdlib>
#include <string>

namespace {

template <class Function>
Function Next(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

void Log(const std::string& line) {
    static const auto open = Next<int (*)(const char*, int, ...)>("open");
    const char* const name = std::getenv("KORVANDE_TEST_CALLS");
    if (name == nullptr) return;
    const int log = open(name, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    if (::write(log, line.data(), line.size()) < 0) std::abort();
    ::close(log);
}

// The last component of a path; what is temporary has a number that differs every time.
std::string Known(const std::string& path) {
    const std::string name = path.substr(path.rfind('/') + 1);
    return name.starts_with("~korvande-") ? "~korvande" : name;
}

std::string NameOf(int descriptor) {
    char path[4096];
    const ssize_t size = ::readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path, sizeof path);
    return size < 0 ? "?" : Known({path, static_cast<std::size_t>(size)});
}

}  // namespace

extern "C" {

// The library's own names of the parameters differ. NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto next = Next<int (*)(const char*, int, ...)>("open");
    if ((flags & O_EXCL) != 0) Log("new " + Known(path) + "\n");
    return next(path, flags, mode);
}

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
int fsync(int descriptor) {
    struct stat status {};
    ::fstat(descriptor, &status);
    Log(S_ISDIR(status.st_mode) ? "flush the folder\n" : "flush " + NameOf(descriptor) + "\n");
    static const auto next = Next<int (*)(int)>("fsync");
    return next(descriptor);
}

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
int rename(const char* from, const char* to) noexcept {
    Log("rename " + Known(from) + " to " + Known(to) + "\n");
    static const auto next = Next<int (*)(const char*, const char*)>("rename");
    return next(from, to);
}
}
