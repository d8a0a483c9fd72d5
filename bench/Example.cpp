#include "Example.hpp"

#include "platform/canvas/PangoTextMeasurer.hpp"
#include "platform/foundation/Environment.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/views/scene/Card.hpp"
#include "platform/views/view/BuildEnvironment.hpp"
#include "platform/widgets/WidgetFamily.hpp"
#include "vistas/QueEstaPuestoVista.hpp"
#include "vistas/VolumenPorAppVista.hpp"

#include <fstream>
#include <iterator>
#include <string>

namespace example {

namespace {

template <class Vista>
views::Scene laidOut(const nurva::EstadoParaWidgets& snapshot, widgets::WidgetFamily family) {
    static const foundation::Environment environment = foundation::processEnvironment();
    static canvas::FontLibrary fonts;
    const canvas::PangoTextMeasurer measurer(fonts);
    const views::BuildScope scope(environment);
    return views::layOut(Vista{.e = snapshot}, {widgets::cardSize(family), widgets::contentMargin},
                         measurer);
}

}  // namespace

nurva::EstadoParaWidgets snapshot() {
    std::ifstream file(NURVA_EXAMPLE, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    auto snapshot = foundation::JSONDecoder().decode<nurva::EstadoParaWidgets>(text);
    snapshot.apps.push_back({"org.ejemplo.llamadas", "Videollamadas", 1, false, true});
    snapshot.cuando = foundation::processEnvironment().clock.now();
    return snapshot;
}

views::Scene volume(const nurva::EstadoParaWidgets& snapshot) {
    return laidOut<nurva::VolumenPorAppVista>(snapshot, widgets::WidgetFamily::systemMedium);
}

views::Scene whatIsOn(const nurva::EstadoParaWidgets& snapshot) {
    return laidOut<nurva::QueEstaPuestoVista>(snapshot, widgets::WidgetFamily::systemSmall);
}

}  // namespace example
