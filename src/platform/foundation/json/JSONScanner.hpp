#pragma once

#include "platform/foundation/json/JSONDocument.hpp"

#include <cstddef>
#include <string_view>

namespace foundation {

/// Finds where the values of a JSON text begin and end. What stands inside strings and numbers it
/// does not judge: that is for whoever reads them. Everything throws DecodingError (data
/// corrupted).
class JSONScanner {
  public:
    explicit JSONScanner(std::string_view text) : text_(text) {}

    JSONValue value();

    /// The inside of a string, between its quotes.
    std::string_view string();

    /// Calls `passItem()` for each item of a container.
    template <class PassItem>
    void passItems(char opening, char closing, PassItem passItem);

    /// Takes this character, after blanks.
    void require(char character);

    void requireEnd();

  private:
    JSONValue::Kind passValue();
    void passString();
    JSONValue::Kind passWord(std::string_view word, JSONValue::Kind kind);
    JSONValue::Kind passNumber();

    void enter();
    char next() const;
    bool take(char character);
    void passBlanks();
    void passAll(std::string_view characters);

    std::string_view text_;
    std::size_t at_ = 0;
    int depth_ = 0;
};

template <class PassItem>
void JSONScanner::passItems(char opening, char closing, PassItem passItem) {
    require(opening);
    enter();
    if (!take(closing)) {
        do {
            passItem();
        } while (take(','));
        require(closing);
    }
    --depth_;
}

}  // namespace foundation
