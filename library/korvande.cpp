#include "library/korvande.h"

#include <memory>
#include <optional>

#include "library/Calls.h"

namespace {

using korvande::DoWork;

korvande::RunNames NamesOf(korvande::Mode mode, const char* input, const char* output, const char* logBook,
                           const korvande_options& options) {
    korvande::RunNames names;
    names.input = korvande::FileName(input, u"invoer");
    names.output =
        output == nullptr ? korvande::OutputBeside(names.input, mode) : korvande::FileName(output, u"uitvoer");
    if (options.without_log_book != 0) {
        if (logBook != nullptr) throw korvande::WrongUse{u"Een logboek en without_log_book gaan niet samen."};
        return names;
    }
    names.logBook =
        logBook == nullptr ? korvande::LogBookBeside(names.output) : korvande::FileName(logBook, u"logboek");
    return names;
}

}  // namespace

const char* korvande_version() noexcept { return KORVANDE_VERSION_TEXT; }

int korvande_interface() noexcept { return KORVANDE_INTERFACE; }

int korvande_open(const char* table, korvande_handle** handle) noexcept {
    if (handle == nullptr) return KORVANDE_WRONG_USE;
    *handle = nullptr;
    std::unique_ptr<korvande_handle> made;
    try {
        made = std::make_unique<korvande_handle>();
    } catch (...) {
        return KORVANDE_FAILED;
    }
    *handle = made.release();
    return DoWork(*handle, [table](korvande_handle& opened) {
        std::optional<korvande::Text> name;
        if (table != nullptr) name = korvande::FileName(table, u"controletabel");
        return korvande::OpenTable(opened, name);
    });
}

int korvande_translate(korvande_handle* handle, const char* mode, const char* input, const char* output,
                       const char* log, const korvande_options* options, const korvande_callbacks* callbacks) noexcept {
    // cppcheck-suppress throwInNoexceptFunction ; DoWork catches what this throws
    return DoWork(handle, [&](korvande_handle& opened) {
        korvande::TranslateCall call;
        call.mode = korvande::ModeOf(mode);
        call.options = korvande::KnownOptions(options);
        call.callbacks = korvande::KnownCallbacks(callbacks);
        call.names = NamesOf(call.mode, input, output, log, call.options);
        return korvande::TranslateDrawing(opened, call);
    });
}

int korvande_check(korvande_handle* handle, const char* input, const korvande_options* options,
                   const korvande_callbacks* callbacks) noexcept {
    return DoWork(handle, [&](korvande_handle& opened) {
        return korvande::CheckDrawing(opened, {korvande::FileName(input, u"invoer"), korvande::KnownOptions(options),
                                               korvande::KnownCallbacks(callbacks)});
    });
}

const char* korvande_last_error(const korvande_handle* handle) noexcept {
    if (handle == nullptr || handle->hasNoMemoryForError) return korvande::outOfMemoryText;
    return handle->error.c_str();
}

const char* korvande_result(const korvande_handle* handle) noexcept {
    return handle != nullptr && handle->result ? handle->result->c_str() : nullptr;
}

void korvande_close(korvande_handle* handle) noexcept {
    if (handle == nullptr || handle->isAtWork) return;
    delete handle;
}
