#include "tests/faults/Trial.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

constexpr unsigned longest = 20;  // seconds

int UnnamedFile(const char* name) {
    const int file = ::memfd_create(name, MFD_CLOEXEC);
    if (file < 0) throw std::runtime_error("memfd_create");
    return file;
}

void Empty(int file) {
    if (::ftruncate(file, 0) != 0 || ::lseek(file, 0, SEEK_SET) != 0) throw std::runtime_error("ftruncate");
}

std::string BytesIn(int file) {
    std::string bytes(static_cast<std::size_t>(::lseek(file, 0, SEEK_END)), '\0');
    if (::pread(file, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) return "(unread)";
    return bytes;
}

std::map<std::uint64_t, std::string> NumbersBelow(const std::string& folder) {
    std::map<std::uint64_t, std::string> numbers;
    const auto add = [&](const fs::path& path, const std::string& name) {
        struct stat status {};
        if (::stat(path.c_str(), &status) == 0) numbers[status.st_ino] = name;
    };
    add(folder, "");
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).generic_string();
        add(entry.path(), entry.is_directory() ? name + "/" : name);
    }
    return numbers;
}

}  // namespace

Bench::Bench(const Scenario& itsScenario)
    : scenario(itsScenario), output(UnnamedFile("output")), error(UnnamedFile("error")) {
    std::size_t end = 0;
    Step none;
    SharedRequests() = {};
    NextStep(end, none);  // so that there is a record to be shared
}

void Bench::LayOut() const {
    for (const auto& entry : fs::directory_iterator(folder.Path())) fs::remove_all(entry.path());
    for (const auto& [name, bytes] : scenario.before) {
        fs::create_directories(fs::path(folder.Path() + "/" + name).parent_path());
        folder.Write(name, bytes);
    }
}

void Bench::BeTheProgram(const std::function<void()>& prepare) const noexcept {
    ::dup2(::open("/dev/null", O_RDONLY | O_CLOEXEC), STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(error, STDERR_FILENO);
    for (const auto& [variable, value] : GoldenEnvironment(folder.Path())) {
        ::setenv(variable.c_str(), value.c_str(), 1);
    }
    ::unsetenv("KORVANDE_DRIVE_D");
    if (::chdir(folder.Path().c_str()) != 0) ::_exit(127);
    ::alarm(longest);
    prepare();
    std::exit(scenario.run());
}

Trial Bench::Do(const std::function<void()>& prepare) {
    if (!isLaidOut) LayOut();
    Trial trial;
    trial.numbers = NumbersBelow(folder.Path());
    Empty(output);
    Empty(error);
    SharedRequests() = {};
    std::fflush(nullptr);
    const pid_t process = ::fork();
    if (process < 0) throw std::runtime_error("fork");
    if (process == 0) BeTheProgram(prepare);
    int status = 0;
    while (::waitpid(process, &status, 0) < 0) {
    }
    trial.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    trial.output = BytesIn(output);
    trial.error = BytesIn(error);
    trial.after = FilesBelow(folder.Path());
    trial.requests = SharedRequests();
    isLaidOut = trial.after == scenario.before;
    return trial;
}

}  // namespace korvande::testing
