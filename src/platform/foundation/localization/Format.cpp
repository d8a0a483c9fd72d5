#include "platform/foundation/localization/Format.hpp"

#include "platform/foundation/localization/IntegerSpecifier.hpp"
#include "platform/foundation/localization/NumberFormat.hpp"
#include "platform/foundation/localization/PluralCategory.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace foundation {
namespace {

struct Misfit {};

/// Variables may stand in the wordings of other variables, so that a short table can ask for
/// endless work.
constexpr int mostSpecifiers = 256;

class Expansion {
  public:
    using Variables = decltype(LocalizedFormat::variables);

    Expansion(const Variables& variables,
              std::span<const FormatArgument> arguments,
              const Locale& locale,
              std::string_view language)
        : variables_(variables), arguments_(arguments), locale_(locale), language_(language) {}

    std::optional<std::string> result(std::string_view format) {
        try {
            expand(format, 0);
        } catch (const Misfit&) {
            return std::nullopt;
        }
        return std::move(result_);
    }

  private:
    /// Appends `text` with its specifiers replaced; the first one without a position takes argument
    /// `next`.
    void expand(std::string_view text, std::size_t next) {
        while (true) {
            const std::size_t percent = std::min(text.find('%'), text.size());
            result_ += text.substr(0, percent);
            if (percent == text.size())
                return;
            text.remove_prefix(percent + 1);
            if (text.starts_with('%')) {
                result_ += '%';
                text.remove_prefix(1);
            } else {
                replace(text, next);
            }
        }
    }

    /// Replaces the specifier that `text` begins with, behind its per-cent sign, and takes it off.
    void replace(std::string_view& text, std::size_t& next) {
        if (++specifiers_ > mostSpecifiers)
            throw Misfit{};
        const auto position = takePosition(text);
        const std::size_t index = position ? *position : next++;
        if (text.starts_with('@')) {
            text.remove_prefix(1);
            result_ += argument<std::string>(index);
        } else if (text.starts_with("#@")) {
            text.remove_prefix(2);
            expand(wording(takeName(text), argument<std::int64_t>(index)), index);
        } else if (const std::size_t length = integerSpecifierLength(text); length > 0) {
            text.remove_prefix(length);
            result_ += localizedInteger(argument<std::int64_t>(index), locale_);
        } else {
            const int digits = takeDecimalSpecifier(text);
            result_ += localizedDecimal(argument<double>(index), digits, locale_);
        }
    }

    template <typename Value>
    const Value& argument(std::size_t index) const {
        const Value* value =
            index < arguments_.size() ? std::get_if<Value>(&arguments_[index]) : nullptr;
        if (!value)
            throw Misfit{};
        return *value;
    }

    /// The position `2$` as the index 1; nothing, and nothing taken, when there is none.
    static std::optional<std::size_t> takePosition(std::string_view& text) {
        if (text.size() < 2 || text[0] < '1' || text[0] > '9' || text[1] != '$')
            return std::nullopt;
        const auto index = static_cast<std::size_t>(text[0] - '1');
        text.remove_prefix(2);
        return index;
    }

    static std::string_view takeName(std::string_view& text) {
        const std::size_t end = text.find('@');
        if (end == std::string_view::npos)
            throw Misfit{};
        const std::string_view name = text.substr(0, end);
        text.remove_prefix(end + 1);
        return name;
    }

    /// The digits after the point of `.1f`, or of `f`, where they are six.
    static int takeDecimalSpecifier(std::string_view& text) {
        int digits = 6;
        if (text.size() >= 2 && text[0] == '.' && text[1] >= '0' && text[1] <= '9') {
            digits = text[1] - '0';
            text.remove_prefix(2);
        }
        if (!text.starts_with('f'))
            throw Misfit{};
        text.remove_prefix(1);
        return digits;
    }

    std::string_view wording(std::string_view name, std::int64_t number) const {
        const auto variable = variables_.find(name);
        if (variable == variables_.end())
            throw Misfit{};
        const LocalizedFormat::Wordings& wordings = variable->second;
        auto found = wordings.find(pluralCategory(number, language_));
        if (found == wordings.end())
            found = wordings.find("other");
        if (found == wordings.end())
            throw Misfit{};
        return found->second;
    }

    const Variables& variables_;
    std::span<const FormatArgument> arguments_;
    const Locale& locale_;
    std::string_view language_;
    std::string result_;
    int specifiers_ = 0;
};

}  // namespace

std::optional<std::string> expandedFormat(const LocalizedFormat& format,
                                          std::span<const FormatArgument> arguments,
                                          const Locale& locale,
                                          std::string_view language) {
    return Expansion(format.variables, arguments, locale, language).result(format.text);
}

std::optional<std::string> expandedFormat(std::string_view format,
                                          std::span<const FormatArgument> arguments,
                                          const Locale& locale) {
    static const LocalizedFormat none;
    return Expansion(none.variables, arguments, locale, {}).result(format);
}

}  // namespace foundation
