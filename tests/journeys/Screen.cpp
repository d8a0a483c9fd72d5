#include "journeys/Screen.hpp"

#include <stdexcept>
#include <utility>

// After the others: its macros are common words.
// clang-format off
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
// clang-format on

namespace journeys {

namespace {

/// Windows come and go while they are looked at.
int ignore(Display*, XErrorEvent*) {
    return 0;
}

std::vector<unsigned char> property(Display* display, Window window, const char* name, int width) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    constexpr long mostWords = 4096;
    XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, mostWords, False,
                       AnyPropertyType, &type, &format, &count, &rest, &data);
    const std::unique_ptr<unsigned char, int (*)(void*)> owner(data, XFree);
    if (!data || format != width)
        return {};
    const std::size_t size = width == 32 ? sizeof(long) : 1;
    return {data, data + count * size};
}

std::vector<Window> listed(Display* display, const char* list) {
    const auto bytes = property(display, DefaultRootWindow(display), list, 32);
    const auto* windows = reinterpret_cast<const Window*>(bytes.data());
    return {windows, windows + bytes.size() / sizeof(Window)};
}

std::string title(Display* display, Window window) {
    const auto bytes = property(display, window, "_NET_WM_NAME", 8);
    return {bytes.begin(), bytes.end()};
}

}  // namespace

Screen::Screen(canvas::PixelSize size)
    : Screen(size, support::serverInMemory(size.width, size.height)) {}

Screen::Screen(canvas::PixelSize size, const std::string& server) : size_(size), screen_(server) {
    XSetErrorHandler(ignore);
    display_.reset(XOpenDisplay(nullptr));
    if (!display_)
        throw std::runtime_error("no display");
    settings_.emplace(display_.get());
    movePointer(size.width - 1, size.height - 1);
}

Screen::~Screen() {
    end();
}

void Screen::end() {
    display_.reset();
    screen_.end();
}

void Screen::Disconnect::operator()(_XDisplay* display) const {
    XCloseDisplay(display);
}

std::vector<std::string> Screen::windows() const {
    std::vector<std::string> titles;
    for (const Window window : listed(display_.get(), "_NET_CLIENT_LIST"))
        titles.push_back(title(display_.get(), window));
    return titles;
}

std::optional<Area> Screen::window(const std::string& name) const {
    for (const Window window : listed(display_.get(), "_NET_CLIENT_LIST")) {
        XWindowAttributes is;
        if (title(display_.get(), window) != name ||
            !XGetWindowAttributes(display_.get(), window, &is) || is.map_state != IsViewable)
            continue;
        Area area{0, 0, is.width, is.height};
        Window child = None;
        XTranslateCoordinates(display_.get(), window, is.root, 0, 0, &area.x, &area.y, &child);
        return area;
    }
    return std::nullopt;
}

std::string Screen::activeWindow() const {
    const auto active = listed(display_.get(), "_NET_ACTIVE_WINDOW");
    return active.empty() ? "" : title(display_.get(), active.front());
}

Picture Screen::picture(const Area& area) const {
    const std::unique_ptr<XImage, void (*)(XImage*)> image(
        XGetImage(display_.get(), DefaultRootWindow(display_.get()), area.x, area.y,
                  static_cast<unsigned>(area.width), static_cast<unsigned>(area.height), AllPlanes,
                  ZPixmap),
        [](XImage* one) { XDestroyImage(one); });
    Picture picture{{area.width, area.height}, {}};
    if (!image)
        return {};
    for (int y = 0; y < area.height; ++y)
        for (int x = 0; x < area.width; ++x)
            picture.argb.push_back(static_cast<std::uint32_t>(XGetPixel(image.get(), x, y)) |
                                   0xFF000000);
    return picture;
}

Picture Screen::pictureOf(const std::string& name) const {
    const auto area = window(name);
    return area ? picture(*area) : Picture();
}

void Screen::press(const std::vector<std::string>& keys) {
    const auto send = [&](const std::string& key, Bool isDown) {
        const KeySym symbol = XStringToKeysym(key.c_str());
        XTestFakeKeyEvent(display_.get(), XKeysymToKeycode(display_.get(), symbol), isDown, 0);
    };
    for (const std::string& key : keys)
        send(key, True);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key)
        send(*key, False);
    XSync(display_.get(), False);
}

void Screen::movePointer(int x, int y) {
    XTestFakeMotionEvent(display_.get(), 0, x, y, 0);
    XSync(display_.get(), False);
}

void Screen::click(int x, int y) {
    movePointer(x, y);
    XTestFakeButtonEvent(display_.get(), 1, True, 0);
    XTestFakeButtonEvent(display_.get(), 1, False, 0);
    XSync(display_.get(), False);
}

void Screen::setResolution(int dotsPerInch) {
    settings_->setResolution(dotsPerInch);
}

}  // namespace journeys
