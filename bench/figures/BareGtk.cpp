// The least that a GTK program with as many windows as the widget host can be: the peer of its
// memory.

#include <gtk/gtk.h>

namespace {

void open(GtkApplication* application) {
    for (int i = 0; i < 4; ++i) {
        GtkWidget* const window = gtk_application_window_new(application);
        gtk_window_set_decorated(GTK_WINDOW(window), FALSE);
        gtk_window_set_default_size(GTK_WINDOW(window), i < 2 ? 170 : 364, 170);
        gtk_window_set_child(GTK_WINDOW(window), gtk_label_new("GTK"));
        gtk_widget_show(window);
    }
}

}  // namespace

int main() {
    g_setenv("GSK_RENDERER", "cairo", FALSE);
    GtkApplication* const application =
        gtk_application_new("org.example.Bare", G_APPLICATION_NON_UNIQUE);
    g_signal_connect(application, "activate", G_CALLBACK(open), nullptr);
    const int status = g_application_run(G_APPLICATION(application), 0, nullptr);
    g_object_unref(application);
    return status;
}
