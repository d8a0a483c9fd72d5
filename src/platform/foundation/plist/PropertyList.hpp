#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace foundation {

/// A value read from a property list in XML or binary form. Dates and raw data have no reader here
/// and are left out of the container that holds them.
struct PropertyList {
    using Array = std::vector<PropertyList>;
    using Dictionary = std::map<std::string, PropertyList, std::less<>>;

    std::variant<bool, std::int64_t, double, std::string, Array, Dictionary> value;

    /// The value in `bytes`, or nothing when they are no property list, nest too deep or are too
    /// many. Any thread; never fails otherwise.
    static std::optional<PropertyList> parse(std::string_view bytes);

    /// This value when it is a string, an array or a dictionary, else null.
    const std::string* string() const { return std::get_if<std::string>(&value); }
    const Array* array() const { return std::get_if<Array>(&value); }
    const Dictionary* dictionary() const { return std::get_if<Dictionary>(&value); }

    /// The strings of the array that a dictionary holds under a key, without what else is in it.
    std::vector<std::string> strings(std::string_view key) const;

    friend bool operator==(const PropertyList&, const PropertyList&) = default;
};

}  // namespace foundation
