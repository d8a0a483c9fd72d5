#pragma once

#include "platform/sandbox/Permissions.hpp"

namespace sandbox {

/// How far a kernel confines a process.
struct Confinement {
    /// The version of Landlock that guards files, ports and signals; 0 where nothing does.
    int landlockABI = 0;
    /// Whether sockets, programs, other processes and the like are out of reach.
    bool callsAreFiltered = false;

    /// Whether the kernel leaves out nothing of what is asked of it.
    bool isComplete() const;

    bool operator==(const Confinement&) const = default;
};

/// Confines the calling thread, and those that it starts, for ever: they can use the files that are
/// permitted and the descriptors that are open or that a peer sends, and nothing else. A denied
/// call fails as any other does, the process lives on. Where the kernel offers less, less is
/// confined. Requires that it is the only thread of the process, and that the process keeps no
/// descriptor open that it should not have. Throws std::system_error where the kernel refuses what
/// it offers: then the process must not go on.
Confinement confine(const Permissions& permissions);

/// What `confine` would answer, without confining anything. Never fails; any thread.
Confinement available();

}  // namespace sandbox
