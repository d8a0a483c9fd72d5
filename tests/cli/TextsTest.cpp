#include "cli/TextFormats.hpp"
#include "platform/foundation/localization/PluralCategory.hpp"
#include "support/Program.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

using foundation::StringsTable;
using Texts = std::set<std::string>;

const std::filesystem::path bundleFolder = NURVA_RESOURCES_FOLDER "/NurvaWidgets.appex";

/// All sources below a folder of `src` as one text, literals that stand behind each other joined.
std::string sources(const std::string& folder = "") {
    std::string all;
    const auto root = std::filesystem::path(NURVA_TESTS_FOLDER).parent_path() / "src" / folder;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".hpp")
            all += support::contentsOf(entry.path());
    return std::regex_replace(all, std::regex("\"\\s*\n\\s*\""), "");
}

void addMatches(Texts& texts, const std::string& sources, const std::string& pattern) {
    const std::regex expression(pattern);
    for (std::sregex_iterator found(sources.begin(), sources.end(), expression), end; found != end;
         ++found)
        texts.insert((*found)[1]);
}

/// The literals that are looked up: those handed to what does so, and in the rooms that choose
/// between texts first, every choice that reads like a text.
Texts localizedLiterals() {
    Texts literals;
    addMatches(literals, sources(),
               "(?:message|aviso_|texto|localized|configurationDisplayName|description|title =)"
               "[({ ]\\s*\"([^\"]+)\"");
    for (const char* room : {"vistas", "anfitrion"})
        addMatches(literals, sources(room), "(?:[?:]|return)\\s*\"([A-Z][^\"]*|[^\"]+ [^\"]+)\"");
    return literals;
}

struct Translation : testing::TestWithParam<std::string> {
    const StringsTable& table() const { return bundle.localizedTable(); }

    foundation::Bundle bundle = support::World::bundleIn({GetParam()});
};

TEST_P(Translation, IsFound) {
    EXPECT_EQ(table().language(), GetParam());
}

TEST_P(Translation, HoldsEveryTextOfTheCode) {
    static const Texts literals = localizedLiterals();
    EXPECT_GT(literals.size(), 190u);
    for (const std::string& literal : literals)
        EXPECT_NE(table().entry(literal), nullptr) << literal;
}

TEST_P(Translation, HoldsNoTextThatTheCodeLacks) {
    static const std::string code = sources();
    for (const std::string& key : table().keys())
        EXPECT_NE(code.find('"' + key + '"'), std::string::npos) << key;
}

TEST_P(Translation, TakesTheArgumentsOfEachText) {
    for (const std::string& key : table().keys()) {
        const auto expected = texts::argumentsOf(key);
        for (const std::string& wording : texts::wordings(*table().entry(key)))
            EXPECT_EQ(texts::argumentsOf(wording), expected) << key << "\n" << wording;
    }
}

TEST_P(Translation, HasAWordingForEveryNumber) {
    for (const std::string& key : table().keys())
        for (const auto& [name, wordings] : table().entry(key)->variables)
            for (const std::int64_t number : {0, 1, 2, 3, 6, 11, 20, 21, 100, 1'000'000}) {
                const auto category = foundation::pluralCategory(number, GetParam());
                EXPECT_TRUE(wordings.contains(category)) << key << ": " << category;
            }
}

/// Every language that the bundle has but Spanish, whose texts are the keys.
std::vector<std::string> languages() {
    std::vector<std::string> languages;
    for (const auto& entry : std::filesystem::directory_iterator(bundleFolder))
        if (entry.path().extension() == ".lproj" && entry.path().stem() != "es")
            languages.push_back(entry.path().stem());
    std::ranges::sort(languages);
    return languages;
}

INSTANTIATE_TEST_SUITE_P(Texts, Translation, testing::ValuesIn(languages()), [](const auto& test) {
    return test.param;
});

TEST(Texts, AreThereInSixLanguagesBesidesSpanish) {
    EXPECT_EQ(languages(), (std::vector<std::string>{"ca", "de", "en", "fr", "it", "pt"}));
}

}  // namespace
