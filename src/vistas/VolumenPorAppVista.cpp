#include "vistas/VolumenPorAppVista.hpp"

#include "linea/Idioma.hpp"
#include "peticiones/SilenciarApp.hpp"
#include "platform/views/controls/Button.hpp"
#include "platform/views/controls/Image.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"
#include "platform/views/view/ViewList.hpp"
#include "vistas/BotonDePaso.hpp"
#include "vistas/Cabecera.hpp"
#include "vistas/Cara.hpp"
#include "vistas/JaladorChico.hpp"
#include "vistas/Sistema.hpp"
#include "vistas/WO.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace nurva {

using namespace views;

namespace {

View cabecera(const std::vector<AppCorta>& apps) {
    const std::int64_t sonando =
        std::count_if(apps.begin(), apps.end(), [](const AppCorta& app) { return app.suena; });
    return Cabecera{
        .rotulo = Idioma::texto("Volumen por app"),
        .alFinal = Text(Idioma::texto("%lld sonando", {sonando}))
                       .font(sistema(10.5))
                       .foregroundStyle(WO::texto3),
    };
}

View nivelEscrito(const AppCorta& app) {
    return Text(app.silenciada ? Idioma::texto("mudo") : porciento(app.nivel))
        .font(sistema(11, regular, FontDesign::monospaced))
        .foregroundStyle(app.silenciada ? WO::ambar : WO::texto2)
        .frame({.width = 36, .alignment = Alignment::trailing()});
}

View silenciador(const AppCorta& app, bool dejaCambiar) {
    constexpr RoundedRectangle forma{.cornerRadius = 7};
    const bool muda = app.silenciada;
    const View etiqueta =
        Image::systemName(muda ? "speaker.slash.fill" : "speaker.wave.2.fill")
            .font(sistema(10))
            .foregroundStyle(muda ? WO::ambar : WO::texto2)
            .frame({.width = 26, .height = 22})
            .background(muda ? WO::ambar.opacity(0.14) : WO::control, forma)
            .overlay(forma.strokeBorder(muda ? WO::ambar.opacity(0.35) : WO::filete, 1));
    return Button(intents::archived(SilenciarApp(app.id, !muda)), etiqueta)
        .disabled(!dejaCambiar)
        .accessibilityLabel(
            Idioma::texto(muda ? "Quitar silencio a %@" : "Silenciar %@", {app.nombre}));
}

View fila(const AppCorta& app, bool dejaCambiar) {
    const bool mueve = dejaCambiar && !app.silenciada;
    return HStack{.spacing = 7}({
        Text(app.nombre)
            .font(sistema(12, semibold))
            .foregroundStyle(app.silenciada ? WO::texto2 : WO::texto)
            .lineLimit(1)
            .frame({.width = 70, .alignment = Alignment::leading()}),
        BotonDePaso{
            .clave = app.id, .nivel = app.nivel, .subir = false, .activo = mueve && app.nivel > 0},
        JaladorChico{.nivel = app.silenciada ? 0 : app.nivel,
                     .silenciada = app.silenciada,
                     .clave = app.id,
                     .puedeCambiar = dejaCambiar},
        BotonDePaso{
            .clave = app.id, .nivel = app.nivel, .subir = true, .activo = mueve && app.nivel < 1},
        nivelEscrito(app),
        silenciador(app, dejaCambiar),
    });
}

View pie(bool dejaCambiar) {
    return Text(Idioma::texto(dejaCambiar ? "− y + de 10 en 10 · o toca la barra donde lo quieras"
                                          : "Solo mirar · se enciende en Ajustes → Widgets"))
        .font(sistema(10.5))
        .foregroundStyle(WO::texto3);
}

double enPorciento(double nivel) {
    return std::round(nivel * 100);
}

View contenido(const EstadoParaWidgets& e) {
    return VStack{.alignment = leading, .spacing = 9}({
        cabecera(e.apps),
        forEach(e.apps, [&](const AppCorta& app) { return fila(app, e.dejaCambiar); }),
        pie(e.dejaCambiar),
    });
}

}  // namespace

bool tienePorciento(double nivel) {
    constexpr double limite = 9223372036854775808.0;  // 2^63
    const double redondo = enPorciento(nivel);
    return redondo >= -limite && redondo < limite;
}

std::string porciento(double nivel) {
    if (!tienePorciento(nivel)) {
        std::fprintf(stderr, "nurva: a level of %g cannot be shown in per cent\n", nivel);
        std::abort();
    }
    return std::to_string(static_cast<std::int64_t>(enPorciento(nivel))) + "%";
}

View VolumenPorAppVista::body() const {
    return cara(e, contenido);
}

}  // namespace nurva
