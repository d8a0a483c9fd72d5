#include "support/Program.hpp"

#include <gmock/gmock.h>

#include <filesystem>
#include <regex>
#include <sstream>
#include <string>

namespace packaging {
namespace {

using support::Outcome;
using testing::HasSubstr;

std::string page(const std::string& name) {
    return support::contentsOf(std::filesystem::path(NURVA_PACKAGING_FOLDER) / "man" / name);
}

/// What stands in a page, as its readers copy it: hyphens are written behind a backslash in there.
std::string plain(const std::string& roff) {
    return std::regex_replace(roff, std::regex(R"(\\-)"), "-");
}

TEST(Manual, GivesASnapshotThatIsAccepted) {
    const std::string text = page("estado.json.5");
    const auto start = text.find(".nf\n") + 4;
    const support::TemporaryFolder folder;
    const auto file =
        folder.write("example.json", plain(text.substr(start, text.find(".fi\n") - start)));
    const Outcome check = support::run(NURVA_PROGRAM " check '" + file.string() + "'");
    EXPECT_EQ(check.status, 0) << check.output << check.errors;
}

TEST(Manual, GivesRequestsThatAreAccepted) {
    const std::string text = page("peticion.json.5");
    const support::TemporaryFolder folder;
    const std::regex request(R"re(\.B (\{.*\}))re");
    int count = 0;
    for (std::sregex_iterator found(text.begin(), text.end(), request), end; found != end;
         ++found, ++count) {
        const auto file = folder.write("request.json", plain(found->str(1)));
        const Outcome check = support::run(NURVA_PROGRAM " check-request '" + file.string() + "'");
        EXPECT_EQ(check.status, 0) << found->str(1) << check.output << check.errors;
    }
    EXPECT_EQ(count, 4);
}

TEST(Manual, NamesEveryWidget) {
    std::istringstream lines(support::run(NURVA_PROGRAM " widgets").output);
    int count = 0;
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with("nurva.")) {
            EXPECT_THAT(page("nurva-widgets.7"),
                        HasSubstr("\n.B " + line.substr(0, line.find(' ')) + "\n"));
            ++count;
        }
    EXPECT_EQ(count, 4);
}

}  // namespace
}  // namespace packaging
