#include "desktop/gallery/Pieces.hpp"

#include "desktop/gtk/Connect.hpp"

#include <utility>

namespace desktop {

GtkWidget* newText(const std::string& words, const char* cssClass) {
    GtkWidget* label = gtk_label_new(words.c_str());
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    gtk_label_set_wrap(GTK_LABEL(label), TRUE);
    gtk_widget_add_css_class(label, cssClass);
    return label;
}

GtkWidget* newButton(const std::string& words,
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

}  // namespace desktop
