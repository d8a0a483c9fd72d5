#include "contract/Document.hpp"
#include "estado/CargarEstado.hpp"
#include "estado/GrupoDeApps.hpp"
#include "estado/Snapshots.hpp"
#include "peticiones/Pedir.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/notifications/NotificationName.hpp"
#include "vistas/Cara.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace {

using nurva::EstadoParaWidgets;
using nurva::GrupoDeApps::Peticion;

/// "accepted", or the kind of the fault.
template <class Value>
std::string verdict(const std::string& text) {
    try {
        foundation::JSONDecoder().decode<Value>(text);
        return "accepted";
    } catch (const foundation::DecodingError& error) {
        return std::string(name(error.kind));
    }
}

/// A good snapshot with these members in the place of its own.
std::string snapshotWith(const std::string& members) {
    const std::string key = members.substr(1, members.find('"', 1) - 1);
    return "{" + members + "," + object(without(fullSnapshot(), key)).substr(1);
}

bool says(const std::string& words) {
    return document::text().find(words) != std::string::npos;
}

TEST(Document, ShowsASnapshotThatIsAccepted) {
    const auto examples = document::blocks("json");
    ASSERT_EQ(examples.size(), 1u);
    EXPECT_EQ(verdict<EstadoParaWidgets>(examples.front()), "accepted");
}

TEST(Document, ShowsEveryRequest) {
    std::set<Peticion::CodingKeys> shown;
    for (const std::string& line : document::lines()) {
        const auto row = document::row(line);
        if (!row || !row->front().starts_with('{'))
            continue;
        ASSERT_EQ(verdict<Peticion>(row->front()), "accepted") << line;
        shown.insert(foundation::JSONDecoder().decode<Peticion>(row->front()).clave());
    }
    EXPECT_EQ(shown.size(), 4u);
}

TEST(Document, TellsTheVerdictOnEachFault) {
    int faults = 0;
    for (const std::string& line : document::lines()) {
        const auto row = document::row(line);
        if (!row || !row->front().starts_with('"'))
            continue;
        ++faults;
        EXPECT_EQ(verdict<EstadoParaWidgets>(snapshotWith(row->front())), row->at(1)) << line;
    }
    EXPECT_GE(faults, 25);
}

TEST(Document, GivesTheNamesAndLimitsOfTheCode) {
    const foundation::NotificationName aviso(nurva::GrupoDeApps::nombreDeNotificacion());
    EXPECT_TRUE(says("signal `" + aviso.member + "` of the interface `" + aviso.interface + "`"));
    EXPECT_TRUE(says("path `" + std::string(foundation::notificationPath) + "`"));
    EXPECT_TRUE(says("group-containers/group." + std::string(nurva::identificadorAnfitrion) + "/"));
    EXPECT_TRUE(says("## " + std::string(nurva::archivoDeEstado)));
    EXPECT_TRUE(says("## " + std::string(nurva::GrupoDeApps::archivoDePeticion)));
    EXPECT_TRUE(
        says("until it is " + std::to_string(std::lround(nurva::segundosDeVigencia)) + " seconds"));
    EXPECT_TRUE(
        says("no more than " + std::to_string(foundation::deepestJSONNesting) + " objects"));
    EXPECT_TRUE(says("at most " + std::to_string(foundation::maximumFileBytes >> 20) + " MiB"));
}

}  // namespace
