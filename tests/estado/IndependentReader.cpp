#include "estado/IndependentReader.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

namespace {

using nurva::AppCorta;
using nurva::EstadoParaWidgets;
using nurva::PerfilCorto;

/// A number, with the digits in which it was written as far as the library tells them.
struct Number {
    double value;
    std::string digits;
};

struct Value {
    using Array = std::vector<Value>;
    using Object = std::vector<std::pair<std::string, Value>>;
    std::variant<std::nullptr_t, bool, Number, std::string, Array, Object> is;
};

/// Takes down what the library reads, every member of a key that occurs twice included.
class Listener : public nlohmann::json_sax<nlohmann::json> {
  public:
    static constexpr std::size_t deepest = 512;

    Value root;
    bool isTooDeep = false;
    bool isBeyondRange = false;

    bool null() override { return add({nullptr}); }
    bool boolean(bool value) override { return add({value}); }
    bool number_integer(std::int64_t value) override {
        return add({Number{static_cast<double>(value), std::to_string(value)}});
    }
    bool number_unsigned(std::uint64_t value) override {
        return add({Number{static_cast<double>(value), std::to_string(value)}});
    }
    bool number_float(double value, const std::string& digits) override {
        return add({Number{value, digits}});
    }
    bool string(std::string& value) override { return add({value}); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open({Value::Object()}); }
    bool start_array(std::size_t) override { return open({Value::Array()}); }
    bool key(std::string& key) override {
        key_ = key;
        return true;
    }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t,
                     const std::string&,
                     const nlohmann::detail::exception& fault) override {
        isBeyondRange = dynamic_cast<const nlohmann::json::out_of_range*>(&fault) != nullptr;
        return false;
    }

  private:
    bool add(Value value) {
        place(std::move(value));
        return true;
    }

    Value& place(Value value) {
        if (open_.empty())
            return root = std::move(value);
        if (auto* const array = std::get_if<Value::Array>(&open_.back()->is))
            return array->emplace_back(std::move(value));
        auto& members = std::get<Value::Object>(open_.back()->is);
        return members.emplace_back(key_, std::move(value)).second;
    }

    bool open(Value container) {
        open_.push_back(&place(std::move(container)));
        isTooDeep = isTooDeep || open_.size() > deepest;
        return true;
    }

    bool close() {
        open_.pop_back();
        return true;
    }

    std::vector<Value*> open_;
    std::string key_;
};

struct NoSnapshot {};

template <class T>
const T& as(const Value& value) {
    const T* const found = std::get_if<T>(&value.is);
    if (!found)
        throw NoSnapshot();
    return *found;
}

/// The first member of this name.
const Value* member(const Value& value, std::string_view key) {
    for (const auto& [name, inside] : as<Value::Object>(value))
        if (name == key)
            return &inside;
    return nullptr;
}

const Value& required(const Value& value, std::string_view key) {
    const Value* const found = member(value, key);
    if (!found)
        throw NoSnapshot();
    return *found;
}

template <class T>
T field(const Value& value, std::string_view key) {
    return as<T>(required(value, key));
}

double number(const Value& value, std::string_view key) {
    return as<Number>(required(value, key)).value;
}

template <class Make>
auto optional(const Value& value, std::string_view key, Make make) {
    const Value* const found = member(value, key);
    std::optional<decltype(make(value, key))> result;
    if (found && !std::holds_alternative<std::nullptr_t>(found->is))
        result = make(value, key);
    return result;
}

/// The digits of a whole number, however it was written, without sign and zeros before them.
std::string wholeDigits(std::string_view written) {
    const std::size_t exponentAt = std::min(written.find_first_of("eE"), written.size());
    std::string digits(written.substr(0, exponentAt));
    // Beyond what any file has digits for, one exponent is like another.
    constexpr long farthest = 1'000'000'000;
    long shift = exponentAt == written.size()
                     ? 0
                     : std::clamp(std::strtol(std::string(written.substr(exponentAt + 1)).c_str(),
                                              nullptr, 10),
                                  -farthest, farthest);
    if (const std::size_t point = digits.find('.'); point != std::string::npos) {
        shift -= static_cast<long>(digits.size() - point - 1);
        digits.erase(point, 1);
    }
    digits.erase(0, std::min(digits.find_first_of("123456789"), digits.size()));
    if (digits.empty())
        return "0";
    for (; shift < 0; ++shift) {
        if (digits.empty() || digits.back() != '0')
            throw NoSnapshot();
        digits.pop_back();
    }
    if (shift > 20)
        throw NoSnapshot();
    return digits + std::string(static_cast<std::size_t>(shift), '0');
}

/// A whole number from -`lowest` to `highest`, in two's complement.
std::uint64_t whole(const Value& value,
                    std::string_view key,
                    std::uint64_t lowest,
                    std::uint64_t highest) {
    const std::string& written = as<Number>(required(value, key)).digits;
    const bool isNegative = written.front() == '-';
    const std::string digits = wholeDigits(written);
    errno = 0;
    const std::uint64_t magnitude = std::strtoull(digits.c_str(), nullptr, 10);
    if (errno == ERANGE || magnitude > (isNegative ? lowest : highest))
        throw NoSnapshot();
    return isNegative ? 0 - magnitude : magnitude;
}

std::vector<double> curve(const Value& value, std::string_view key) {
    std::vector<double> gains;
    for (const Value& gain : as<Value::Array>(required(value, key)))
        gains.push_back(as<Number>(gain).value);
    return gains;
}

template <class Make>
auto list(const Value& value, std::string_view key, Make make) {
    std::vector<decltype(make(value))> made;
    for (const Value& element : as<Value::Array>(required(value, key)))
        made.push_back(make(element));
    return made;
}

PerfilCorto profile(const Value& value) {
    return {.id = field<std::string>(value, "id"),
            .nombre = field<std::string>(value, "nombre"),
            .curva = curve(value, "curva"),
            .puesto = field<bool>(value, "puesto")};
}

AppCorta application(const Value& value) {
    return {.id = field<std::string>(value, "id"),
            .nombre = field<std::string>(value, "nombre"),
            .nivel = number(value, "nivel"),
            .silenciada = field<bool>(value, "silenciada"),
            .suena = field<bool>(value, "suena")};
}

EstadoParaWidgets snapshot(const Value& value) {
    constexpr std::uint64_t most = INT64_MAX;
    return {
        .perfil = field<std::string>(value, "perfil"),
        .razon = field<std::string>(value, "razon"),
        .curva = curve(value, "curva"),
        .prendido = field<bool>(value, "prendido"),
        .automatico = field<bool>(value, "automatico"),
        .salida = field<std::string>(value, "salida"),
        .salidaMedida = field<bool>(value, "salidaMedida"),
        .cuartoAhora = optional(value, "cuartoAhora", number),
        .cuartoAntes = optional(value, "cuartoAntes", number),
        .medidoHace = field<std::string>(value, "medidoHace"),
        .salidasSinMedir =
            static_cast<std::int64_t>(whole(value, "salidasSinMedir", most + 1, most)),
        .perfiles = list(value, "perfiles", profile),
        .apps = list(value, "apps", application),
        .dejaCambiar = field<bool>(value, "dejaCambiar"),
        .acento = static_cast<std::uint32_t>(whole(value, "acento", 0, UINT32_MAX)),
        .idioma = optional(value, "idioma", field<std::string>),
        .cuando = {number(value, "cuando")},
    };
}

}  // namespace

IndependentVerdict independentVerdict(std::string_view text) {
    // The library takes a NUL for the end.
    if (text.find('\0') != std::string_view::npos)
        return {};
    Listener listener;
    const bool isRead = nlohmann::json::sax_parse(text, &listener);
    if (listener.isBeyondRange)
        return {.hasOpinion = false};
    IndependentVerdict verdict{.isJSON = isRead && !listener.isTooDeep};
    if (verdict.isJSON) {
        try {
            verdict.estado = snapshot(listener.root);
        } catch (const NoSnapshot&) {
            return verdict;
        }
    }
    return verdict;
}

bool exactlyEqual(const EstadoParaWidgets& a, const EstadoParaWidgets& b) {
    const auto plain = [](const EstadoParaWidgets& e) {
        return std::tie(e.perfil, e.razon, e.curva, e.prendido, e.automatico, e.salida,
                        e.salidaMedida, e.cuartoAhora, e.cuartoAntes, e.medidoHace,
                        e.salidasSinMedir, e.dejaCambiar, e.acento, e.idioma,
                        e.cuando.secondsSinceReferenceDate);
    };
    const auto sameProfile = [](const PerfilCorto& p, const PerfilCorto& q) {
        return std::tie(p.id, p.nombre, p.curva, p.puesto) ==
               std::tie(q.id, q.nombre, q.curva, q.puesto);
    };
    const auto sameApplication = [](const AppCorta& p, const AppCorta& q) {
        return std::tie(p.id, p.nombre, p.nivel, p.silenciada, p.suena) ==
               std::tie(q.id, q.nombre, q.nivel, q.silenciada, q.suena);
    };
    return plain(a) == plain(b) && std::ranges::equal(a.perfiles, b.perfiles, sameProfile) &&
           std::ranges::equal(a.apps, b.apps, sameApplication);
}
