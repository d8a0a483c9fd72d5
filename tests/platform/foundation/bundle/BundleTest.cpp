#include "platform/foundation/bundle/Bundle.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <filesystem>
#include <fstream>
#include <thread>

namespace foundation {
namespace {

using namespace std::string_literals;
using support::TemporaryFolder;
using Values = std::map<std::string, std::string, std::less<>>;

std::string info(const std::string& entries) {
    return "<plist version=\"1.0\"><dict>" + entries + "</dict></plist>";
}

std::string wordFor(const Bundle& bundle, std::string_view key) {
    const LocalizedFormat* entry = bundle.localizedTable().entry(key);
    return entry ? entry->text : "(none)";
}

/// A bundle with a folder for each language, whose table says which it is.
void writeLanguages(const TemporaryFolder& folder, std::initializer_list<const char*> languages) {
    for (const char* language : languages)
        folder.write(language + ".lproj/Localizable.strings"s,
                     "\"language\" = \""s + language + "\";");
}

TEST(Bundle, OpensFoldersOnly) {
    const TemporaryFolder folder;
    const auto file = folder.write("file", "");
    EXPECT_TRUE(Bundle::open(folder.path()).has_value());
    EXPECT_FALSE(Bundle::open(file).has_value());
    EXPECT_FALSE(Bundle::open(folder.path() / "missing").has_value());
    EXPECT_FALSE(Bundle::open("").has_value());
}

TEST(Bundle, GivesTheInfoDictionary) {
    const TemporaryFolder folder;
    folder.write("Info.plist",
                 info("<key>a</key><string>abc</string><key>n</key><integer>7</integer>"));
    const auto bundle = Bundle::open(folder.path());
    ASSERT_TRUE(bundle.has_value());
    EXPECT_EQ(bundle->objectForInfoDictionaryKey("a"), PropertyList{"abc"s});
    EXPECT_EQ(bundle->objectForInfoDictionaryKey("n"), PropertyList{std::int64_t{7}});
    EXPECT_EQ(bundle->objectForInfoDictionaryKey("A"), std::nullopt);
    EXPECT_EQ(bundle->objectForInfoDictionaryKey(""), std::nullopt);
}

TEST(Bundle, AnInfoFileThatCannotBeReadHoldsNothing) {
    for (const std::string& bytes : {""s, "junk"s, "<plist><array/></plist>"s}) {
        const TemporaryFolder folder;
        folder.write("Info.plist", bytes);
        EXPECT_EQ(Bundle::open(folder.path())->objectForInfoDictionaryKey("a"), std::nullopt)
            << bytes;
    }
    const TemporaryFolder empty;
    EXPECT_EQ(Bundle::open(empty.path())->objectForInfoDictionaryKey("a"), std::nullopt);
}

TEST(Bundle, FindsAResourceByItsExactName) {
    const TemporaryFolder folder;
    writeLanguages(folder, {"en", "es-MX"});
    const auto bundle = Bundle::open(folder.path());
    EXPECT_EQ(bundle->pathForResource("en", "lproj"), folder.path() / "en.lproj");
    EXPECT_EQ(bundle->pathForResource("es-MX", "lproj"), folder.path() / "es-MX.lproj");
    EXPECT_EQ(bundle->pathForResource("en.lproj", ""), folder.path() / "en.lproj");
    using namespace std::string_view_literals;
    for (const std::string_view name :
         {"EN"sv, "es"sv, "es_MX"sv, "xx"sv, ""sv, "."sv, ".."sv, "./en"sv, "x/../en"sv, "/en"sv,
          "en/"sv, "en.lproj\0"sv, "e\0n"sv, "en "sv})
        EXPECT_EQ(bundle->pathForResource(name, "lproj"), std::nullopt)
            << testing::PrintToString(name);
    EXPECT_EQ(bundle->pathForResource(std::string(5000, 'a'), "lproj"), std::nullopt);
    EXPECT_EQ(bundle->pathForResource(".", ""), std::nullopt);
    EXPECT_EQ(bundle->pathForResource("..", ""), std::nullopt);
    EXPECT_EQ(bundle->pathForResource(".", "."), std::nullopt);
    EXPECT_EQ(bundle->pathForResource("en", "lproj/Localizable.strings"), std::nullopt);
}

TEST(Bundle, ALanguageFolderHoldsItsOwnTexts) {
    const TemporaryFolder folder;
    writeLanguages(folder, {"en"});
    folder.write("fr.lproj/other", "");
    EXPECT_EQ(wordFor(*Bundle::open(folder.path() / "en.lproj"), "language"), "en");
    EXPECT_EQ(Bundle::open(folder.path() / "en.lproj")->localizedTable().language(), "en");
    EXPECT_EQ(wordFor(*Bundle::open(folder.path() / "fr.lproj"), "language"), "(none)");
}

TEST(Bundle, TheMainOneChoosesAmongTheFoldersPresent) {
    const TemporaryFolder folder;
    writeLanguages(folder, {"es", "en", "en-GB", "pt_BR", "de"});
    std::filesystem::create_directory(folder.path() / "it.lproj");
    struct Case {
        Values variables;
        std::string language;
    };
    const Case cases[] = {
        {{}, "es"},
        {{{"LANG", "C"}}, "es"},
        {{{"LANG", "C.UTF-8"}, {"LANGUAGE", "en"}}, "es"},
        {{{"LANG", "es_ES.UTF-8"}}, "es"},
        {{{"LANG", "es_MX.UTF-8"}}, "es"},
        {{{"LANG", "en_US.UTF-8"}}, "en"},
        {{{"LANG", "en_GB.UTF-8"}}, "en-GB"},
        {{{"LANG", "pt_BR.UTF-8"}}, "pt_BR"},
        {{{"LANG", "pt_PT.UTF-8"}}, "es"},
        {{{"LANG", "fr_FR.UTF-8"}}, "es"},
        {{{"LANG", "de_AT@euro"}}, "de"},
        {{{"LANG", "es_ES"}, {"LANGUAGE", "fr:en_GB:de"}}, "en-GB"},
        {{{"LANG", "es_ES"}, {"LANGUAGE", "fr_CA:de_DE"}}, "de"},
        {{{"LANG", "es_ES"}, {"LANGUAGE", "fr:ja"}}, "es"},
        {{{"LANG", "en_US"}, {"LANGUAGE", "fr:ja"}}, "es"},
        {{{"LANG", "es_ES"}, {"LANGUAGE", "it:de"}}, "de"},
        {{{"LANG", "es_ES"}, {"LC_MESSAGES", "de_DE"}}, "de"},
        {{{"LANG", "es_ES"}, {"LC_MESSAGES", "de_DE"}, {"LC_ALL", "en_US"}}, "en"},
        {{{"LANG", "en_US"}, {"LC_NUMERIC", "de_DE"}}, "en"},
        {{{"LANG", "en_US"}, {"LC_ALL", "POSIX"}}, "es"},
        {{{"LANG", "EN_US"}}, "es"},
        {{{"LANG", "../en"}}, "es"},
        {{{"LANG", "es_ES"}, {"LANGUAGE", "/:en"}}, "en"},
    };
    for (Case c : cases) {
        c.variables["NURVA_BUNDLE"] = folder.path();
        const Bundle bundle = Bundle::main(EnvironmentVariables(c.variables));
        EXPECT_EQ(wordFor(bundle, "language"), c.language) << testing::PrintToString(c.variables);
        EXPECT_EQ(bundle.localizedTable().language(), c.language);
    }
}

TEST(Bundle, WithoutASuitableFolderTheLanguageItWasWrittenInIsTaken) {
    const TemporaryFolder folder;
    writeLanguages(folder, {"es", "en", "de"});
    folder.write("Info.plist", info("<key>CFBundleDevelopmentRegion</key><string>de</string>"));
    EXPECT_EQ(wordFor(Bundle::localized(folder.path(), {"fr"}), "language"), "de");
    EXPECT_EQ(wordFor(Bundle::localized(folder.path(), {""}), "language"), "de");
    EXPECT_EQ(wordFor(Bundle::localized(folder.path(), {}), "language"), "de");
    folder.write("Info.plist", info("<key>CFBundleDevelopmentRegion</key><integer>1</integer>"));
    EXPECT_EQ(wordFor(Bundle::localized(folder.path(), {"fr"}), "language"), "es");
}

TEST(Bundle, TheFirstTableFoundIsTheTableEvenWhenItLacksAKey) {
    const TemporaryFolder folder;
    folder.write("es.lproj/Localizable.strings", "/* nothing to translate */");
    folder.write("fr.lproj/Localizable.strings", "junk");
    folder.write("en.lproj/Localizable.strings", "k = english;");
    for (const char* language : {"es", "fr"})
        EXPECT_EQ(wordFor(Bundle::localized(folder.path(), {language, "en"}), "k"), "(none)")
            << language;
}

TEST(Bundle, AFolderThatIsNotThereIsABundleWithoutAnything) {
    const Bundle bundle = Bundle::localized("/nowhere/at/all", {"en"});
    EXPECT_EQ(wordFor(bundle, "k"), "(none)");
    EXPECT_EQ(bundle.pathForResource("en", "lproj"), std::nullopt);
    EXPECT_EQ(bundle.objectForInfoDictionaryKey("a"), std::nullopt);
}

TEST(Bundle, AChangedTableIsSeenByTheNextBundleOpened) {
    const TemporaryFolder folder;
    folder.write("Localizable.strings", "k = first;");
    const auto before = Bundle::open(folder.path());
    EXPECT_EQ(wordFor(*before, "k"), "first");
    folder.write("next", "k = other;");
    std::filesystem::rename(folder.path() / "next", folder.path() / "Localizable.strings");
    EXPECT_EQ(wordFor(*Bundle::open(folder.path()), "k"), "other");
    EXPECT_EQ(wordFor(*before, "k"), "first");
}

TEST(Bundle, ATableThatCannotBeReadNowIsReadByTheNextBundleOpened) {
    const TemporaryFolder folder;
    folder.write("Localizable.strings", "k = word;");
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};  // as where all descriptors are in use
    ::setrlimit(RLIMIT_NOFILE, &none);
    const std::string unread = wordFor(*Bundle::open(folder.path()), "k");
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(unread, "(none)");
    EXPECT_EQ(wordFor(*Bundle::open(folder.path()), "k"), "word");
}

TEST(Bundle, HasALocalizationWhereThereIsAFolderOfItsName) {
    const support::TemporaryFolder folder;
    std::filesystem::create_directories(folder.path() / "en.lproj");
    std::filesystem::create_directories(folder.path() / "fr.lproj");
    std::ofstream(folder.path() / "en.lproj" / "Localizable.strings") << R"("mudo" = "muted";)";
    std::ofstream(folder.path() / "de.lproj") << "no folder";
    const Bundle bundle = Bundle::localized(folder.path(), {"es"});
    const auto english = bundle.localization("en");
    ASSERT_TRUE(english);
    EXPECT_EQ(english->path(), folder.path() / "en.lproj");
    EXPECT_EQ(english->localizedTable().keys(), std::vector<std::string>{"mudo"});
    const auto french = bundle.localization("fr");
    ASSERT_TRUE(french);
    EXPECT_EQ(french->localizedTable().size(), 0u);
    for (const char* none : {"de", "it", "EN", "", ".", "../en"})
        EXPECT_FALSE(bundle.localization(none)) << none;
}

TEST(Bundle, AnUnchangedTableIsReadOnce) {
    const TemporaryFolder folder;
    folder.write("Localizable.strings", "k = v;");
    const auto first = Bundle::open(folder.path());
    const auto second = Bundle::open(folder.path());
    EXPECT_EQ(&first->localizedTable(), &second->localizedTable());
}

TEST(Bundle, ManyTablesInTurnStayRight) {
    const TemporaryFolder folder;
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 20; ++i) {
            const std::string name = std::to_string(i);
            if (round == 0)
                folder.write(name + "/Localizable.strings", "k = " + name + ";");
            EXPECT_EQ(wordFor(*Bundle::open(folder.path() / name), "k"), name);
        }
    }
}

TEST(Bundle, CopiesServeSeveralThreads) {
    const TemporaryFolder folder;
    writeLanguages(folder, {"en"});
    const Bundle bundle = Bundle::localized(folder.path(), {"en"});
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t) {
        threads.emplace_back([bundle, &folder] {
            EXPECT_EQ(wordFor(bundle, "language"), "en");
            EXPECT_EQ(wordFor(*Bundle::open(folder.path() / "en.lproj"), "language"), "en");
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

TEST(Bundle, TheMainOneLiesBesideTheProgram) {
    const Bundle bundle = Bundle::main(EnvironmentVariables());
    EXPECT_EQ(bundle.objectForInfoDictionaryKey("CFBundleIdentifier"),
              PropertyList{"org.nurva.Nurva.NurvaWidgets"s});
}

}  // namespace
}  // namespace foundation
