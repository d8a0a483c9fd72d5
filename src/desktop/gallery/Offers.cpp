#include "desktop/gallery/Offers.hpp"

#include "desktop/gallery/Pieces.hpp"
#include "desktop/gtk/Connect.hpp"
#include "platform/foundation/localization/Message.hpp"

#include <utility>

namespace desktop {

using foundation::message;

Offers::Offers(WidgetSource& source, double unitsPerPoint, Add add)
    : source_(source),
      unitsPerPoint_(unitsPerPoint),
      add_(std::move(add)),
      box_(gtk_box_new(GTK_ORIENTATION_VERTICAL, 18)) {
    show();
}

void Offers::show() {
    samples_.clear();
    removeChildren(box_);
    for (const remote::WidgetDescription& widget : source_.gallery())
        gtk_box_append(GTK_BOX(box_), offer(widget));
    if (source_.gallery().empty())
        gtk_box_append(GTK_BOX(box_),
                       newText(message("Aún no hay ningún widget que enseñar."), "dim-label"));
}

void Offers::setUnitsPerPoint(double units) {
    unitsPerPoint_ = units;
    show();
}

GtkWidget* Offers::offer(const remote::WidgetDescription& widget) {
    GtkWidget* words = gtk_box_new(GTK_ORIENTATION_VERTICAL, 6);
    gtk_widget_set_valign(words, GTK_ALIGN_CENTER);
    gtk_widget_set_hexpand(words, TRUE);
    gtk_box_append(GTK_BOX(words), newText(widget.displayName, "nurva-gallery-name"));
    gtk_box_append(GTK_BOX(words), newText(widget.description, "dim-label"));
    gtk_box_append(GTK_BOX(words),
                   newButton(message("Añadir"), message("Añadir %@", {widget.displayName}),
                             [this, kind = widget.kind] { add_(kind); }));
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 24);
    gtk_box_append(GTK_BOX(row), sample(widget));
    gtk_box_append(GTK_BOX(row), words);
    return row;
}

/// A picture of the widget as it looks now; to click on it adds it too.
GtkWidget* Offers::sample(const remote::WidgetDescription& widget) {
    Sample& sample = samples_.emplace_back();
    sample.card = std::make_unique<Card>(message("Así se ve: %@", {widget.displayName}),
                                         widgets::cardSize(widget.families.front()));
    Card& card = *sample.card;
    card.setUnitsPerPoint(unitsPerPoint_);
    const double scale = unitsPerPoint_ * gtk_widget_get_scale_factor(box_);
    sample.display = source_.preview(widget.kind, scale,
                                     [&card](const widgethost::Shown& shown) { card.show(shown); });
    GtkGesture* click = gtk_gesture_click_new();
    connect<void(int, double, double)>(
        click, "released", [this, kind = widget.kind](int, double, double) { add_(kind); });
    gtk_widget_add_controller(card.widget(), GTK_EVENT_CONTROLLER(click));

    GtkWidget* frame = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    const views::Size widest = widgets::cardSize(widgets::WidgetFamily::systemMedium);
    gtk_widget_set_size_request(frame, static_cast<int>(widest.width * unitsPerPoint_), -1);
    gtk_widget_set_hexpand(card.widget(), TRUE);
    gtk_widget_set_hexpand(frame, FALSE);
    gtk_box_append(GTK_BOX(frame), card.widget());
    return frame;
}

}  // namespace desktop
