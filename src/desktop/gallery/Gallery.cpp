#include "desktop/gallery/Gallery.hpp"

#include "desktop/gallery/Pieces.hpp"
#include "desktop/gtk/Connect.hpp"
#include "platform/foundation/localization/Message.hpp"

#include <utility>

namespace desktop {

using foundation::message;

Gallery::Gallery(WidgetSource& source, double unitsPerPoint, bool canPlace, Requests requests)
    : requests_(std::move(requests)),
      window_(GTK_WINDOW(gtk_window_new())),
      offers_(source, unitsPerPoint, requests_.add),
      notice_(newText({}, "nurva-gallery-name")),
      placed_({.remove = requests_.remove, .placeAnew = canPlace ? requests_.placeAnew : nullptr}) {
    gtk_window_set_title(window_, message("Widgets de Nurva").c_str());
    gtk_window_set_default_size(window_, 700, 620);
    GtkWidget* contents = gtk_box_new(GTK_ORIENTATION_VERTICAL, 18);
    gtk_widget_add_css_class(contents, "nurva-gallery");
    for (GtkWidget* part : {offers_.widget(), gtk_separator_new(GTK_ORIENTATION_HORIZONTAL),
                            notice_, placed_.widget()})
        gtk_box_append(GTK_BOX(contents), part);
    gtk_widget_set_visible(notice_, FALSE);
    GtkWidget* scrolled = gtk_scrolled_window_new();
    gtk_scrolled_window_set_child(GTK_SCROLLED_WINDOW(scrolled), contents);
    gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scrolled), GTK_POLICY_NEVER,
                                   GTK_POLICY_AUTOMATIC);
    gtk_window_set_child(window_, scrolled);
    listen();
}

Gallery::~Gallery() {
    gtk_window_destroy(window_);
}

void Gallery::listen() {
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
}

void Gallery::present() {
    gtk_window_present(window_);
}

void Gallery::showWidgets() {
    offers_.show();
}

void Gallery::setUnitsPerPoint(double units) {
    offers_.setUnitsPerPoint(units);
}

void Gallery::showPlaced(const std::vector<std::string>& names) {
    if (names == names_)
        return;
    names_ = names;
    gtk_widget_set_visible(notice_, FALSE);
    placed_.show(names);
}

void Gallery::say(const std::string& notice) {
    gtk_label_set_text(GTK_LABEL(notice_), notice.c_str());
    gtk_widget_set_visible(notice_, TRUE);
}

}  // namespace desktop
