#include "desktop/TestScreen.hpp"

#include "desktop/Style.hpp"
#include "desktop/gtk/Connect.hpp"
#include "desktop/gtk/Reference.hpp"
#include "support/ManagedScreen.hpp"
#include "support/Patience.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <optional>
#include <stdexcept>

// After the others: its macros are common words.
// clang-format off
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <gdk/x11/gdkx.h>

// clang-format on

namespace desktop {
namespace screen {

namespace {

class Screen : public testing::Environment {
  public:
    void SetUp() override {
        screen_.emplace(1280, 800);
        ::setenv("GDK_BACKEND", "x11", 1);
        ::setenv("GSK_RENDERER", "cairo", 1);
        ::setenv("GDK_DEBUG", "gl-disable", 1);
        ::setenv("GTK_A11Y", "test", 1);
        ::setenv("GTK_THEME", "Default", 1);
        ::setenv("GSETTINGS_BACKEND", "memory", 1);
        if (!gtk_init_check())
            throw std::runtime_error("no display");
        g_object_set(gtk_settings_get_default(), "gtk-enable-animations", FALSE, nullptr);
        installStyle(gdk_display_get_default());
    }
    void TearDown() override {
        gdk_display_close(gdk_display_get_default());
        screen_.reset();
    }

  private:
    std::optional<support::ManagedScreen> screen_;
};

const auto* const environment = testing::AddGlobalTestEnvironment(new Screen);

Display* server() {
    return gdk_x11_display_get_xdisplay(gdk_display_get_default());
}

void sendKey(unsigned key, Bool isDown) {
    XTestFakeKeyEvent(server(), XKeysymToKeycode(server(), key), isDown, 0);
}

void synchronize() {
    for (int round = 0; round < 3; ++round) {
        XSync(server(), False);
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
    }
}

/// GTK holds events back until the next frame.
void waitForFrame(GtkWidget* window) {
    GdkFrameClock* clock = gtk_widget_get_frame_clock(window);
    bool isDrawn = false;
    const Connected drawn(clock, connect<void()>(clock, "after-paint", [&] { isDrawn = true; }));
    gdk_frame_clock_request_phase(clock, GDK_FRAME_CLOCK_PHASE_AFTER_PAINT);
    EXPECT_TRUE(waitFor([&] { return isDrawn; }));
}

}  // namespace

bool waitFor(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + support::patience;
    // Not every change wakes the main loop.
    const unsigned tick = g_timeout_add(
        5, [](gpointer) -> gboolean { return TRUE; }, nullptr);
    bool holds = condition();
    while (!holds && std::chrono::steady_clock::now() < deadline) {
        g_main_context_iteration(nullptr, TRUE);
        holds = condition();
    }
    g_source_remove(tick);
    return holds;
}

void settle() {
    synchronize();
    const Reference<GListModel> windows = kept(gtk_window_get_toplevels());
    for (unsigned i = 0; i < g_list_model_get_n_items(windows.get()); ++i) {
        const auto window =
            adopted(static_cast<GtkWidget*>(g_list_model_get_item(windows.get(), i)));
        if (gtk_widget_get_mapped(window.get()))
            waitForFrame(window.get());
    }
    synchronize();
}

WindowNumber rootWindow() {
    return DefaultRootWindow(server());
}

WindowNumber windowOf(GtkWindow* window) {
    return gdk_x11_surface_get_xid(gtk_native_get_surface(GTK_NATIVE(window)));
}

views::Point cornerOf(WindowNumber window) {
    int x = 0;
    int y = 0;
    Window child = None;
    XTranslateCoordinates(server(), window, rootWindow(), 0, 0, &x, &y, &child);
    return {static_cast<double>(x), static_cast<double>(y)};
}

views::Point cornerOf(GtkWindow* window) {
    return cornerOf(windowOf(window));
}

std::uint32_t pixel(int x, int y) {
    XImage* image = XGetImage(server(), rootWindow(), x, y, 1, 1, AllPlanes, ZPixmap);
    const auto value = static_cast<std::uint32_t>(XGetPixel(image, 0, 0));
    XDestroyImage(image);
    return value & 0xFFFFFF;
}

std::vector<unsigned long> property(WindowNumber window, const char* name) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(server(), window, XInternAtom(server(), name, False), 0, 64, False,
                       AnyPropertyType, &type, &format, &count, &rest, &data);
    std::vector<unsigned long> values;
    if (data && format == 32)
        for (unsigned long i = 0; i < count; ++i)
            values.push_back(reinterpret_cast<unsigned long*>(data)[i] & 0xFFFFFFFF);
    if (data)
        XFree(data);
    return values;
}

bool hasState(WindowNumber window, const char* state) {
    const auto states = property(window, "_NET_WM_STATE");
    return std::find(states.begin(), states.end(), XInternAtom(server(), state, False)) !=
           states.end();
}

std::vector<GtkWidget*> under(GtkWidget* widget, const std::function<bool(GtkWidget*)>& condition) {
    std::vector<GtkWidget*> found;
    for (GtkWidget* child = gtk_widget_get_first_child(widget); child;
         child = gtk_widget_get_next_sibling(child)) {
        if (condition(child))
            found.push_back(child);
        const auto inside = under(child, condition);
        found.insert(found.end(), inside.begin(), inside.end());
    }
    return found;
}

bool isPicture(GtkWidget* widget) {
    return gtk_test_accessible_has_role(GTK_ACCESSIBLE(widget), GTK_ACCESSIBLE_ROLE_IMG) &&
           gtk_widget_get_width(widget) >= 170;
}

bool isCalled(GtkWidget* widget, const std::string& name) {
    const std::unique_ptr<char, decltype(&g_free)> fault(
        gtk_test_accessible_check_property(GTK_ACCESSIBLE(widget), GTK_ACCESSIBLE_PROPERTY_LABEL,
                                           name.c_str()),
        g_free);
    return !fault;
}

void movePointer(double x, double y) {
    XTestFakeMotionEvent(server(), 0, static_cast<int>(x), static_cast<int>(y), 0);
    settle();
}

void holdButton(unsigned button) {
    XTestFakeButtonEvent(server(), button, True, 0);
    settle();
}

void holdAndMove(double x, double y) {
    XTestFakeButtonEvent(server(), 1, True, 0);
    XTestFakeMotionEvent(server(), 0, static_cast<int>(x), static_cast<int>(y), 0);
    settle();
}

void releaseButton(unsigned button) {
    XTestFakeButtonEvent(server(), button, False, 0);
    settle();
}

void click(double x, double y, unsigned button) {
    movePointer(x, y);
    holdButton(button);
    releaseButton(button);
}

void pressKey(unsigned key, unsigned modifier) {
    if (modifier)
        sendKey(modifier, True);
    sendKey(key, True);
    sendKey(key, False);
    if (modifier)
        sendKey(modifier, False);
    settle();
}

void holdKey(unsigned key) {
    sendKey(key, True);
    settle();
}

void releaseKey(unsigned key) {
    sendKey(key, False);
    settle();
}

void activate(GtkWindow* window) {
    gtk_window_present(window);
    EXPECT_TRUE(waitFor([&] { return gtk_window_is_active(window); }));
}

}  // namespace screen
}  // namespace desktop
