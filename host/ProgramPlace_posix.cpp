#include "host/ProgramPlace.h"

#include <filesystem>

namespace korvande {

ProgramPlace RunningProgram() {
    std::error_code failure;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failure);
    if (failure) return {};
    Text folder = FromUtf8(program.parent_path().string());
    if (folder.ends_with(u'/')) folder.pop_back();
    return {folder, FromUtf8(program.stem().string())};
}

}  // namespace korvande
