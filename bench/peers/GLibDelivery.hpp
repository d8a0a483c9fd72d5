#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace peers {

/// A request handed over with GLib alone: its JSON printed, written by `g_file_set_contents`, its
/// signal sent by GDBus over a connection that is kept.
class GLibDelivery {
  public:
    /// Requires a session bus.
    explicit GLibDelivery(std::filesystem::path file);
    ~GLibDelivery();

    void deliver(const std::string& app, double level);

  private:
    struct Connection;
    std::filesystem::path file_;
    std::unique_ptr<Connection> connection_;
};

}  // namespace peers
