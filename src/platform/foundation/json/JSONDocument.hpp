#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace foundation {

/// A JSON value that is still text: its kind is known, what stands inside it has not been read.
struct JSONValue {
    enum class Kind { null, boolean, number, string, array, object };

    Kind kind;
    std::string_view text;  ///< the whole value, from its first byte to its last
};

struct JSONMember {
    std::string key;  ///< without escapes
    JSONValue value;
};

/// A JSON text taken apart only where it is asked for, so that faults are met in the order in which
/// the fields are read. Everything throws DecodingError (data corrupted); the text must outlive the
/// document and its values.
class JSONDocument {
  public:
    /// Requires that brackets, quotes, commas and colons fit; strings and numbers are taken on
    /// trust.
    explicit JSONDocument(std::string_view text);

    JSONValue root() const { return root_; }

    /// Throws where anything in the text is malformed, also inside values that nobody asked for.
    void requireWellFormed() const;

  private:
    std::string_view text_;
    JSONValue root_;
};

/// The members of an object in the order of the text, duplicates included. Keys are read here.
std::vector<JSONMember> members(const JSONValue& object);

/// Hands over the elements of an array, one by one.
void forEachElement(const JSONValue& array, const std::function<void(const JSONValue&)>& visit);

}  // namespace foundation
