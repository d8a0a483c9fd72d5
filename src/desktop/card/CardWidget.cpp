#include "desktop/card/CardWidget.hpp"

#include "desktop/card/Card.hpp"

namespace desktop {

namespace {

struct NurvaCard {
    GtkWidget parent;
    Card* card;
};
struct NurvaCardClass {
    GtkWidgetClass parent;
};
G_DEFINE_TYPE(NurvaCard, nurva_card, GTK_TYPE_WIDGET)

Card* cardOf(GtkWidget* widget) {
    return reinterpret_cast<NurvaCard*>(widget)->card;
}

void measure(GtkWidget* widget,
             GtkOrientation orientation,
             int /*forSize*/,
             int* minimum,
             int* natural,
             int* /*minimumBaseline*/,
             int* /*naturalBaseline*/) {
    const Card* card = cardOf(widget);
    *minimum = *natural = card ? card->length(orientation) : 0;
}

void allocate(GtkWidget* widget, int width, int height, int /*baseline*/) {
    if (Card* card = cardOf(widget))
        card->allocate(width, height);
    // A menu has a window of its own, which finds its size when the card finds its.
    for (GtkWidget* child = gtk_widget_get_first_child(widget); child;
         child = gtk_widget_get_next_sibling(child))
        if (GTK_IS_POPOVER(child))
            gtk_popover_present(GTK_POPOVER(child));
}

void snapshot(GtkWidget* widget, GtkSnapshot* snapshot) {
    if (Card* card = cardOf(widget))
        card->snapshot(snapshot);
}

gboolean focus(GtkWidget* widget, GtkDirectionType direction) {
    static constexpr FocusMove moves[] = {FocusMove::forward, FocusMove::backward,
                                          FocusMove::up,      FocusMove::down,
                                          FocusMove::left,    FocusMove::right};
    Card* card = cardOf(widget);
    return card && card->moveFocus(moves[direction]);
}

void nurva_card_init(NurvaCard* widget) {
    widget->card = nullptr;
}

void nurva_card_class_init(NurvaCardClass* type) {
    GtkWidgetClass* widget = GTK_WIDGET_CLASS(type);
    widget->measure = measure;
    widget->size_allocate = allocate;
    widget->snapshot = snapshot;
    widget->focus = focus;
    gtk_widget_class_set_css_name(widget, "nurva-card");
}

}  // namespace

GtkWidget* newCardWidget(Card& card, bool isForUse) {
    const GtkAccessibleRole role = isForUse ? GTK_ACCESSIBLE_ROLE_GROUP : GTK_ACCESSIBLE_ROLE_IMG;
    auto* widget = static_cast<GtkWidget*>(
        g_object_new(nurva_card_get_type(), "accessible-role", role, "focusable", isForUse,
                     "halign", GTK_ALIGN_CENTER, "valign", GTK_ALIGN_CENTER, nullptr));
    reinterpret_cast<NurvaCard*>(widget)->card = &card;
    return widget;
}

void letGo(GtkWidget* cardWidget) {
    reinterpret_cast<NurvaCard*>(cardWidget)->card = nullptr;
}

}  // namespace desktop
