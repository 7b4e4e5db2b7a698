#include "tests/gui/FileDrag.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <array>
#include <cstdint>
#include <stdexcept>

#include "tests/gui/Waiting.h"

namespace korvande::testing {

struct FileDrag::Connection {
    explicit Connection(const std::string& file) : uris("file://" + file + "\r\n") {
        if (display == nullptr) throw std::runtime_error("no display");
        own = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
        XSetSelectionOwner(display, Atom("XdndSelection"), own, CurrentTime);
        XSync(display, False);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() {
        XDestroyWindow(display, own);
        XCloseDisplay(display);
    }

    ::Atom Atom(const char* name) const { return XInternAtom(display, name, False); }

    void Send(const char* type, std::array<long, 4> data) const {
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = target;
        event.xclient.message_type = Atom(type);
        event.xclient.format = 32;
        event.xclient.data.l[0] = static_cast<long>(own);
        for (std::size_t i = 0; i < data.size(); ++i) event.xclient.data.l[i + 1] = data[i];
        XSendEvent(display, target, False, NoEventMask, &event);
        XSync(display, False);
    }

    // The outermost window at a place that takes part in dragging.
    void FindTarget(wxPoint place) {
        ::Window parent = DefaultRootWindow(display);
        ::Window child = 0;
        int x = 0;
        int y = 0;
        while (XTranslateCoordinates(display, DefaultRootWindow(display), parent, place.x, place.y, &x, &y, &child) !=
                   0 &&
               child != 0) {
            parent = child;
            if (TakesPart(child)) break;
        }
        target = parent;
    }
    bool TakesPart(::Window window) const {
        int count = 0;
        ::Atom* const properties = XListProperties(display, window, &count);
        bool isThere = false;
        for (int i = 0; i < count; ++i) isThere = isThere || properties[i] == Atom("XdndAware");
        if (properties != nullptr) XFree(properties);
        return isThere;
    }

    // Gives the dragged file's name to who asks for it.
    void Answer(const XSelectionRequestEvent& request) const {
        XChangeProperty(display, request.requestor, request.property, request.target, 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(uris.data()), static_cast<int>(uris.size()));
        XEvent event{};
        event.xselection.type = SelectionNotify;
        event.xselection.requestor = request.requestor;
        event.xselection.selection = request.selection;
        event.xselection.target = request.target;
        event.xselection.property = request.property;
        event.xselection.time = request.time;
        XSendEvent(display, request.requestor, False, NoEventMask, &event);
        XSync(display, False);
    }

    void Listen() {
        while (XPending(display) > 0) {
            XEvent event;
            XNextEvent(display, &event);
            if (event.type == SelectionRequest) Answer(event.xselectionrequest);
            if (event.type != ClientMessage) continue;
            if (event.xclient.message_type == Atom("XdndStatus")) {
                hasStatus = true;
                accepted = (event.xclient.data.l[1] & 1) != 0;
            }
            if (event.xclient.message_type == Atom("XdndFinished")) finished = true;
        }
    }

    // Tells the window where the file is now, and waits for its answer.
    void MoveTo(wxPoint place) {
        constexpr int halfWord = 16;
        hasStatus = false;
        const auto packed =
            static_cast<long>((static_cast<unsigned long>(place.x) << halfWord) | static_cast<unsigned long>(place.y));
        Send("XdndPosition", {0, packed, CurrentTime, static_cast<long>(Atom("XdndActionCopy"))});
        WaitUntil("the answer to the drag", [this] {
            Listen();
            return hasStatus;
        });
    }

    std::string uris;
    Display* display = XOpenDisplay(nullptr);
    ::Window own = 0;
    ::Window target = 0;
    bool hasStatus = false;
    bool accepted = false;
    bool finished = false;
};

FileDrag::FileDrag(const std::string& file) : connection(std::make_unique<Connection>(file)) {}

FileDrag::~FileDrag() = default;

void FileDrag::DropOn(wxPoint place) {
    constexpr long version = 5;
    constexpr int versionShift = 24;
    Connection& drag = *connection;
    drag.FindTarget(place);
    drag.Send("XdndEnter", {version << versionShift, static_cast<long>(drag.Atom("text/uri-list")), 0, 0});
    // Twice: what is under the file is known when it has moved.
    drag.MoveTo(place - wxPoint(1, 1));
    drag.MoveTo(place);
    drag.Send("XdndDrop", {0, CurrentTime, 0, 0});
    WaitUntil("the end of the drag", [&drag] {
        drag.Listen();
        return drag.finished;
    });
}

bool FileDrag::WasAccepted() const noexcept { return connection->accepted; }

}  // namespace korvande::testing
