#include "desktop/Options.hpp"

#include "platform/foundation/bundle/InstalledProgram.hpp"
#include "platform/foundation/localization/Message.hpp"

#include <glib.h>

#include <limits>
#include <memory>
#include <stdexcept>

namespace desktop {

namespace {

using foundation::message;

constexpr double smallestScale = 0.5;
constexpr double largestScale = 8;
constexpr double notGiven = -std::numeric_limits<double>::infinity();

struct FreeContext {
    void operator()(GOptionContext* context) const { g_option_context_free(context); }
};

constexpr const char* ownExtension = "nurva-widgets-extension";

}  // namespace

Options Options::of(int argumentCount, char** arguments) {
    gboolean windows = FALSE;
    gboolean gallery = FALSE;
    gboolean requireSandbox = FALSE;
    double scale = notGiven;
    char* extension = nullptr;
    const std::string aboutWindows = message("Pone los widgets en ventanas normales");
    const std::string aboutGallery = message("Abre la galería de widgets");
    const std::string aboutScale = message("Píxeles por punto, si no valen los de la pantalla");
    const std::string aboutExtension = message("El programa de la extensión");
    const std::string aboutSandbox = message("No arranca la extensión sin su aislamiento entero");
    const std::string number = message("NÚMERO");
    const std::string file = message("ARCHIVO");
    const GOptionEntry entries[] = {
        {"windows", 0, 0, G_OPTION_ARG_NONE, &windows, aboutWindows.c_str(), nullptr},
        {"gallery", 0, 0, G_OPTION_ARG_NONE, &gallery, aboutGallery.c_str(), nullptr},
        {"scale", 0, 0, G_OPTION_ARG_DOUBLE, &scale, aboutScale.c_str(), number.c_str()},
        {"extension", 0, 0, G_OPTION_ARG_FILENAME, &extension, aboutExtension.c_str(),
         file.c_str()},
        {"require-sandbox", 0, 0, G_OPTION_ARG_NONE, &requireSandbox, aboutSandbox.c_str(),
         nullptr},
        {},
    };
    const std::unique_ptr<GOptionContext, FreeContext> context(g_option_context_new(nullptr));
    g_option_context_set_summary(context.get(),
                                 message("Pone los widgets de Nurva en el escritorio").c_str());
    g_option_context_add_main_entries(context.get(), entries, nullptr);
    GError* error = nullptr;
    if (!g_option_context_parse(context.get(), &argumentCount, &arguments, &error)) {
        const std::string detail = error->message;
        g_error_free(error);
        throw std::invalid_argument(message("un valor de la orden no sirve: %@", {detail}));
    }
    const std::unique_ptr<char, decltype(&g_free)> path(extension, g_free);
    if (argumentCount > 1)
        throw std::invalid_argument(
            message("sobra algo en la orden: %@", {std::string(arguments[1])}));
    if (scale != notGiven && !(scale >= smallestScale && scale <= largestScale))
        throw std::invalid_argument(message("la escala va de 0.5 a 8"));
    Options options{.windows = windows != FALSE, .gallery = gallery != FALSE};
    if (scale != notGiven)
        options.scale = scale;
    options.session.requiresSandbox = requireSandbox != FALSE;
    options.session.extension =
        path ? path.get() : foundation::installedProgram(ownExtension).value_or(ownExtension);
    return options;
}

}  // namespace desktop
