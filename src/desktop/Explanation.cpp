#include "desktop/Explanation.hpp"

#include "desktop/gtk/Connect.hpp"
#include "platform/foundation/localization/Message.hpp"

#include <gtk/gtk.h>

namespace desktop {

void showWindowsExplanation() {
    using foundation::message;
    GtkWidget* window = gtk_window_new();
    GtkWidget* contents = gtk_box_new(GTK_ORIENTATION_VERTICAL, 18);
    GtkWidget* label = gtk_label_new(
        message("Este escritorio no deja poner widgets sobre el fondo, así que cada uno va en una "
                "ventana normal. Todo lo demás funciona igual.")
            .c_str());
    GtkWidget* button = gtk_button_new_with_label(message("Entendido").c_str());
    gtk_label_set_wrap(GTK_LABEL(label), TRUE);
    gtk_label_set_max_width_chars(GTK_LABEL(label), 44);
    gtk_widget_set_halign(button, GTK_ALIGN_CENTER);
    gtk_box_append(GTK_BOX(contents), label);
    gtk_box_append(GTK_BOX(contents), button);
    gtk_widget_set_margin_top(contents, 24);
    gtk_widget_set_margin_bottom(contents, 24);
    gtk_widget_set_margin_start(contents, 24);
    gtk_widget_set_margin_end(contents, 24);
    gtk_window_set_title(GTK_WINDOW(window), message("Widgets de Nurva").c_str());
    gtk_window_set_resizable(GTK_WINDOW(window), FALSE);
    gtk_window_set_child(GTK_WINDOW(window), contents);
    connect<void()>(button, "clicked", [window] { gtk_window_destroy(GTK_WINDOW(window)); });
    gtk_window_present(GTK_WINDOW(window));
}

}  // namespace desktop
