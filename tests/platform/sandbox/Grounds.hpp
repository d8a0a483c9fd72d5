#pragma once

#include "platform/sandbox/Permissions.hpp"
#include "support/TemporaryFolder.hpp"

#include <filesystem>

/// Folders with a file "file" in each: the container that may be written, a bundle that may be
/// read, and a home that is out of reach. Open to every user, so that only a sandbox refuses.
class Grounds {
  public:
    Grounds();

    std::filesystem::path container() const { return folder_.path() / "container"; }
    std::filesystem::path bundle() const { return folder_.path() / "bundle"; }
    std::filesystem::path home() const { return folder_.path() / "home"; }

    sandbox::Permissions permissions() const {
        return {.readable = {bundle()}, .writable = {container()}};
    }

  private:
    support::TemporaryFolder folder_;
};
