#pragma once

#include <wx/gdicmn.h>

#include <memory>
#include <string>

namespace korvande::testing {

// Another program that drags a file: it speaks the desktop's own protocol over a connection of its own, so that the
// window under test cannot tell it from a file manager.
class FileDrag {
 public:
    // Of a file by its full name in UTF-8.
    explicit FileDrag(const std::string& file);
    FileDrag(const FileDrag&) = delete;
    FileDrag& operator=(const FileDrag&) = delete;
    ~FileDrag();

    // Drags the file over a place on the screen and drops it there; waits until the window there has finished with it.
    void DropOn(wxPoint place);

    // Whether the window told, while the file was over it, that it takes it.
    bool WasAccepted() const noexcept;

 private:
    struct Connection;
    std::unique_ptr<Connection> connection;
};

}  // namespace korvande::testing
