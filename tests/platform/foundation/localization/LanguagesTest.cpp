#include "platform/foundation/localization/Languages.hpp"
#include "platform/foundation/localization/Locale.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

using Values = std::map<std::string, std::string, std::less<>>;
using Languages = std::vector<std::string>;

TEST(Languages, FollowTheVariablesInTheirOrder) {
    struct Case {
        Values variables;
        Languages languages;
    };
    const Case cases[] = {
        {{}, {}},
        {{{"LANG", "es_MX.UTF-8"}}, {"es_MX"}},
        {{{"LANG", "de_DE@euro"}}, {"de_DE"}},
        {{{"LANG", "en"}}, {"en"}},
        {{{"LC_MESSAGES", "fr_FR"}, {"LANG", "es_ES"}}, {"fr_FR"}},
        {{{"LC_ALL", "en_GB"}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "es_ES"}}, {"en_GB"}},
        {{{"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", "es_ES"}}, {"es_ES"}},
        {{{"LC_NUMERIC", "fr_FR"}, {"LANG", "es_ES"}}, {"es_ES"}},
        {{{"LANGUAGE", "pt_BR:en"}, {"LANG", "es_ES"}}, {"pt_BR", "en"}},
        {{{"LANGUAGE", "pt_BR.UTF-8"}, {"LANG", "es_ES"}}, {"pt_BR"}},
        {{{"LANGUAGE", "::en:"}, {"LANG", "es_ES"}}, {"en"}},
        {{{"LANGUAGE", ":"}, {"LANG", "es_ES"}}, {"es_ES"}},
        {{{"LANGUAGE", ""}, {"LANG", "es_ES"}}, {"es_ES"}},
        {{{"LANGUAGE", "en"}, {"LANG", "C"}}, {}},
        {{{"LANGUAGE", "en"}, {"LANG", "C.UTF-8"}}, {}},
        {{{"LANGUAGE", "en"}, {"LC_ALL", "POSIX"}, {"LANG", "es_ES"}}, {}},
        {{{"LANGUAGE", "en"}}, {}},
        {{{"LC_ALL", "C"}, {"LANG", "es_ES"}}, {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(preferredLanguages(EnvironmentVariables(c.variables)), c.languages)
            << testing::PrintToString(c.variables);
}

TEST(Locale, FollowsTheVariablesForNumbers) {
    struct Case {
        Values variables;
        std::string identifier;
    };
    const Case cases[] = {
        {{}, "en_US_POSIX"},
        {{{"LANG", "C"}}, "en_US_POSIX"},
        {{{"LANG", "C.UTF-8"}}, "en_US_POSIX"},
        {{{"LANG", "POSIX"}}, "en_US_POSIX"},
        {{{"LANG", "es_MX.UTF-8"}}, "es_MX"},
        {{{"LC_NUMERIC", "de_DE"}, {"LANG", "es_ES"}}, "de_DE"},
        {{{"LC_ALL", "fr_FR"}, {"LC_NUMERIC", "de_DE"}, {"LANG", "es_ES"}}, "fr_FR"},
        {{{"LC_MESSAGES", "fr_FR"}, {"LANG", "es_ES"}}, "es_ES"},
        {{{"LANGUAGE", "fr"}, {"LANG", "es_ES"}}, "es_ES"},
        {{{"LC_ALL", ""}, {"LC_NUMERIC", "C"}, {"LANG", "es_ES"}}, "en_US_POSIX"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Locale::current(EnvironmentVariables(c.variables)).identifier, c.identifier)
            << testing::PrintToString(c.variables);
}

}  // namespace
}  // namespace foundation
