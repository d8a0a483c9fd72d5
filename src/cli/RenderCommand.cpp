#include "cli/Commands.hpp"
#include "cli/Failure.hpp"
#include "cli/FileReport.hpp"
#include "cli/Message.hpp"
#include "cli/OutputFile.hpp"
#include "cli/RenderedEntry.hpp"
#include "cli/ShownLevels.hpp"
#include "cli/WidgetOptions.hpp"
#include "platform/canvas/PNG.hpp"
#include "platform/canvas/PangoTextMeasurer.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "platform/canvas/SVG.hpp"
#include "platform/widgets/EntryRenderer.hpp"

#include <CLI/CLI.hpp>
#include <unistd.h>

#include <cmath>
#include <iostream>
#include <memory>

namespace cli {

namespace {

struct RenderOptions {
    WidgetOptions widget;
    double scale = 2;
    std::optional<std::string> familySize;
    std::string format = "png";
    std::string output;
};

/// A size written as WxH, in points. Throws Failure.
views::Size parsedSize(const std::string& text) {
    double width = 0;
    double height = 0;
    char rest = 0;
    const bool isSize = std::sscanf(text.c_str(), "%lfx%lf%c", &width, &height, &rest) == 2;
    if (!isSize || !(width > 0) || !(height > 0) || std::isinf(width) || std::isinf(height))
        throw Failure(ExitStatus::wrongUse,
                      message("«%@» no es un tamaño; escribe por ejemplo 170x170", {text}));
    return {width, height};
}

RenderedEntry renderedEntry(const RenderOptions& options,
                            const foundation::Environment& environment,
                            canvas::FontLibrary& fonts) {
    const widgets::StaticConfiguration widget = options.widget.widget();
    const widgets::WidgetFamily family = widget.families().front();
    const auto timeline = widget.timeline({.environment = environment, .family = family});
    const views::Size size =
        options.familySize ? parsedSize(*options.familySize) : widgets::cardSize(family);
    const canvas::PangoTextMeasurer measurer(fonts);
    const widgets::EntryRenderer renderer(environment, measurer);
    const widgets::AnyEntry& entry = timeline.entries.front();
    requireLevelsToShow(widget, entry, environment.clock.now());
    return {
        .kind = options.widget.kind,
        .family = family,
        .scale = options.scale,
        .entry = entry,
        .reloadAfter = timeline.policy.earliest,
        .scene = renderer.render(
            entry, {.size = size, .margin = widgets::contentMargin, .scale = options.scale}),
    };
}

std::string drawn(const RenderedEntry& rendered,
                  const std::string& format,
                  canvas::FontLibrary& fonts) {
    if (format == "json")
        return json(rendered);
    if (format == "svg")
        return canvas::writeSVG(rendered.scene, rendered.scale, fonts);
    canvas::PixelCanvas pixels(fonts);
    return canvas::encodePNG(pixels.draw(rendered.scene, rendered.scale));
}

void render(const RenderOptions& options) {
    if (!(options.scale > 0) || std::isinf(options.scale))
        throw Failure(ExitStatus::wrongUse, message("la escala tiene que ser mayor que 0"));
    if (options.output.empty() && options.format == "png" && ::isatty(STDOUT_FILENO))
        throw Failure(ExitStatus::wrongUse,
                      message("una imagen no se muestra en la terminal; usa --output ARCHIVO"));
    const OptionsEnvironment environment(options.widget);
    canvas::FontLibrary fonts;
    const RenderedEntry rendered = renderedEntry(options, environment, fonts);
    if (!rendered.entry.hasState()) {
        if (const auto reason = whyNoSnapshot(environment, options.widget.state))
            std::cerr << "nurva: " << *reason << '\n';
    }
    std::string bytes;
    try {
        bytes = drawn(rendered, options.format, fonts);
    } catch (const canvas::EmptyPicture&) {
        throw Failure(ExitStatus::wrongUse, message("la imagen sería demasiado pequeña"));
    } catch (const std::invalid_argument&) {
        throw Failure(ExitStatus::wrongUse, message("la imagen sería demasiado grande"));
    }
    writeOutput(options.output, bytes);
}

}  // namespace

void addRender(CLI::App& app) {
    const auto options = std::make_shared<RenderOptions>();
    CLI::App& command = *app.add_subcommand("render", message("Dibuja un widget"));
    options->widget.addKind(command);
    options->widget.addState(command);
    options->widget.addNow(command);
    command.add_option("--scale", options->scale, message("Píxeles por punto; si falta, 2"));
    command.add_option("--family-size", options->familySize,
                       message("Otro tamaño de la tarjeta, en puntos: ANCHOxALTO"));
    command.add_option("--format", options->format, message("png, svg o json; si falta, png"))
        ->check(CLI::IsMember({"png", "svg", "json"}))
        ->option_text(message("TEXTO"));
    command
        .add_option("-o,--output", options->output,
                    message("Archivo donde se escribe; si falta, la salida"))
        ->type_name("FILE");
    command.callback([options] { render(*options); });
}

}  // namespace cli
