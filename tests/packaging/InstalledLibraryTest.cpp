#include "estado/EstadoParaWidgets.hpp"
#include "packaging/Installed.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "support/Patience.hpp"
#include "support/PrivateSessionBus.hpp"

#include <chrono>
#include <optional>
#include <thread>

namespace packaging {
namespace {

using namespace std::chrono_literals;
using support::Outcome;

/// The example as somebody elsewhere would build it: from a copy, with nothing but the prefix.
struct InstalledLibrary : Installed {
    void build() const {
        const Outcome building = support::run(
            "cp -r '" NURVA_EXAMPLES_FOLDER "/host' source && cmake -S source -B '" +
            work.path().string() + "' -G '" NURVA_GENERATOR "' -DCMAKE_PREFIX_PATH='" + at("") +
            "' -DCMAKE_CXX_COMPILER='" NURVA_COMPILER "' -DCMAKE_CXX_FLAGS='" NURVA_COMPILER_FLAGS
            " -Wall -Wextra -Werror' && cmake --build '" +
            work.path().string() + "'");
        ASSERT_EQ(building.status, 0) << building.output << building.errors;
    }
    /// The level of the first application, once it is this or the time is up.
    double level(double expected) const {
        std::optional<double> published;
        const auto deadline = std::chrono::steady_clock::now() + support::patience;
        while (published != expected && std::chrono::steady_clock::now() < deadline) {
            try {
                const auto text = foundation::readFile(
                    home.path() / "group-containers/group.org.nurva.Nurva/estado.json");
                published = foundation::JSONDecoder()
                                .decode<nurva::EstadoParaWidgets>(text)
                                .apps.at(0)
                                .nivel;
            } catch (const foundation::FileError&) {
                // The host application has not started yet.
            }
            std::this_thread::sleep_for(20ms);
        }
        return published.value_or(-1);
    }
    int perform(const std::string& action) const {
        return support::run(inSession("'" + at("bin/nurva") + "' perform " + action)).status;
    }

    const support::TemporaryFolder work;
    const support::PrivateSessionBus bus;
};

TEST_F(InstalledLibrary, ServesAHostApplicationThatDoesWhatTheWidgetsAsk) {
    ASSERT_NO_FATAL_FAILURE(build());
    support::ChildProcess host(
        {"env", "XDG_DATA_HOME=" + home.path().string(), (work.path() / "host").string()});
    EXPECT_EQ(level(0.8), 0.8);
    EXPECT_EQ(perform("PonerVolumen clave=musica nivel=0.25"), 0);
    EXPECT_EQ(level(0.25), 0.25);
    EXPECT_EQ(perform("PonerVolumen clave=musica nivel=7"), 0);
    EXPECT_EQ(perform("PonerVolumen clave=nadie nivel=0.5"), 0);
    EXPECT_EQ(perform("AlternarEncendido"), 0);
    EXPECT_EQ(perform("PonerVolumen clave=musica nivel=1"), 0);
    EXPECT_EQ(level(1), 1);
}

}  // namespace
}  // namespace packaging
