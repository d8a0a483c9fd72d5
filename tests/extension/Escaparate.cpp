#include "extension/Escaparate.hpp"

#include "support/World.hpp"

#include <algorithm>
#include <utility>

namespace nurva {

namespace {

/// The snapshot of a host application in full swing.
EstadoParaWidgets ejemplo() {
    EstadoParaWidgets estado = EstadoParaWidgets::porDefecto(support::noon);
    estado.perfil = "Voz clara";
    estado.razon = "Suena un pódcast";
    estado.curva = {-3.5, -2.5, -1.5, -0.5, 0.5, 1.5, 3, 4, 4.5, 3.5, 2, 0.5, -1};
    estado.salida = "Audífonos de Marta";
    estado.dejaCambiar = true;
    return estado;
}

template <class Cambio>
EstadoParaWidgets ejemploCon(const Cambio& cambiar) {
    EstadoParaWidgets estado = ejemplo();
    cambiar(estado);
    return estado;
}

struct Lengua {
    std::string nombre;
    std::string leyenda;
    std::string codigo;
};

/// Adds the sample of this name in every language that the host application may choose besides
/// Spanish.
void agregarLenguas(std::vector<Muestra>& muestras, const std::string& nombre) {
    const std::vector<Lengua> lenguas{
        {"ingles", "English", "en"},       {"catalan", "Catalan", "ca"},
        {"portugues", "Portuguese", "pt"}, {"frances", "French", "fr"},
        {"aleman", "German", "de"},        {"italiano", "Italian", "it"}};
    const Muestra muestra = *std::find_if(muestras.begin(), muestras.end(),
                                          [&](const Muestra& m) { return m.nombre == nombre; });
    for (const Lengua& lengua : lenguas) {
        Muestra otra = muestra;
        otra.nombre += "-" + lengua.nombre;
        otra.leyenda += ", in " + lengua.leyenda;
        otra.estado->idioma = lengua.codigo;
        muestras.push_back(std::move(otra));
    }
}

std::vector<Muestra> queEstaPuesto() {
    const std::string kind = "nurva.queEstaPuesto";
    std::vector<Muestra> muestras{
        {"que-esta-puesto-vigente", "Current", kind, ejemplo()},
        {"que-esta-puesto-cerrado", "Closed for 15 minutes", kind,
         ejemploCon([](auto& e) { e.cuando = support::noon.addingTimeInterval(-900); })},
        {"que-esta-puesto-sin-estado", "Never seen", kind, std::nullopt},
        {"que-esta-puesto-apagado", "Equalizer off", kind,
         ejemploCon([](auto& e) { e.prendido = false; })},
        {"que-esta-puesto-otro-acento", "Another accent, and a curve beyond its scale", kind,
         ejemploCon([](auto& e) {
             e.acento = 0xF06EAA;
             e.curva = {12, 9, 6, 3, 0, -3, -6, -9, -12, -15, -9, 0, 9, 15};
         })},
        {"que-esta-puesto-curva-vacia", "No curve", kind,
         ejemploCon([](auto& e) { e.curva = {}; })},
        {"que-esta-puesto-textos-vacios", "Empty texts", kind,
         ejemploCon([](auto& e) { e.perfil = e.razon = e.salida = ""; })},
        {"que-esta-puesto-textos-largos", "Long texts", kind, ejemploCon([](auto& e) {
             e.perfil = "Un perfil con un nombre muy largo";
             e.razon =
                 "Porque suena un pódcast muy largo en la aplicación de siempre, y por nada más";
             e.salida = "Los audífonos inalámbricos nuevos de Marta";
         })},
        {"que-esta-puesto-otros-alfabetos", "Other alphabets", kind, ejemploCon([](auto& e) {
             e.perfil = "Μουσική";
             e.razon = "Đang phát nhạc · Żółć · Ĝardeno";
             e.salida = "Наушники";
         })},
        {"que-esta-puesto-provisional", "Placeholder, before anything is known", kind,
         EstadoParaWidgets::porDefecto(support::noon)},
    };
    agregarLenguas(muestras, "que-esta-puesto-cerrado");
    return muestras;
}

AppCorta app(const std::string& nombre, double nivel, bool silenciada = false, bool suena = true) {
    return {
        .id = nombre, .nombre = nombre, .nivel = nivel, .silenciada = silenciada, .suena = suena};
}

/// A sample of the volume widget with these applications.
Muestra volumen(const std::string& nombre, const std::string& leyenda, std::vector<AppCorta> apps) {
    return {"volumen-" + nombre, leyenda, "nurva.volumenPorApp",
            ejemploCon([&](auto& e) { e.apps = std::move(apps); })};
}

std::vector<Muestra> volumenPorApp() {
    const std::string kind = "nurva.volumenPorApp";
    const std::vector<AppCorta> tres{app("Música", 0.8), app("Navegador", 0.45),
                                     app("Mensajes", 0.6, true, false)};
    std::vector<AppCorta> ocho;
    for (int i = 1; i <= 8; ++i)
        ocho.push_back(app("Aplicación " + std::to_string(i), i / 8.0));
    std::vector<Muestra> muestras{
        volumen("tres", "Three applications", tres),
        volumen("ninguna", "None", {}),
        volumen("una", "One", {app("Música", 0.5)}),
        volumen("cuatro", "Four, as many as fit",
                {app("Música", 0.8), app("Cine", 0.125), app("Voz", 0.285), app("Juego", 1)}),
        volumen("ocho", "More than fit", ocho),
        volumen("mudas", "All muted",
                {app("Música", 0.6, true), app("Cine", 0, true), app("Voz", 1, true)}),
        volumen("extremos", "Silent, barely heard and full",
                {app("Cero", 0), app("Dos", 0.02), app("Lleno", 1)}),
        volumen("fuera", "Levels beyond silent and full",
                {app("De más", 1.7), app("De menos", -0.2), app("Justo", 0.5)}),
        volumen("nombres", "Long names and other alphabets",
                {app("Un reproductor de música", 0.5), app("موسيقى", 0.5),
                 app("Μουσική και ήχος", 0.5)}),
        {"volumen-solo-mirar", "For looking only", kind, ejemploCon([&](auto& e) {
             e.apps = tres;
             e.dejaCambiar = false;
         })},
        {"volumen-cerrado", "Closed for 15 minutes", kind,
         ejemploCon([](auto& e) { e.cuando = support::noon.addingTimeInterval(-900); })},
        {"volumen-sin-estado", "Never seen", kind, std::nullopt},
    };
    agregarLenguas(muestras, "volumen-tres");
    agregarLenguas(muestras, "volumen-solo-mirar");
    return muestras;
}

PerfilCorto perfil(const std::string& nombre, std::vector<double> curva, bool puesto = false) {
    return {.id = nombre, .nombre = nombre, .curva = std::move(curva), .puesto = puesto};
}

/// A sample of the profile widget with these profiles.
Muestra perfiles(const std::string& nombre,
                 const std::string& leyenda,
                 std::vector<PerfilCorto> perfiles) {
    return {"perfiles-" + nombre, leyenda, "nurva.ponerUnPerfil",
            ejemploCon([&](auto& e) { e.perfiles = std::move(perfiles); })};
}

std::vector<Muestra> ponerUnPerfil() {
    const std::string kind = "nurva.ponerUnPerfil";
    const std::vector<double> subida{-6, -3, 0, 3, 6};
    const std::vector<double> onda{0, 6, 0, -6, 0, 6, 0};
    const std::vector<PerfilCorto> cuatro{perfil("Música", onda), perfil("Voz clara", subida, true),
                                          perfil("Cine", {12, 6, 0, 0, 3}),
                                          perfil("Noche", {-12, 0})};
    std::vector<Muestra> muestras{
        perfiles("cuatro", "Four profiles", cuatro),
        perfiles("ninguno", "None", {}),
        perfiles("uno", "One", {perfil("Voz clara", subida, true)}),
        perfiles("nueve", "Nine", std::vector<PerfilCorto>(9, perfil("Perfil", onda))),
        perfiles("ninguno-puesto", "None of them applied",
                 {perfil("Música", onda), perfil("Cine", subida)}),
        perfiles("dos-puestos", "Two of them applied",
                 {perfil("Música", onda, true), perfil("Cine", subida, true)}),
        perfiles("sin-curva", "Without curves", {perfil("Música", {}), perfil("Cine", {}, true)}),
        {"perfiles-nombres-largos", "Long names", kind, ejemploCon([&](auto& e) {
             e.perfil = "Un perfil con un nombre tan largo que no cabe en la cabecera";
             e.perfiles = {perfil("Un perfil de nombre largo", onda), perfil("موسيقى", subida),
                           perfil("Μουσική και ήχος", onda)};
         })},
        {"perfiles-apagado", "Equalizer off", kind, ejemploCon([&](auto& e) {
             e.perfiles = cuatro;
             e.prendido = false;
         })},
        {"perfiles-solo-mirar", "For looking only", kind, ejemploCon([&](auto& e) {
             e.perfiles = cuatro;
             e.dejaCambiar = false;
         })},
        {"perfiles-cerrado", "Closed for 15 minutes", kind,
         ejemploCon([](auto& e) { e.cuando = support::noon.addingTimeInterval(-900); })},
        {"perfiles-sin-estado", "Never seen", kind, std::nullopt},
    };
    agregarLenguas(muestras, "perfiles-cuatro");
    agregarLenguas(muestras, "perfiles-solo-mirar");
    return muestras;
}

std::vector<Muestra> tuCuarto() {
    const std::string kind = "nurva.tuCuarto";
    const auto medido = [](auto& e) {
        e.cuartoAhora = 2.4;
        e.cuartoAntes = 6.3;
        e.medidoHace = "hace 3 días";
        e.salidasSinMedir = 3;
    };
    const auto medidoY = [&](const auto& cambiar) {
        EstadoParaWidgets e = ejemploCon(medido);
        cambiar(e);
        return e;
    };
    std::vector<Muestra> muestras{
        {"cuarto-medido", "Measured", kind, ejemploCon(medido)},
        {"cuarto-sin-antes", "Measured, nothing known of before", kind,
         medidoY([](auto& e) { e.cuartoAntes.reset(); })},
        {"cuarto-sin-medir", "Not measured", kind, medidoY([](auto& e) {
             e.cuartoAhora.reset();
             e.medidoHace = "";
         })},
        {"cuarto-todo-medido", "No output left to measure", kind,
         medidoY([](auto& e) { e.salidasSinMedir = 0; })},
        {"cuarto-uno-por-medir", "One output left to measure", kind,
         medidoY([](auto& e) { e.salidasSinMedir = 1; })},
        {"cuarto-cuenta-negativa", "A count below zero is no count", kind,
         medidoY([](auto& e) { e.salidasSinMedir = -1; })},
        {"cuarto-textos-largos", "Long texts", kind, medidoY([](auto& e) {
             e.salida = "Los audífonos inalámbricos nuevos de Marta en la sala de arriba";
             e.medidoHace = "hace muchísimo tiempo";
         })},
        {"cuarto-valor-largo", "A long figure", kind,
         medidoY([](auto& e) { e.cuartoAhora = -12345.67; })},
        {"cuarto-locale-ingles", "Numbers as in English, by the system’s locale", kind,
         ejemploCon(medido), "es", "en_US"},
        {"cuarto-idioma-ingles", "In English, figure and unit in the system’s language", kind,
         medidoY([](auto& e) { e.idioma = "en"; })},
        {"cuarto-cerrado", "Closed for 15 minutes", kind,
         medidoY([](auto& e) { e.cuando = support::noon.addingTimeInterval(-900); })},
        {"cuarto-sin-estado", "Never seen, on a system in English", kind, std::nullopt, "en",
         "en_US"},
    };
    agregarLenguas(muestras, "cuarto-sin-medir");
    return muestras;
}

}  // namespace

std::vector<Muestra> escaparate() {
    std::vector<Muestra> todas;
    for (const auto& muestras : {queEstaPuesto(), ponerUnPerfil(), tuCuarto(), volumenPorApp()})
        todas.insert(todas.end(), muestras.begin(), muestras.end());
    return todas;
}

}  // namespace nurva
