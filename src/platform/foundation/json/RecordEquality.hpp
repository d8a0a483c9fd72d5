#pragma once

#include "platform/foundation/json/CodingKey.hpp"
#include "platform/foundation/text/UnicodeText.hpp"

#include <algorithm>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

/// Equality of records, field by field in the order of their keys. Strings are equal when they are
/// the same characters, however each is composed; numbers by their value, so NaN equals nothing.
namespace foundation {

template <class T>
bool fieldsEqual(const T& a, const T& b) {
    return a == b;
}

inline bool fieldsEqual(const std::string& a, const std::string& b) {
    return canonicallyEqual(a, b);
}

template <class T>
bool fieldsEqual(const std::optional<T>& a, const std::optional<T>& b) {
    return a.has_value() == b.has_value() && (!a || fieldsEqual(*a, *b));
}

template <class T>
bool fieldsEqual(const std::vector<T>& a, const std::vector<T>& b) {
    return std::ranges::equal(a, b, [](const T& x, const T& y) { return fieldsEqual(x, y); });
}

template <CodedRecord Record>
bool recordsEqual(const Record& a, const Record& b) {
    return std::apply(
        [&](const auto&... key) { return (fieldsEqual(a.*key.member, b.*key.member) && ...); },
        Record::CodingKeys);
}

}  // namespace foundation
