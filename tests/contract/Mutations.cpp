#include "contract/Mutations.hpp"

#include <nlohmann/json.hpp>

#include <array>
#include <random>
#include <string_view>

namespace {

using nlohmann::json;
using Pointer = json::json_pointer;

/// Of every type, and numbers on both sides of every limit, as a file may have them written.
constexpr std::array values{"null",
                            "true",
                            "false",
                            "\"\"",
                            "\"x\"",
                            "\"1\"",
                            "\"true\"",
                            "\"\\u00e9\"",
                            "[]",
                            "[1]",
                            "[1,\"x\"]",
                            "[null]",
                            "[[]]",
                            "[{}]",
                            "{}",
                            "{\"id\":\"a\"}",
                            "{\"app\":\"a\",\"si\":true}",
                            "{\"app\":\"a\",\"nivel\":0.5}",
                            "{\"_0\":\"a\"}",
                            "0",
                            "-0",
                            "-0.0",
                            "1",
                            "-1",
                            "34.0",
                            "1e3",
                            "1.5",
                            "-1.5",
                            "0.1",
                            "1e-7",
                            "2147483648",
                            "4294967295",
                            "4294967295.0",
                            "4294967296",
                            "4.294967296e9",
                            "9223372036854775807",
                            "9223372036854775808",
                            "-9223372036854775808",
                            "-9223372036854775809",
                            "1e18",
                            "1e19",
                            "1e308",
                            "1.7976931348623157e308",
                            "1e309",
                            "-1e309",
                            "12345678901234567890"};

/// The value that stands for the one put in, until the text is written.
constexpr std::string_view placeholder = "\"@\"";

/// Every place in a value: itself, its members and elements, and theirs.
void collectPlaces(const json& value, const Pointer& here, std::vector<Pointer>& places) {
    places.push_back(here);
    if (!value.is_structured())
        return;
    for (const auto& [key, inner] : value.items())
        collectPlaces(inner, value.is_array() ? here / std::stoul(key) : here / key, places);
}

std::string written(const json& value, std::string_view inserted) {
    std::string text = value.dump();
    for (auto at = text.find(placeholder); at != std::string::npos; at = text.find(placeholder, at))
        text.replace(at, placeholder.size(), inserted);
    return text;
}

std::string replaced(json value, const Pointer& place, std::string_view inserted) {
    value[place] = "@";
    return written(value, inserted);
}

json without(json value, const Pointer& place) {
    json& parent = value[place.parent_pointer()];
    if (parent.is_object())
        parent.erase(place.back());
    else
        parent.erase(std::stoul(place.back()));
    return value;
}

}  // namespace

std::vector<std::string> mutations(const std::string& text) {
    const json value = json::parse(text);
    std::vector<Pointer> places;
    collectPlaces(value, Pointer(), places);
    std::vector<std::string> mutated{text};
    for (const Pointer& place : places) {
        for (const char* inserted : values)
            mutated.push_back(replaced(value, place, inserted));
        if (value.at(place).is_object())
            mutated.push_back(replaced(value, place / "other", "[1]"));
        if (!place.empty())
            mutated.push_back(without(value, place).dump());
    }
    std::mt19937 random(2001);
    const auto any = [&](const auto& list) -> const auto& {
        return list[std::uniform_int_distribution<std::size_t>(0, list.size() - 1)(random)];
    };
    for (int i = 0; i < 500; ++i) {
        json twice = json::parse(replaced(value, any(places), "\"first\""));
        std::vector<Pointer> left;
        collectPlaces(twice, Pointer(), left);
        std::string both = replaced(twice, any(left), any(values));
        if (const auto at = both.find("\"first\""); at != std::string::npos)
            both.replace(at, std::string_view("\"first\"").size(), any(values));
        mutated.push_back(std::move(both));
    }
    return mutated;
}
