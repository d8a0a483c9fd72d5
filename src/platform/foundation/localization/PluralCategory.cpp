#include "platform/foundation/localization/PluralCategory.hpp"

#include "platform/foundation/localization/LocaleObjects.hpp"

#include <unicode/locid.h>
#include <unicode/plurrule.h>
#include <unicode/unistr.h>

#include <memory>

namespace foundation {
namespace {

std::shared_ptr<const icu::PluralRules> makeRules(const std::string& language) {
    UErrorCode code = U_ZERO_ERROR;
    std::shared_ptr<const icu::PluralRules> rules(
        icu::PluralRules::forLocale(icu::Locale(language.c_str()), code));
    return U_SUCCESS(code) ? rules : nullptr;
}

}  // namespace

std::string pluralCategory(std::int64_t number, std::string_view language) {
    static LocaleObjects<icu::PluralRules> known;
    const icu::PluralRules* const rules = known.object(std::string(language), makeRules);
    if (!rules)
        return "other";
    std::string category;
    return rules->select(static_cast<double>(number)).toUTF8String(category);
}

}  // namespace foundation
