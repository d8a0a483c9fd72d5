#include "desktop/card/StoppedNotice.hpp"

#include "platform/foundation/localization/Message.hpp"

namespace desktop {

namespace {

GtkWidget* line(const std::string& text, const char* cssClass) {
    GtkWidget* label = gtk_label_new(text.c_str());
    gtk_label_set_wrap(GTK_LABEL(label), TRUE);
    gtk_label_set_justify(GTK_LABEL(label), GTK_JUSTIFY_CENTER);
    gtk_widget_add_css_class(label, cssClass);
    return label;
}

}  // namespace

GtkWidget* stoppedNotice() {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 4);
    gtk_widget_add_css_class(box, "nurva-stopped");
    gtk_widget_set_valign(box, GTK_ALIGN_CENTER);
    gtk_widget_set_can_target(box, FALSE);
    gtk_box_append(GTK_BOX(box),
                   line(foundation::message("Este widget se ha parado"), "nurva-stopped-title"));
    gtk_box_append(GTK_BOX(box),
                   line(foundation::message("Vuelve solo en cuanto pueda."), "nurva-stopped-line"));
    return box;
}

}  // namespace desktop
