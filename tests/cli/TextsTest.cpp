#include "support/Program.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>

namespace {

/// All sources as one text, literals that stand behind each other joined.
std::string sources() {
    std::string all;
    const std::filesystem::path folder =
        std::filesystem::path(NURVA_TESTS_FOLDER).parent_path() / "src";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".hpp")
            all += support::contentsOf(entry.path());
    return std::regex_replace(all, std::regex("\"\\s*\n\\s*\""), "");
}

/// The literals that are handed to what looks texts up.
std::set<std::string> localizedLiterals(const std::string& sources) {
    const std::regex call(
        "(?:message|aviso_|texto|localized|configurationDisplayName|description)\\(\\s*\"([^\"]+)"
        "\"");
    std::set<std::string> literals;
    for (std::sregex_iterator found(sources.begin(), sources.end(), call), end; found != end;
         ++found)
        literals.insert((*found)[1]);
    return literals;
}

const foundation::StringsTable& english() {
    static const foundation::Bundle bundle = support::World::bundleIn({"en"});
    return bundle.localizedTable();
}

TEST(Texts, EveryTextOfTheCodeIsInEnglish) {
    const auto literals = localizedLiterals(sources());
    EXPECT_GT(literals.size(), 40u);
    for (const std::string& literal : literals)
        EXPECT_NE(english().entry(literal), nullptr) << literal;
}

TEST(Texts, TheEnglishTableHoldsNoTextThatTheCodeLacks) {
    const std::string code = sources();
    for (const std::string& key : english().keys())
        EXPECT_NE(code.find('"' + key + '"'), std::string::npos) << key;
}

}  // namespace
