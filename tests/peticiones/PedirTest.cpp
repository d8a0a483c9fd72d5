#include "peticiones/Pedir.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <limits>
#include <string>
#include <vector>

namespace {

using nurva::GrupoDeApps::pedir;
using nurva::GrupoDeApps::Peticion;

const std::vector<std::string> once{"org.nurva.Nurva.peticionDeWidget"};

struct Pedir : testing::Test {
    Pedir() { world.files.containers["group.org.nurva.Nurva"] = "/contenedor"; }

    std::string written() const {
        const auto found = world.files.files.find("/contenedor/peticion.json");
        return found == world.files.files.end() ? "nothing" : found->second;
    }

    support::World world;
};

TEST_F(Pedir, WritesTheRequestIntoTheContainerAndPosts) {
    pedir(Peticion::silenciar("a", true), world.environment);
    EXPECT_EQ(written(), R"({"silenciar":{"app":"a","si":true}})");
    EXPECT_EQ(world.notifications.posted(), once);
    EXPECT_EQ(world.files.askedGroups(), std::vector<std::string>{"group.org.nurva.Nurva"});
}

TEST_F(Pedir, WritesOnceAndPostsOncePerRequest) {
    pedir(Peticion::alternarEncendido(), world.environment);
    pedir(Peticion::alternarEncendido(), world.environment);
    EXPECT_EQ(written(), R"({"alternarEncendido":{}})");
    EXPECT_EQ(world.files.writes(), 2u);
    EXPECT_EQ(world.files.reads(), 0u);
    EXPECT_EQ(world.notifications.posted().size(), 2u);
}

TEST_F(Pedir, ReplacesTheRequestBefore) {
    pedir(Peticion::ponerPerfil(std::string(1000, 'p')), world.environment);
    pedir(Peticion::ponerPerfil(""), world.environment);
    EXPECT_EQ(written(), R"({"ponerPerfil":{"_0":""}})");
}

TEST_F(Pedir, PassesOnALevelOutOfRange) {
    pedir(Peticion::volumen("a", 1.5), world.environment);
    EXPECT_EQ(written(), R"({"volumen":{"app":"a","nivel":1.5}})");
    pedir(Peticion::volumen("a", -0.2), world.environment);
    EXPECT_EQ(written(), R"({"volumen":{"app":"a","nivel":-0.2}})");
}

TEST_F(Pedir, DoesNothingAtAllWithoutAContainer) {
    world.files.containers.clear();
    pedir(Peticion::alternarEncendido(), world.environment);
    EXPECT_EQ(world.files.writes(), 0u);
    EXPECT_TRUE(world.notifications.posted().empty());
}

TEST_F(Pedir, DoesNothingAtAllWithARequestThatCannotBeEncoded) {
    world.files.files["/contenedor/peticion.json"] = "before";
    for (const double nivel :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity()})
        pedir(Peticion::volumen("a", nivel), world.environment);
    pedir(Peticion::ponerPerfil("\xff"), world.environment);
    EXPECT_EQ(written(), "before");
    EXPECT_EQ(world.files.writes(), 0u);
    EXPECT_TRUE(world.notifications.posted().empty());
}

TEST_F(Pedir, PostsEvenWhenTheFileCannotBeWritten) {
    world.files.files["/contenedor/peticion.json"] = "before";
    for (const int error : {ENOSPC, EACCES, EROFS, ENOENT}) {
        world.files.writeError = error;
        pedir(Peticion::alternarEncendido(), world.environment);
    }
    EXPECT_EQ(written(), "before");
    EXPECT_EQ(world.notifications.posted().size(), 4u);
}

TEST_F(Pedir, TheFileStandsBeforeThePost) {
    struct Looking : foundation::DistributedNotificationCenter {
        explicit Looking(const Pedir& itsTest) : test(itsTest) {}
        void post(std::string_view) const override { seen = test.written(); }
        const Pedir& test;
        mutable std::string seen;
    };
    const Looking looking(*this);
    const foundation::Environment entorno{
        world.clock, world.files, looking, world.environment.mainBundle, {}};
    pedir(Peticion::ponerPerfil("p"), entorno);
    EXPECT_EQ(looking.seen, R"({"ponerPerfil":{"_0":"p"}})");
}

TEST_F(Pedir, PostsWhereTheRealContainerHasNoRoomForTheFile) {
    const support::TemporaryFolder data;
    const auto container = data.path() / "group-containers/group.org.nurva.Nurva";
    std::filesystem::create_directories(container / "peticion.json" / "in the way");
    const foundation::DefaultFileManager files(
        foundation::EnvironmentVariables({{"XDG_DATA_HOME", data.path()}}));
    const foundation::Environment entorno{
        world.clock, files, world.notifications, world.environment.mainBundle, {}};
    pedir(Peticion::alternarEncendido(), entorno);
    EXPECT_EQ(world.notifications.posted(), once);
    EXPECT_TRUE(std::filesystem::is_directory(container / "peticion.json"));
}

}  // namespace
