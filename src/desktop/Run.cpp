#include "desktop/Run.hpp"

#include "desktop/Desk.hpp"
#include "desktop/Options.hpp"
#include "desktop/Style.hpp"
#include "desktop/gtk/Connect.hpp"
#include "desktop/gtk/Reference.hpp"
#include "desktop/mount/Mount.hpp"
#include "desktop/mount/WindowingSystem.hpp"
#include "platform/foundation/EnvironmentVariables.hpp"
#include "platform/foundation/localization/Message.hpp"

#include <gio/gio.h>
#include <glib-unix.h>
#include <gtk/gtk.h>

#include <csignal>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

namespace desktop {

namespace {

using foundation::message;

constexpr const char* applicationIdentifier = "org.nurva.WidgetHost";

void complain(const std::string& text) {
    std::cerr << "nurva-desktop: " << text << std::endl;
}

gboolean quit(gpointer application) {
    g_application_quit(G_APPLICATION(application));
    return G_SOURCE_CONTINUE;
}

/// A signal that ends the process, as a source of the main loop for as long as this lives.
class EndingSignal {
  public:
    EndingSignal(int number, GApplication* application)
        : source_(g_unix_signal_add(number, quit, application)) {}
    EndingSignal(const EndingSignal&) = delete;
    EndingSignal& operator=(const EndingSignal&) = delete;
    ~EndingSignal() { g_source_remove(source_); }

  private:
    unsigned source_;
};

/// Widgets are still there to be looked at when the session bus has ended, and may see it again.
void outliveTheBus(GApplication* application) {
    if (GDBusConnection* bus = g_application_get_dbus_connection(application))
        g_dbus_connection_set_exit_on_close(bus, FALSE);
}

/// All there is while widgets are on the desktop.
struct Host {
    Host(const Options& options,
         const std::filesystem::path& placement,
         const MakeSource& makeSource,
         GApplication* application)
        : mount(chooseMount(gdk_display_get_default(),
                            options.windows ? Wanted::windows : Wanted::desktop)),
          source(makeSource(options.session)),
          desk({.display = gdk_display_get_default(),
                .scale = options.scale,
                .onEmpty = [application] { g_application_quit(application); }},
               *source,
               *mount,
               widgethost::PlacementFile(placement, complain)) {}

    std::unique_ptr<Mount> mount;
    std::unique_ptr<WidgetSource> source;
    Desk desk;
};

int runWithDisplay(const Options& options,
                   const std::filesystem::path& placement,
                   const MakeSource& makeSource) {
    const auto application = adopted(g_application_new(applicationIdentifier, GApplicationFlags{}));
    GApplication* handle = application.get();
    std::optional<Host> host;
    connect<void()>(handle, "activate", [&] {
        const bool isFirst = !host;
        if (isFirst) {
            installStyle(gdk_display_get_default());
            outliveTheBus(handle);
            host.emplace(options, placement, makeSource, handle);
            g_application_hold(handle);
            host->desk.open();
        }
        if (!isFirst || options.gallery)
            host->desk.openGallery();
    });
    const EndingSignal interrupt(SIGINT, handle);
    const EndingSignal terminate(SIGTERM, handle);
    const int status = g_application_run(handle, 0, nullptr);
    host.reset();
    return status;
}

}  // namespace

int run(int argumentCount, char** arguments, const MakeSource& makeSource) {
    try {
        const Options options = Options::of(argumentCount, arguments);
        const auto placement =
            widgethost::PlacementFile::path(foundation::EnvironmentVariables::ofProcess());
        if (!placement) {
            complain(message("no se sabe cuál es tu carpeta: falta HOME"));
            return 1;
        }
        if (!openDisplay(options.windows)) {
            complain(
                message("no hay pantalla: abre una sesión gráfica o define DISPLAY o "
                        "WAYLAND_DISPLAY"));
            return 1;
        }
        return runWithDisplay(options, *placement, makeSource);
    } catch (const std::invalid_argument& error) {
        complain(error.what());
        return 2;
    } catch (const std::exception& error) {
        complain(error.what());
        return 1;
    }
}

}  // namespace desktop
