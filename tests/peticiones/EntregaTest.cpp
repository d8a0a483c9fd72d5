// Many actions at once, into a real folder, with readers that look all the time.

#include "peticiones/Pedir.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;
using nurva::GrupoDeApps::pedir;
using nurva::GrupoDeApps::Peticion;

class CountingCenter : public foundation::DistributedNotificationCenter {
  public:
    void post(std::string_view) const override { ++posts; }
    mutable std::atomic<int> posts = 0;
};

/// What a writer asks for on its turn: short and long, so that a torn file would show.
Peticion request(int writer, int turn) {
    return Peticion::volumen(
        std::to_string(writer) + std::string(static_cast<std::size_t>(turn % 50) * 40, 'a'), turn);
}

struct Entrega : testing::Test {
    Entrega() { fs::create_directories(container); }

    Peticion standing() const {
        return foundation::JSONDecoder().decode<Peticion>(
            foundation::readFile(container / "peticion.json"));
    }

    const support::TemporaryFolder data;
    const fs::path container = data.path() / "group-containers/group.org.nurva.Nurva";
    const foundation::DefaultFileManager files{
        foundation::EnvironmentVariables({{"XDG_DATA_HOME", data.path()}})};
    const CountingCenter center;
    const support::World world;
    const foundation::Environment entorno{world.clock,
                                          files,
                                          center,
                                          world.environment.mainBundle,
                                          {}};
};

TEST_F(Entrega, ManyWritersAndReadersSeeWholeRequestsOnly) {
    const int turns = std::getenv("NURVA_LONG") ? 100'000 : 300;
    pedir(request(0, 0), entorno);
    std::atomic<bool> done = false;
    std::atomic<int> reads = 0;
    std::vector<std::jthread> readers(4);
    for (auto& reader : readers)
        reader = std::jthread([&] {
            for (; !done; ++reads) {
                const auto volumen = std::get<Peticion::Volumen>(standing().caso);
                const int writer = volumen.app.at(0) - '0';
                ASSERT_EQ(Peticion{volumen}, request(writer, static_cast<int>(volumen.nivel)));
            }
        });
    std::vector<std::jthread> writers;
    for (int writer = 0; writer < 8; ++writer)
        writers.emplace_back([&, writer] {
            for (int turn = 0; turn < turns; ++turn)
                pedir(request(writer, turn), entorno);
        });
    writers.clear();
    done = true;
    readers.clear();

    RecordProperty("requests", 8 * turns);
    EXPECT_GT(reads, 0);
    EXPECT_EQ(center.posts, 8 * turns + 1);
    EXPECT_EQ(std::get<Peticion::Volumen>(standing().caso).nivel, turns - 1)
        << "the last request of one of the writers";
    EXPECT_EQ(std::distance(fs::directory_iterator(container), fs::directory_iterator()), 1);
    pedir(Peticion::ponerPerfil("last"), entorno);
    EXPECT_EQ(standing(), Peticion::ponerPerfil("last"));
}

}  // namespace
