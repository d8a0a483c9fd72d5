#include "desktop/card/CardElement.hpp"

#include "desktop/gtk/Connect.hpp"

#include <cmath>
#include <utility>

namespace desktop {

namespace {

/// The exact size, which is seldom whole: neighbours share an edge, and each keeps its side of it.
struct NurvaControl {
    GtkButton parent;
    double width;
    double height;
};
struct NurvaControlClass {
    GtkButtonClass parent;
};
G_DEFINE_TYPE(NurvaControl, nurva_control, GTK_TYPE_BUTTON)

gboolean controlContains(GtkWidget* widget, double x, double y) {
    const auto* control = reinterpret_cast<NurvaControl*>(widget);
    return x >= 0 && y >= 0 && x < control->width && y < control->height;
}

/// A button stays down for a while before it acts on a key; nothing of that would be seen here.
void controlActivate(GtkButton* button) {
    g_signal_emit_by_name(button, "clicked");
}

void nurva_control_init(NurvaControl* control) {
    control->width = 0;
    control->height = 0;
}

void nurva_control_class_init(NurvaControlClass* type) {
    GTK_WIDGET_CLASS(type)->contains = controlContains;
    GTK_BUTTON_CLASS(type)->activate = controlActivate;
    gtk_widget_class_set_css_name(GTK_WIDGET_CLASS(type), "nurva-control");
}

struct NurvaText {
    GtkWidget parent;
};
struct NurvaTextClass {
    GtkWidgetClass parent;
};
G_DEFINE_TYPE(NurvaText, nurva_text, GTK_TYPE_WIDGET)

void nurva_text_init(NurvaText* text) {
    gtk_widget_set_can_target(GTK_WIDGET(text), FALSE);
}

void nurva_text_class_init(NurvaTextClass* type) {
    gtk_widget_class_set_accessible_role(GTK_WIDGET_CLASS(type), GTK_ACCESSIBLE_ROLE_LABEL);
    gtk_widget_class_set_css_name(GTK_WIDGET_CLASS(type), "nurva-text");
}

GtkWidget* made(views::AccessibilityRole role, std::function<void()> press) {
    const bool isButton = role == views::AccessibilityRole::button;
    const GType type = isButton ? nurva_control_get_type() : nurva_text_get_type();
    auto* widget = static_cast<GtkWidget*>(g_object_new(type, nullptr));
    if (isButton)
        connect<void()>(widget, "clicked", std::move(press));
    return widget;
}

}  // namespace

CardElement::CardElement(views::AccessibilityRole role,
                         GtkWidget* card,
                         GtkWidget* previous,
                         std::function<void()> press)
    : role_(role), widget_(made(role, std::move(press))) {
    gtk_widget_insert_after(widget_, card, previous);
}

CardElement::~CardElement() {
    gtk_widget_unparent(widget_);
}

void CardElement::update(const remote::Element& element) {
    gtk_accessible_update_property(GTK_ACCESSIBLE(widget_), GTK_ACCESSIBLE_PROPERTY_LABEL,
                                   element.label.c_str(), -1);
    gtk_widget_set_sensitive(widget_, element.enabled);
}

void CardElement::allocate(const views::Rect& frame, double unitsPerPoint) {
    const double width = frame.width * unitsPerPoint;
    const double height = frame.height * unitsPerPoint;
    if (role_ == views::AccessibilityRole::button) {
        auto* control = reinterpret_cast<NurvaControl*>(widget_);
        control->width = width;
        control->height = height;
    }
    const graphene_point_t corner{static_cast<float>(frame.x * unitsPerPoint),
                                  static_cast<float>(frame.y * unitsPerPoint)};
    gtk_widget_measure(widget_, GTK_ORIENTATION_HORIZONTAL, -1, nullptr, nullptr, nullptr, nullptr);
    gtk_widget_allocate(widget_, static_cast<int>(std::ceil(width)),
                        static_cast<int>(std::ceil(height)), -1,
                        gsk_transform_translate(nullptr, &corner));
}

}  // namespace desktop
