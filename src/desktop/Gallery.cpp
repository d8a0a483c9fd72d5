#include "desktop/Gallery.hpp"

#include "desktop/Connect.hpp"
#include "platform/foundation/Message.hpp"

#include <algorithm>
#include <limits>
#include <utility>

namespace desktop {

namespace {

using foundation::message;

GtkWidget* column(int spacing) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, spacing);
    gtk_widget_set_valign(box, GTK_ALIGN_CENTER);
    return box;
}

GtkWidget* text(const std::string& words, const char* cssClass) {
    GtkWidget* label = gtk_label_new(words.c_str());
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    gtk_label_set_wrap(GTK_LABEL(label), TRUE);
    gtk_widget_add_css_class(label, cssClass);
    return label;
}

/// A button that says what it does by itself, or beside a name, of what.
GtkWidget* button(const std::string& words,
                  const std::string& spoken,
                  std::function<void()> press) {
    GtkWidget* button = gtk_button_new_with_label(words.c_str());
    gtk_widget_set_halign(button, GTK_ALIGN_START);
    gtk_widget_set_valign(button, GTK_ALIGN_CENTER);
    gtk_accessible_update_property(GTK_ACCESSIBLE(button), GTK_ACCESSIBLE_PROPERTY_LABEL,
                                   spoken.c_str(), -1);
    connect<void()>(button, "clicked", std::move(press));
    return button;
}

void removeChildren(GtkWidget* box) {
    while (GtkWidget* child = gtk_widget_get_first_child(box))
        gtk_box_remove(GTK_BOX(box), child);
}

void setMargins(GtkWidget* widget, int margin) {
    gtk_widget_set_margin_top(widget, margin);
    gtk_widget_set_margin_bottom(widget, margin);
    gtk_widget_set_margin_start(widget, margin);
    gtk_widget_set_margin_end(widget, margin);
}

}  // namespace

Gallery::Gallery(WidgetSource& source, double unitsPerPoint, bool canPlace, Requests requests)
    : source_(source),
      unitsPerPoint_(unitsPerPoint),
      canPlace_(canPlace),
      requests_(std::move(requests)),
      window_(GTK_WINDOW(gtk_window_new())),
      offers_(gtk_box_new(GTK_ORIENTATION_VERTICAL, 18)),
      notice_(text({}, "nurva-gallery-name")),
      placed_(gtk_box_new(GTK_ORIENTATION_VERTICAL, 6)) {
    gtk_window_set_title(window_, message("Widgets de Nurva").c_str());
    gtk_window_set_default_size(window_, 700, 620);
    GtkWidget* contents = gtk_box_new(GTK_ORIENTATION_VERTICAL, 18);
    setMargins(contents, 24);
    gtk_box_append(GTK_BOX(contents), offers_);
    gtk_box_append(GTK_BOX(contents), gtk_separator_new(GTK_ORIENTATION_HORIZONTAL));
    gtk_box_append(GTK_BOX(contents), notice_);
    gtk_widget_set_visible(notice_, FALSE);
    gtk_box_append(GTK_BOX(contents), placed_);
    GtkWidget* scrolled = gtk_scrolled_window_new();
    gtk_scrolled_window_set_child(GTK_SCROLLED_WINDOW(scrolled), contents);
    gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scrolled), GTK_POLICY_NEVER,
                                   GTK_POLICY_AUTOMATIC);
    gtk_window_set_child(window_, scrolled);
    connect<gboolean()>(window_, "close-request", [this] {
        requests_.close();
        return TRUE;
    });
    GtkEventController* keys = gtk_event_controller_key_new();
    connect<gboolean(unsigned, unsigned, GdkModifierType)>(
        keys, "key-pressed", [this](unsigned key, unsigned, GdkModifierType modifiers) {
            if (key == GDK_KEY_F6)
                requests_.focusCard((modifiers & GDK_SHIFT_MASK) != 0 ? -1 : 1);
            else if (key == GDK_KEY_Escape)
                requests_.close();
            return static_cast<gboolean>(key == GDK_KEY_F6 || key == GDK_KEY_Escape);
        });
    gtk_widget_add_controller(GTK_WIDGET(window_), keys);
    showWidgets();
}

Gallery::~Gallery() {
    samples_.clear();
    gtk_window_destroy(window_);
}

void Gallery::present() {
    gtk_window_present(window_);
}

void Gallery::showWidgets() {
    samples_.clear();
    removeChildren(offers_);
    for (const remote::WidgetDescription& widget : source_.gallery())
        gtk_box_append(GTK_BOX(offers_), offer(widget));
    if (source_.gallery().empty())
        gtk_box_append(GTK_BOX(offers_),
                       text(message("Aún no hay ningún widget que enseñar."), "dim-label"));
}

GtkWidget* Gallery::offer(const remote::WidgetDescription& widget) {
    GtkWidget* words = column(6);
    gtk_widget_set_hexpand(words, TRUE);
    gtk_box_append(GTK_BOX(words), text(widget.displayName, "nurva-gallery-name"));
    gtk_box_append(GTK_BOX(words), text(widget.description, "dim-label"));
    gtk_box_append(GTK_BOX(words),
                   button(message("Añadir"), message("Añadir %@", {widget.displayName}),
                          [this, kind = widget.kind] { requests_.add(kind); }));
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 24);
    gtk_box_append(GTK_BOX(row), sample(widget));
    gtk_box_append(GTK_BOX(row), words);
    return row;
}

/// A picture of the widget as it looks now; to click on it adds it too.
GtkWidget* Gallery::sample(const remote::WidgetDescription& widget) {
    Sample& sample = samples_.emplace_back();
    sample.card = std::make_unique<Card>(message("Así se ve: %@", {widget.displayName}),
                                         widgets::cardSize(widget.families.front()));
    Card& card = *sample.card;
    card.setUnitsPerPoint(unitsPerPoint_);
    const double scale = unitsPerPoint_ * gtk_widget_get_scale_factor(GTK_WIDGET(window_));
    sample.display = source_.preview(widget.kind, scale,
                                     [&card](const widgethost::Shown& shown) { card.show(shown); });
    GtkGesture* click = gtk_gesture_click_new();
    connect<void(int, double, double)>(
        click, "released",
        [this, kind = widget.kind](int, double, double) { requests_.add(kind); });
    gtk_widget_add_controller(card.widget(), GTK_EVENT_CONTROLLER(click));

    GtkWidget* frame = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    const views::Size widest = widgets::cardSize(widgets::WidgetFamily::systemMedium);
    gtk_widget_set_size_request(frame, static_cast<int>(widest.width * unitsPerPoint_), -1);
    gtk_widget_set_hexpand(card.widget(), TRUE);
    gtk_widget_set_hexpand(frame, FALSE);
    gtk_box_append(GTK_BOX(frame), card.widget());
    return frame;
}

void Gallery::showPlaced(const std::vector<std::string>& names) {
    if (names == names_ && gtk_widget_get_first_child(placed_))
        return;
    gtk_widget_set_visible(notice_, FALSE);
    const std::size_t focused = focusedRow();
    names_ = names;
    removeButtons_.clear();
    removeChildren(placed_);
    gtk_box_append(GTK_BOX(placed_), text(message("En el escritorio"), "nurva-gallery-name"));
    if (names.empty())
        gtk_box_append(GTK_BOX(placed_), text(message("Ninguno todavía."), "dim-label"));
    for (std::size_t i = 0; i < names.size(); ++i)
        gtk_box_append(GTK_BOX(placed_), placedRow(i));
    if (canPlace_ && !names.empty())
        gtk_box_append(GTK_BOX(placed_), button(message("Recolocar todos"),
                                                message("Recolocar todos"), requests_.placeAnew));
    // Whoever takes away one after the other with the keyboard goes on in the same place.
    if (focused < removeButtons_.size() + 1 && !removeButtons_.empty())
        gtk_widget_grab_focus(removeButtons_[std::min(focused, removeButtons_.size() - 1)]);
}

void Gallery::say(const std::string& notice) {
    gtk_label_set_text(GTK_LABEL(notice_), notice.c_str());
    gtk_widget_set_visible(notice_, TRUE);
}

GtkWidget* Gallery::placedRow(std::size_t index) {
    GtkWidget* name = text(names_[index], "nurva-placed-name");
    gtk_widget_set_hexpand(name, TRUE);
    GtkWidget* remove = button(message("Quitar"), message("Quitar %@", {names_[index]}),
                               [this, index] { requests_.remove(index); });
    removeButtons_.push_back(remove);
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 12);
    gtk_box_append(GTK_BOX(row), name);
    gtk_box_append(GTK_BOX(row), remove);
    return row;
}

/// The placed widget whose button has the keyboard's focus; beyond all of them for none.
std::size_t Gallery::focusedRow() const {
    for (std::size_t i = 0; i < removeButtons_.size(); ++i)
        if (gtk_widget_is_focus(removeButtons_[i]))
            return i;
    return std::numeric_limits<std::size_t>::max();
}

}  // namespace desktop
