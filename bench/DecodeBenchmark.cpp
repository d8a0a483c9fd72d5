#include "estado/EstadoParaWidgets.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

/// Decoding a snapshot with 142 numbers, ours against simdjson On-Demand filling the same record.
/// `fine` numbers have all their digits, as measured gains do, and make 4188 bytes; `round` ones
/// have one decimal, as set ones do.
namespace {

using nurva::EstadoParaWidgets;

constexpr std::size_t textLength = 4188;

EstadoParaWidgets example(bool fine) {
    std::mt19937 random(13);
    std::uniform_real_distribution<double> gain(-12, 12);
    const auto number = [&] {
        const double exact = gain(random);
        return fine ? exact : std::round(exact * 10) / 10;
    };
    const auto curve = [&] {
        std::vector<double> gains(EstadoParaWidgets::bandas);
        std::ranges::generate(gains, number);
        return gains;
    };
    auto estado = EstadoParaWidgets::porDefecto({785000000.125});
    estado.razon = "porque suena jazz";
    estado.curva = curve();
    estado.salida = "Audífonos de estudio";
    estado.salidaMedida = true;
    estado.cuartoAhora = std::abs(number());
    estado.cuartoAntes = std::abs(number());
    estado.medidoHace = "hace 3 días";
    estado.salidasSinMedir = 2;
    for (const std::string name : {"Plano", "Voz", "Música", "Cine en casa", "Noche", "Podcast",
                                   "Graves", "Agudos", "Videojuegos"}) {
        estado.perfiles.push_back({"perfil-" + name, name, curve(), name == "Música"});
    }
    for (const std::string name :
         {"Firefox", "Música", "VLC", "Spotify", "Zoom", "Telegram", "Steam"}) {
        estado.apps.push_back({"org.ejemplo." + name, name, std::abs(number()) / 12, false, true});
    }
    estado.dejaCambiar = true;
    estado.idioma = "es";
    return estado;
}

std::string exampleText(bool fine) {
    EstadoParaWidgets estado = example(fine);
    const std::size_t length = foundation::JSONEncoder{}.encode(estado).size();
    estado.razon.append(fine ? textLength - length : 0, '.');
    return foundation::JSONEncoder{}.encode(estado);
}

namespace ondemand = simdjson::ondemand;

std::vector<double> numbers(ondemand::array array) {
    std::vector<double> result;
    result.reserve(EstadoParaWidgets::bandas);
    for (const double number : array) {
        result.push_back(number);
    }
    return result;
}

std::string string(ondemand::value value) {
    return std::string(value.get_string().value());
}

/// Takes the fields in their order, which is the fastest that it offers.
EstadoParaWidgets decodeOnDemand(ondemand::parser& parser, const simdjson::padded_string& text) {
    ondemand::document document = parser.iterate(text);
    ondemand::object object = document.get_object();
    EstadoParaWidgets estado{.perfil = {}, .curva = {}};
    estado.perfil = string(object.find_field("perfil"));
    estado.razon = string(object.find_field("razon"));
    estado.curva = numbers(object.find_field("curva"));
    estado.prendido = object.find_field("prendido");
    estado.automatico = object.find_field("automatico");
    estado.salida = string(object.find_field("salida"));
    estado.salidaMedida = object.find_field("salidaMedida");
    estado.cuartoAhora = object.find_field("cuartoAhora").get_double();
    estado.cuartoAntes = object.find_field("cuartoAntes").get_double();
    estado.medidoHace = string(object.find_field("medidoHace"));
    estado.salidasSinMedir = object.find_field("salidasSinMedir");
    estado.perfiles.reserve(16);
    for (ondemand::object perfil : object.find_field("perfiles").get_array()) {
        estado.perfiles.push_back({.id = string(perfil.find_field("id")),
                                   .nombre = string(perfil.find_field("nombre")),
                                   .curva = numbers(perfil.find_field("curva")),
                                   .puesto = perfil.find_field("puesto")});
    }
    estado.apps.reserve(16);
    for (ondemand::object app : object.find_field("apps").get_array()) {
        estado.apps.push_back({.id = string(app.find_field("id")),
                               .nombre = string(app.find_field("nombre")),
                               .nivel = app.find_field("nivel"),
                               .silenciada = app.find_field("silenciada"),
                               .suena = app.find_field("suena")});
    }
    estado.dejaCambiar = object.find_field("dejaCambiar");
    estado.acento = static_cast<std::uint32_t>(object.find_field("acento").get_uint64());
    estado.idioma = string(object.find_field("idioma"));
    estado.cuando = {object.find_field("cuando").get_double()};
    return estado;
}

void ours(benchmark::State& state, bool fine) {
    const std::string text = exampleText(fine);
    for (auto _ : state) {
        benchmark::DoNotOptimize(foundation::JSONDecoder{}.decode<EstadoParaWidgets>(text));
    }
}

void simdjsonOnDemand(benchmark::State& state, bool fine) {
    const simdjson::padded_string text(exampleText(fine));
    ondemand::parser parser;
    for (auto _ : state) {
        benchmark::DoNotOptimize(decodeOnDemand(parser, text));
    }
}

/// Both must have done the same work.
void requireSameResult(bool fine) {
    const std::string text = exampleText(fine);
    const simdjson::padded_string padded(text);
    ondemand::parser parser;
    const auto decoded = foundation::JSONDecoder{}.decode<EstadoParaWidgets>(text);
    if ((fine && text.size() != textLength) || decoded != decodeOnDemand(parser, padded)) {
        std::cerr << "the two decoders disagree\n";
        std::exit(1);
    }
}

}  // namespace

BENCHMARK_CAPTURE(ours, fine, true);
BENCHMARK_CAPTURE(simdjsonOnDemand, fine, true);
BENCHMARK_CAPTURE(ours, round, false);
BENCHMARK_CAPTURE(simdjsonOnDemand, round, false);

int main(int argc, char** argv) {
    requireSameResult(true);
    requireSameResult(false);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
