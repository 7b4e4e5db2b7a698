#include "host/FileReplacement.h"

#include <cerrno>
#include <cstdio>
#include <utility>

#include "core/LineReader.h"
#include "core/LineWriter.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

struct NewFile {
    Text name;
    std::string path;
};

std::string PathOf(const Text& name) {
    const Text folder = FolderOf(name);
    const std::string file = ToUtf8(FileNameOf(name));
    return folder.empty() ? file : NativePath(folder) + "/" + file;
}

// A name that nobody has is taken by somebody else now and then.
NewFile CreateBeside(LineWriter& writer, TextView name) {
    while (true) {
        NewFile file;
        file.name = TemporaryNameBeside(name);
        file.path = PathOf(file.name);
        if (writer.Create(file.name, name)) return file;
    }
}

}  // namespace

void FileReplacement::Open(LineWriter& writer) {
    Drop();
    if (MayBeReplaced(name)) {
        const bool isThere = FileExistsAt(name);
        // One that may not be written is not replaced either.
        if (isThere) std::fclose(OpenNativeFile(name, OpenMode::Append));
        try {
            NewFile file = CreateBeside(writer, name);
            temporary = std::move(file.name);
            temporaryPath = std::move(file.path);
        } catch (const RuntimeError& error) {
            const bool isClosedFolder = error.Number() == errors::accessDenied;
            if (!isThere || !isClosedFolder) throw;
        }
        if (temporary.empty()) writer.Open(name);
        writer.KeepOnDisk();
    } else {
        writer.Open(name);
    }
    isOpened = true;
}

void FileReplacement::PutInPlace() {
    if (!isOpened) throw RuntimeError(errors::badFileName);
    if (temporary.empty()) return;
    const Text folder = FolderOf(temporary);
    try {
        PutFileAt(temporary, name);
    } catch (const std::exception&) {
        Drop();
        throw;
    }
    temporary.clear();
    FlushFolderToDisk(folder);
}

void FileReplacement::Drop() noexcept {
    if (!temporary.empty() && !DeleteFileAt(temporary)) std::remove(temporaryPath.c_str());
    temporary.clear();
    isOpened = false;
}

std::string FileBytesOf(TextView name) {
    const FileHandle file(OpenNativeFile(name, OpenMode::Read));
    std::string bytes;
    char block[4096];
    while (true) {
        const std::size_t count = std::fread(block, 1, sizeof block, file.get());
        bytes.append(block, count);
        if (count == sizeof block) continue;
        if (std::ferror(file.get()) == 0) return bytes;
        if (!IsOnlyInterrupted(file.get())) throw RuntimeError(ErrorNumberOf(errno));
        std::clearerr(file.get());
    }
}

void ReplaceFile(TextView name, std::string_view bytes) {
    // In this order: an open file is not removed everywhere.
    FileReplacement replacement(name);
    LineWriter writer;
    replacement.Open(writer);
    writer.Put(bytes);
    writer.Close();
    replacement.PutInPlace();
}

}  // namespace korvande
