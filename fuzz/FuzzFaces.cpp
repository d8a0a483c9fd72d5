#include "Choices.hpp"
#include "estado/EstadoParaWidgets.hpp"
#include "extension/NurvaWidgets.hpp"
#include "platform/canvas/PangoTextMeasurer.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "platform/widgets/EntryRenderer.hpp"
#include "support/World.hpp"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

/// A text that JSON can carry: other bytes become question marks.
std::string text(Choices& choices) {
    static constexpr std::string_view pieces[] = {
        "Música", "العربية", "🎧", "e\u0301", "\u200F", " ", "\n", "%@", "−", "ﬁ", "Ａ", "\t", ""};
    std::string text;
    for (std::size_t count = choices.below(40); count > 0; --count)
        text += choices.truth() ? std::string(pieces[choices.below(std::size(pieces))])
                                : std::string(1, static_cast<char>(' ' + choices.below(95)));
    return text;
}

double number(Choices& choices) {
    switch (choices.below(4)) {
        case 0:
            return static_cast<double>(choices.below(101)) / 100;
        case 1:
            return static_cast<double>(choices.plain<std::int8_t>());
        default: {
            const auto any = choices.plain<double>();
            return std::isfinite(any) ? any : 0;
        }
    }
}

/// A level that can be shown in per cent; one that cannot stops the process by design.
double level(Choices& choices) {
    const double any = number(choices);
    return std::abs(any) < 9e16 ? any : 0;
}

std::vector<double> gains(Choices& choices) {
    std::vector<double> gains;
    for (std::size_t count = choices.below(20); count > 0; --count)
        gains.push_back(number(choices));
    return gains;
}

nurva::EstadoParaWidgets snapshot(Choices& choices) {
    nurva::EstadoParaWidgets estado{.perfil = text(choices),
                                    .razon = text(choices),
                                    .curva = gains(choices),
                                    .prendido = choices.truth(),
                                    .salida = text(choices),
                                    .salidaMedida = choices.truth(),
                                    .medidoHace = text(choices),
                                    .salidasSinMedir = choices.plain<std::int64_t>(),
                                    .dejaCambiar = choices.truth(),
                                    .acento = choices.plain<std::uint32_t>()};
    if (choices.truth())
        estado.cuartoAhora = number(choices);
    if (choices.truth())
        estado.cuartoAntes = number(choices);
    if (choices.truth())
        estado.idioma = choices.truth() ? "en" : text(choices);
    for (std::size_t count = choices.below(9); count > 0; --count)
        estado.perfiles.push_back({text(choices), text(choices), gains(choices), choices.truth()});
    for (std::size_t count = choices.below(9); count > 0; --count)
        estado.apps.push_back(
            {text(choices), text(choices), level(choices), choices.truth(), choices.truth()});
    estado.cuando = support::noon.addingTimeInterval(number(choices));
    return estado;
}

void requireSound(const views::Scene& scene) {
    std::size_t buttons = 0;
    for (const auto& element : scene.accessibility) {
        buttons += element.role == views::AccessibilityRole::button;
        require(std::isfinite(element.frame.x) && std::isfinite(element.frame.y) &&
                element.frame.width >= 0 && element.frame.height >= 0);
    }
    require(buttons == scene.controls.size());
}

}  // namespace

/// Any snapshot that can be published gives all four faces, in pixels.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static support::World world;
    static canvas::FontLibrary fonts;
    static const canvas::PangoTextMeasurer measurer(fonts);
    static canvas::PixelCanvas canvas(fonts);
    static const widgets::EntryRenderer renderer(world.environment, measurer);

    Choices choices({reinterpret_cast<const char*>(data), size});
    const double scale = static_cast<double>(1 + choices.below(12)) / 4;
    const auto estado = snapshot(choices);
    world.files.containers["group.org.nurva.Nurva"] = "/container";
    world.files.files["/container/estado.json"] = foundation::JSONEncoder().encode(estado);
    for (const auto& widget : nurva::NurvaWidgets()) {
        const auto family = widget.families().front();
        const auto entry = widget.snapshot({.environment = world.environment, .family = family});
        require(entry.hasState());
        const auto scene = renderer.render(
            entry,
            {.size = widgets::cardSize(family), .margin = widgets::contentMargin, .scale = scale});
        requireSound(scene);
        require(!canvas.draw(scene, scale).argb.empty());
    }
    return 0;
}
