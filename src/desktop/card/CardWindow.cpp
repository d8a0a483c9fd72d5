#include "desktop/card/CardWindow.hpp"

#include "desktop/card/CardOutline.hpp"

#include <utility>

namespace desktop {

using widgethost::Direction;

CardWindow::CardWindow(const Widget& widget,
                       double unitsPerPoint,
                       WidgetSource& source,
                       Mount& mount,
                       CardRequests requests)
    : source_(source),
      mount_(mount),
      requests_(std::move(requests)),
      window_(GTK_WINDOW(gtk_window_new())),
      unitsPerPoint_(unitsPerPoint),
      scale_(wantedScale()),
      card_(widget.name,
            widget.size,
            [this](const intents::ArchivedAction& action) { display_->press(action); }),
      menu_(card_.widget(), requests_, mount.placesWindows()) {
    gtk_window_set_resizable(window_, FALSE);
    gtk_window_set_child(window_, card_.widget());
    setName(widget.name);
    card_.setUnitsPerPoint(unitsPerPoint_);
    mount_.prepare(window_);
    if (mount_.placesWindows())
        standFree();
    else
        gtk_widget_add_css_class(GTK_WIDGET(window_), "nurva-framed-card");
    listen();
    display_ = source_.display(widget.kind, scale_,
                               [this](const widgethost::Shown& shown) { card_.show(shown); });
}

CardWindow::~CardWindow() {
    display_.reset();
    compositor_.reset();
    gtk_window_destroy(window_);
}

/// Leaves of the window only the card, which can be carried about.
void CardWindow::standFree() {
    gtk_widget_add_css_class(GTK_WIDGET(window_), "nurva-card-window");
    drag_.emplace(
        card_, mount_,
        CardDrag::Actions{
            .place = [this] { return place_; },
            .carry = [this](views::Point to) { mount_.move(window_, monitor_.get(), to); },
            .drop = requests_.drop,
        });
}

void CardWindow::listen() {
    GtkWidget* window = GTK_WIDGET(window_);
    connect<gboolean()>(window_, "close-request", [this] {
        requests_.remove();
        return TRUE;
    });
    connect<void(GParamSpec*)>(window_, "notify::scale-factor", [this](GParamSpec*) { rescale(); });
    connect<void()>(window, "map", [this] { outline(); });
    GdkDisplay* display = gtk_widget_get_display(window);
    compositor_ = std::make_unique<Connected>(
        display, connect<void(GParamSpec*)>(display, "notify::composited",
                                            [this](GParamSpec*) { outline(); }));

    GtkEventController* keys = gtk_event_controller_key_new();
    connect<gboolean(unsigned, unsigned, GdkModifierType)>(
        keys, "key-pressed", [this](unsigned key, unsigned, GdkModifierType modifiers) {
            showFocus(true);
            return static_cast<gboolean>(press(key, modifiers));
        });
    // Before the window itself, which has its own mind about the arrows.
    gtk_event_controller_set_propagation_phase(keys, GTK_PHASE_CAPTURE);
    gtk_widget_add_controller(window, keys);

    GtkGesture* touch = gtk_gesture_click_new();
    gtk_gesture_single_set_button(GTK_GESTURE_SINGLE(touch), 0);
    gtk_event_controller_set_propagation_phase(GTK_EVENT_CONTROLLER(touch), GTK_PHASE_CAPTURE);
    connect<void(int, double, double)>(touch, "pressed",
                                       [this](int, double, double) { showFocus(false); });
    gtk_widget_add_controller(window, GTK_EVENT_CONTROLLER(touch));

    GtkGesture* click = gtk_gesture_click_new();
    gtk_gesture_single_set_button(GTK_GESTURE_SINGLE(click), GDK_BUTTON_SECONDARY);
    connect<void(int, double, double)>(click, "pressed", [this](int, double x, double y) {
        openMenu(views::Point{x, y});
    });
    gtk_widget_add_controller(card_.widget(), GTK_EVENT_CONTROLLER(click));
}

/// The toolkit lets the ring of the focus vanish while the keyboard rests; whoever left it wants to
/// find it again.
void CardWindow::showFocus(bool isShown) {
    constexpr const char* byKeys = "nurva-by-keys";
    isShown ? gtk_widget_add_css_class(GTK_WIDGET(window_), byKeys)
            : gtk_widget_remove_css_class(GTK_WIDGET(window_), byKeys);
}

bool CardWindow::press(unsigned key, GdkModifierType modifiers) {
    const bool shift = (modifiers & GDK_SHIFT_MASK) != 0;
    const bool control = (modifiers & GDK_CONTROL_MASK) != 0;
    const auto move = [&](Direction direction) {
        if (control && mount_.placesWindows())
            requests_.move(direction);
        return control;
    };
    switch (key) {
        case GDK_KEY_Menu:
            openMenu(std::nullopt);
            return true;
        case GDK_KEY_F10:
            shift ? openMenu(std::nullopt) : void();
            return shift;
        case GDK_KEY_F6:
            requests_.focusNeighbour(shift ? -1 : 1);
            return true;
        case GDK_KEY_Left:
            return move(Direction::left);
        case GDK_KEY_Right:
            return move(Direction::right);
        case GDK_KEY_Up:
            return move(Direction::up);
        case GDK_KEY_Down:
            return move(Direction::down);
        default:
            return false;
    }
}

void CardWindow::openMenu(std::optional<views::Point> at) {
    const views::Point middle{card_.size().width * unitsPerPoint_ / 2,
                              card_.size().height * unitsPerPoint_ / 2};
    const views::Point point = at.value_or(middle);
    menu_.open(point.x, point.y);
}

void CardWindow::stand(GdkMonitor* monitor, views::Point place) {
    monitor_ = kept(monitor);
    place_ = place;
    mount_.move(window_, monitor, place);
    gtk_widget_show(GTK_WIDGET(window_));
}

void CardWindow::hide() {
    gtk_widget_hide(GTK_WIDGET(window_));
}

void CardWindow::present() {
    gtk_window_present(window_);
}

void CardWindow::setName(const std::string& name) {
    gtk_window_set_title(window_, name.c_str());
    card_.setName(name);
}

void CardWindow::setUnitsPerPoint(double units) {
    unitsPerPoint_ = units;
    card_.setUnitsPerPoint(units);
    rescale();
    outline();
}

void CardWindow::rescale() {
    if (std::exchange(scale_, wantedScale()) != scale_)
        display_->setScale(scale_);
}

double CardWindow::wantedScale() const {
    return unitsPerPoint_ * gtk_widget_get_scale_factor(GTK_WIDGET(window_));
}

/// The pointer meets only the card, and sees only the card.
void CardWindow::outline() {
    GtkWidget* window = GTK_WIDGET(window_);
    if (!mount_.placesWindows() || !gtk_widget_get_mapped(window))
        return;
    const double radius = Card::cornerRadius * unitsPerPoint_;
    const int width = card_.length(GTK_ORIENTATION_HORIZONTAL);
    const int height = card_.length(GTK_ORIENTATION_VERTICAL);
    gdk_surface_set_input_region(gtk_native_get_surface(GTK_NATIVE(window)),
                                 cardOutline(width, height, radius).get());
    mount_.cut(window_, {static_cast<double>(width), static_cast<double>(height)}, radius);
}

}  // namespace desktop
