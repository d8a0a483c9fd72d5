#pragma once

#include <concepts>
#include <cstddef>
#include <string_view>
#include <tuple>

namespace foundation {

/// One key of a record's JSON form and the member that it stands for.
///
/// A record lists its keys once, in declaration order, and is decoded, encoded and compared by that
/// list:
///
///     struct Point {
///         double x;
///         double y;
///
///         static constexpr std::tuple CodingKeys{
///             foundation::CodingKey{"x", &Point::x},
///             foundation::CodingKey{"y", &Point::y},
///         };
///     };
///
/// A member of type std::optional may be missing or null in the text; every other is required.
template <class Record, class Value>
struct CodingKey {
    std::string_view name;
    Value Record::*member;
};

template <class Record, class Value>
CodingKey(const char*, Value Record::*) -> CodingKey<Record, Value>;

/// A type that lists its coding keys.
template <class T>
concept CodedRecord = requires {
    std::tuple_size<std::remove_cvref_t<decltype(T::CodingKeys)>>::value;
};

template <CodedRecord Record>
constexpr std::size_t codingKeyCount =
    std::tuple_size_v<std::remove_cvref_t<decltype(Record::CodingKeys)>>;

}  // namespace foundation
