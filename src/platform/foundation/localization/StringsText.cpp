#include "platform/foundation/localization/StringsText.hpp"

#include "platform/foundation/text/UTF8.hpp"

#include <algorithm>
#include <utility>

namespace foundation {
namespace {

struct Junk {};

bool isBare(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("_$/:.-").find(c) != std::string_view::npos;
}

int digitValue(char c, int base) {
    int value = base;
    if (c >= '0' && c <= '9')
        value = c - '0';
    else if (c >= 'a' && c <= 'f')
        value = c - 'a' + 10;
    else if (c >= 'A' && c <= 'F')
        value = c - 'A' + 10;
    return value < base ? value : -1;
}

class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(text) {}

    std::map<std::string, std::string> entries() {
        std::map<std::string, std::string> result;
        for (skipBlanks(); !rest_.empty(); skipBlanks()) {
            const std::string key = string();
            skipBlanks();
            std::string value = key;
            if (take("=")) {
                skipBlanks();
                value = string();
                skipBlanks();
            }
            if (!take(";"))
                throw Junk{};
            result.insert_or_assign(key, std::move(value));
        }
        return result;
    }

  private:
    bool take(std::string_view word) {
        if (!rest_.starts_with(word))
            return false;
        rest_.remove_prefix(word.size());
        return true;
    }

    char next() {
        if (rest_.empty())
            throw Junk{};
        const char c = rest_.front();
        rest_.remove_prefix(1);
        return c;
    }

    void skipBlockComment() {
        const std::size_t end = rest_.find("*/");
        if (end == std::string_view::npos)
            throw Junk{};
        rest_.remove_prefix(end + 2);
    }

    void skipLineComment() {
        rest_.remove_prefix(std::min(rest_.find_first_of("\r\n"), rest_.size()));
    }

    bool takeBlank() {
        return take(" ") || take("\t") || take("\n") || take("\r") || take("\v") || take("\f") ||
               take("\u2028") || take("\u2029");
    }

    void skipBlanks() {
        while (true) {
            if (take("/*"))
                skipBlockComment();
            else if (take("//"))
                skipLineComment();
            else if (!takeBlank())
                return;
        }
    }

    std::string string() {
        if (take("\""))
            return quoted('"');
        if (take("'"))
            return quoted('\'');
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), isBare);
        std::string word(rest_.begin(), end);
        if (word.empty())
            throw Junk{};
        rest_.remove_prefix(word.size());
        return word;
    }

    std::string quoted(char quote) {
        std::string text;
        for (char c = next(); c != quote; c = next()) {
            if (c == '\\')
                appendEscaped(text);
            else
                text += c;
        }
        return text;
    }

    void appendEscaped(std::string& text) {
        static constexpr std::string_view letters = "abfnrtv";
        static constexpr std::string_view controls = "\a\b\f\n\r\t\v";
        if (!rest_.empty() && digitValue(rest_.front(), 8) >= 0)
            return appendUTF8(text, number(8, 3));
        const char c = next();
        if (const std::size_t letter = letters.find(c); letter != std::string_view::npos)
            text += controls[letter];
        else if (c == 'U' && !rest_.empty() && digitValue(rest_.front(), 16) >= 0)
            appendUTF8(text, characterOfUnits());
        else
            text += c;
    }

    char32_t number(int base, int mostDigits) {
        char32_t value = 0;
        for (int i = 0; i < mostDigits && !rest_.empty(); ++i) {
            const int digit = digitValue(rest_.front(), base);
            if (digit < 0)
                break;
            value = value * static_cast<char32_t>(base) + static_cast<char32_t>(digit);
            rest_.remove_prefix(1);
        }
        return value;
    }

    /// After `\U`: one UTF-16 unit in hexadecimal, or two that make a pair.
    char32_t characterOfUnits() {
        const char32_t first = number(16, 4);
        const std::string_view behindFirst = rest_;
        if (first >= 0xD800 && first < 0xDC00 && take("\\U")) {
            const char32_t second = number(16, 4);
            if (second >= 0xDC00 && second < 0xE000)
                return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
            rest_ = behindFirst;
        }
        return first;
    }

    std::string_view rest_;
};

}  // namespace

std::optional<std::map<std::string, std::string>> parseStringsText(std::string_view text) {
    try {
        return Reader(text).entries();
    } catch (const Junk&) {
        return std::nullopt;
    }
}

}  // namespace foundation
