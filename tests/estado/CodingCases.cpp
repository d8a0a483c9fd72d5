#include "estado/CodingCases.hpp"

#include "estado/EstadoParaWidgets.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "support/Hex.hpp"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string_view>

using nlohmann::json;
using nurva::EstadoParaWidgets;

namespace {

std::string contents(const std::filesystem::path& file) {
    const std::unique_ptr<gzFile_s, decltype(&gzclose)> stream(gzopen(file.c_str(), "rb"), gzclose);
    if (!stream) {
        throw std::runtime_error("no " + file.string());
    }
    std::string all;
    std::array<char, 65536> part;
    while (const int count = gzread(stream.get(), part.data(), part.size())) {
        all.append(part.data(), static_cast<std::size_t>(std::max(count, 0)));
    }
    return all;
}

/// The same text with the members of every object sorted by key, numbers and strings untouched.
std::string withSortedKeys(const foundation::JSONValue& value) {
    std::string text;
    if (value.kind == foundation::JSONValue::Kind::array) {
        foundation::forEachElement(value, [&](const foundation::JSONValue& element) {
            text += (text.empty() ? "" : ",") + withSortedKeys(element);
        });
        return "[" + text + "]";
    }
    if (value.kind == foundation::JSONValue::Kind::object) {
        std::map<std::string, std::string> sorted;
        for (const auto& member : foundation::members(value)) {
            sorted[member.key] = withSortedKeys(member.value);
        }
        for (const auto& [key, inner] : sorted) {
            text += (text.empty() ? "\"" : ",\"") + key + "\":" + inner;
        }
        return "{" + text + "}";
    }
    return std::string(value.text);
}

std::string sortedEncoding(const EstadoParaWidgets& estado) {
    const std::string text = foundation::JSONEncoder{}.encode(estado);
    return withSortedKeys(foundation::JSONDocument(text).root());
}

std::string bits(double number) {
    std::array<char, 17> text;
    std::snprintf(text.data(), text.size(), "%016llx",
                  static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(number)));
    return text.data();
}

json bits(const std::optional<double>& number) {
    return number ? json(bits(*number)) : json();
}

json bits(const std::vector<double>& numbers) {
    json list = json::array();
    for (const double number : numbers) {
        list.push_back(bits(number));
    }
    return list;
}

/// Every field, doubles by their bits.
json valuesOf(const EstadoParaWidgets& estado) {
    json perfiles = json::array();
    for (const nurva::PerfilCorto& perfil : estado.perfiles) {
        perfiles.push_back({{"id", perfil.id},
                            {"nombre", perfil.nombre},
                            {"curva", bits(perfil.curva)},
                            {"puesto", perfil.puesto}});
    }
    json apps = json::array();
    for (const nurva::AppCorta& app : estado.apps) {
        apps.push_back({{"id", app.id},
                        {"nombre", app.nombre},
                        {"nivel", bits(app.nivel)},
                        {"silenciada", app.silenciada},
                        {"suena", app.suena}});
    }
    return {{"perfil", estado.perfil},
            {"razon", estado.razon},
            {"curva", bits(estado.curva)},
            {"prendido", estado.prendido},
            {"automatico", estado.automatico},
            {"salida", estado.salida},
            {"salidaMedida", estado.salidaMedida},
            {"cuartoAhora", bits(estado.cuartoAhora)},
            {"cuartoAntes", bits(estado.cuartoAntes)},
            {"medidoHace", estado.medidoHace},
            {"salidasSinMedir", std::to_string(estado.salidasSinMedir)},
            {"perfiles", perfiles},
            {"apps", apps},
            {"dejaCambiar", estado.dejaCambiar},
            {"acento", std::to_string(estado.acento)},
            {"idioma", estado.idioma ? json(*estado.idioma) : json()},
            {"cuando", bits(estado.cuando.secondsSinceReferenceDate)}};
}

/// The expected values in the same form: "0.5|3fe0000000000000" becomes its bits, an integer text.
json comparable(const json& expected) {
    if (expected.is_structured()) {
        json result = expected;
        for (auto& [key, value] : result.items()) {
            // A string that is no number may hold anything, a bar too.
            static constexpr std::array<std::string_view, 7> texts{
                "perfil", "razon", "salida", "medidoHace", "id", "nombre", "idioma"};
            if (std::ranges::find(texts, key) == texts.end() || value.is_structured()) {
                value = comparable(value);
            }
        }
        return result;
    }
    if (expected.is_number_integer()) {
        return std::to_string(expected.get<std::int64_t>());
    }
    if (expected.is_string()) {
        const auto& text = expected.get_ref<const std::string&>();
        return text.substr(text.find('|') + 1);
    }
    return expected;
}

/// The platform writes a place in an array as "Index 3".
std::string pathOf(const json& expected) {
    std::string path = expected.value("codingPath", "");
    for (std::size_t at; (at = path.find("Index ")) != std::string::npos;) {
        path.erase(at, 6);
    }
    return path;
}

std::string differingError(const json& expected, std::string_view kind, const std::string& path) {
    if (expected["ok"] || (expected["error"] == kind && pathOf(expected) == path)) {
        return {};
    }
    return expected["error"].get<std::string>() + " at '" + pathOf(expected) + "' expected, " +
           std::string(kind) + " at '" + path + "' found";
}

Disagreement decodingDisagreement(const CodingCase& codingCase) {
    const json& expected = codingCase.expected;
    try {
        const auto estado = foundation::JSONDecoder{}.decode<EstadoParaWidgets>(
            support::bytesFromHex(codingCase.input["hex"].get_ref<const std::string&>()));
        if (!expected["ok"]) {
            return {.verdict = "decodes", .error = {}};
        }
        const json difference = json::diff(comparable(expected["valores"]), valuesOf(estado));
        if (!difference.empty()) {
            return {.verdict = difference.dump(-1, ' ', true, json::error_handler_t::replace),
                    .error = {}};
        }
        const std::string text = sortedEncoding(estado);
        return {.verdict = text == expected["reencoded"] ? "" : "encodes as " + text, .error = {}};
    } catch (const foundation::DecodingError& error) {
        return {.verdict = expected["ok"] ? error.what() : "",
                .error = differingError(expected, name(error.kind), error.codingPath)};
    }
}

EstadoParaWidgets withField(const std::string& field, double number) {
    auto estado = EstadoParaWidgets::porDefecto({0});
    if (field == "nada") {
        return estado;
    }
    if (field == "curva") {
        estado.curva = {1, number};
    } else if (field == "cuartoAhora") {
        estado.cuartoAhora = number;
    } else if (field == "cuartoAntes") {
        estado.cuartoAntes = number;
    } else if (field == "cuando") {
        estado.cuando = {number};
    } else if (field == "apps.nivel") {
        estado.apps = {{"a", "A", number, false, true}};
    } else if (field == "perfiles.curva") {
        estado.perfiles = {{"p", "P", {number, 2}, true}};
    } else {
        throw std::runtime_error("no field " + field);
    }
    return estado;
}

Disagreement encodingDisagreement(const CodingCase& codingCase) {
    const json& expected = codingCase.expected;
    const auto number = std::bit_cast<double>(
        std::stoull(codingCase.input["bits"].get<std::string>(), nullptr, 16));
    try {
        const std::string text = sortedEncoding(withField(codingCase.input["campo"], number));
        if (!expected["ok"]) {
            return {.verdict = "encodes", .error = {}};
        }
        return {.verdict = text == expected["reencoded"] ? "" : "encodes as " + text, .error = {}};
    } catch (const foundation::EncodingError& error) {
        return {.verdict = expected["ok"] ? error.what() : "",
                .error = differingError(expected, "invalidValue", error.codingPath)};
    }
}

}  // namespace

std::vector<CodingCase> codingCases(const std::filesystem::path& file) {
    std::vector<CodingCase> cases;
    std::istringstream lines(contents(file));
    for (std::string line; std::getline(lines, line);) {
        const json parsed = json::parse(line);
        const json& input = parsed["caso"];
        cases.push_back({.id = input["id"],
                         .group = input["grupo"],
                         .note = input["nota"],
                         .type = input["tipo"],
                         .input = input,
                         .expected = parsed["esperado"]});
    }
    return cases;
}

Disagreement disagreement(const CodingCase& codingCase) {
    return codingCase.type == "estado" ? decodingDisagreement(codingCase)
                                       : encodingDisagreement(codingCase);
}
