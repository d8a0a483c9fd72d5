#include "support/Program.hpp"

#include <gmock/gmock.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace packaging {
namespace {

using std::filesystem::path;
using support::contentsOf;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const path packagingFolder = NURVA_PACKAGING_FOLDER;
const path metainfo = packagingFolder / "org.nurva.WidgetHost.metainfo.xml";

/// What the groups of an expression match, for each of its matches in a text.
std::vector<std::smatch> matches(const std::string& text, const std::string& expression) {
    const std::regex regex(expression);
    return {std::sregex_iterator(text.begin(), text.end(), regex), std::sregex_iterator()};
}

/// Width and height of a PNG file, as they stand in its header: "1280x800".
std::string sizeOfPNG(const path& file) {
    const std::string bytes = contentsOf(file);
    if (!bytes.starts_with("\x89PNG") || bytes.size() < 24)
        return "no PNG";
    const auto number = [&](std::size_t start) {
        unsigned value = 0;
        for (std::size_t i = start; i < start + 4; ++i)
            value = value << 8 | static_cast<unsigned char>(bytes[i]);
        return std::to_string(value);
    };
    return number(16) + "x" + number(20);
}

TEST(Metainfo, ShowsPicturesThatTheTestsRemake) {
    const std::string text = contentsOf(metainfo);
    const auto images =
        matches(text, R"re(width="(\d+)" height="(\d+)">https://[^<]*/([^/<]+)</image>)re");
    EXPECT_THAT(images, Not(IsEmpty()));
    EXPECT_EQ(images.size(), matches(text, "<image").size());
    for (const std::smatch& image : images)
        EXPECT_EQ(sizeOfPNG(path(NURVA_TESTS_FOLDER) / "journeys/golden" / image.str(3)),
                  image.str(1) + "x" + image.str(2));
}

TEST(Descriptions, SpeakEveryLanguageOfTheWidgets) {
    for (const auto& folder :
         std::filesystem::directory_iterator(NURVA_RESOURCES_FOLDER "/NurvaWidgets.appex")) {
        const std::string language = folder.path().stem();
        if (folder.path().extension() != ".lproj" || language == "en")
            continue;
        for (const char* element : {"name", "summary", "p", "caption"})
            EXPECT_THAT(contentsOf(metainfo),
                        HasSubstr("<" + std::string(element) + " xml:lang=\"" + language + "\">"));
        for (const char* entry : {"DemoHost", "WidgetHost"})
            for (const char* key : {"Name", "Comment"})
                EXPECT_THAT(contentsOf(packagingFolder /
                                       ("org.nurva." + std::string(entry) + ".desktop.in")),
                            HasSubstr("\n" + std::string(key) + "[" + language + "]="));
    }
}

TEST(Descriptions, NameTheVersionThatTheProgramIs) {
    const auto program = support::run(NURVA_PROGRAM " --version");
    ASSERT_EQ(program.output.rfind("NurvaWidgets ", 0), 0u) << program.errors;
    const std::string version = program.output.substr(13, program.output.size() - 14);
    EXPECT_THAT(contentsOf(metainfo), HasSubstr("<release version=\"" + version + "\""));
    EXPECT_THAT(contentsOf(packagingFolder / "debian/changelog"),
                testing::StartsWith("nurva-widgets (" + version + ")"));
    for (const char* page : {"nurva.1.head", "nurva-widgets.7", "estado.json.5", "peticion.json.5"})
        EXPECT_THAT(contentsOf(packagingFolder / "man" / page),
                    HasSubstr("\"NurvaWidgets " + version + "\""));
}

/// The names of libraries to build with that a list of packages holds.
std::set<std::string> libraries(const std::string& list) {
    std::set<std::string> names;
    for (const std::smatch& name : matches(list, R"(lib[\w.-]+-dev)"))
        names.insert(name.str());
    return names;
}

TEST(Packages, AreBuiltWithTheLibrariesThatTheProjectIsBuiltWith) {
    const std::string control = contentsOf(packagingFolder / "debian/control");
    const auto wanted = libraries(contentsOf(packagingFolder / "../tools/packages/run"));
    EXPECT_THAT(wanted, Not(IsEmpty()));
    EXPECT_EQ(libraries(control.substr(0, control.find("\n\n"))), wanted);
}

/// Desktops paint symbolic icons in the colour of the text around them; what is filled they can
/// paint, what is stroked GTK fills as well.
TEST(SymbolicIcon, IsMadeOfFillsInTheColourOfTheTextOnly) {
    const std::string icon =
        contentsOf(packagingFolder / "icons/org.nurva.WidgetHost-symbolic.svg");
    std::vector<std::string> fills;
    for (const std::smatch& fill : matches(icon, R"re(<path[^>]* fill="([^"]*)")re"))
        fills.push_back(fill[1]);
    EXPECT_EQ(fills.size(), matches(icon, "<path").size());
    EXPECT_THAT(fills, Not(IsEmpty()));
    EXPECT_THAT(fills, Each("currentColor"));
    EXPECT_THAT(icon, Not(HasSubstr("stroke")));
}

}  // namespace
}  // namespace packaging
