#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "peticiones/Peticion.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/World.hpp"

#include <atomic>
#include <filesystem>
#include <optional>
#include <string>

/// A container on the disk, in which snapshots are published and loaded, and requests sent, with
/// nothing in between.
class Workplace {
  public:
    Workplace();

    /// The one that is there at first, of the usual size.
    static nurva::EstadoParaWidgets snapshot();
    void publish(const nurva::EstadoParaWidgets& estado) const;
    std::optional<nurva::EstadoParaWidgets> loaded() const;

    void send(const nurva::GrupoDeApps::Peticion& request) const;
    nurva::GrupoDeApps::Peticion standingRequest() const;
    int posts() const { return notifications_.posts; }

    const foundation::Environment& environment() const { return environment_; }
    const std::filesystem::path& container() const { return container_; }

  private:
    struct Counting : foundation::DistributedNotificationCenter {
        void post(std::string_view) const override { ++posts; }
        mutable std::atomic<int> posts = 0;
    };

    support::TemporaryFolder folder_;
    std::filesystem::path container_ = folder_.path() / "group-containers/group.org.nurva.Nurva";
    foundation::DefaultFileManager files_{
        foundation::EnvironmentVariables({{"XDG_DATA_HOME", folder_.path()}})};
    Counting notifications_;
    support::World world_;
    foundation::Environment environment_{world_.clock,
                                         files_,
                                         notifications_,
                                         world_.environment.mainBundle,
                                         {}};
};

/// How many entries a folder has.
std::ptrdiff_t entryCount(const std::filesystem::path& folder);
