#include "translation/LogBook.h"

#include <algorithm>

#include "core/RuntimeError.h"

namespace korvande {

void LogBook::Open(TextView name) {
    file.Open(name);
    column = 1;
}

void LogBook::Reopen(TextView name) {
    file.Open(name, OpenMode::Append);
    column = 1;
}

void LogBook::Close() noexcept {
    try {
        file.Close();
    } catch (const RuntimeError& error) {
        failure = error.Number();
        file.Abandon();
    } catch (const std::exception&) {
        failure = errors::outOfMemory;
        file.Abandon();
    }
}

void LogBook::WriteLine(TextView text) {
    Write(text);
    EndLine();
}

void LogBook::WriteEmptyLines(int count) {
    if (column > 1) EndLine();
    for (int i = 0; i < count; ++i) EndLine();
}

void LogBook::Write(TextView text) {
    if (!IsOpen()) return;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n", at), text.size());
        Put(ToWindows1252(text.substr(at, end - at)));
        column += static_cast<int>(end - at);
        if (end == text.size()) return;
        const bool pair = text.substr(end, 2) == u"\r\n";
        EndLine();
        at = end + (pair ? 2 : 1);
    }
}

void LogBook::WriteAtColumn(int atColumn, TextView text) {
    if (atColumn > column) Write(Text(static_cast<std::size_t>(atColumn - column), u' '));
    Write(text);
}

void LogBook::EndLine() {
    Put("\r\n");
    column = 1;
}

void LogBook::WriteError(TextView message) {
    Text line = Concat(u"FOUT:  ", message);
    std::replace_if(
        line.begin(), line.end(), [](char16_t c) { return c == u'\r' || c == u'\n'; }, u' ');
    WriteLine(line);
}

// A log book that cannot be written does not end the run: the drawing comes first.
void LogBook::Put(std::string_view bytes) {
    if (!IsOpen() || HasFailed()) return;
    try {
        file.Put(bytes);
    } catch (const RuntimeError& error) {
        failure = error.Number();
    }
}

}  // namespace korvande
