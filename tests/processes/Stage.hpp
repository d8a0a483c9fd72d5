#pragma once

#include "estado/EstadoParaWidgets.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "support/Patience.hpp"
#include "support/PrivateSessionBus.hpp"
#include "support/TemporaryFolder.hpp"
#include "widgethost/Session.hpp"

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A user's session: a home, a bus, and the container of the group if wanted.
class Stage {
  public:
    Stage();
    /// With a snapshot that has been published.
    explicit Stage(nurva::EstadoParaWidgets estado);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Makes the container and publishes the snapshot, dated now.
    void publish(nurva::EstadoParaWidgets estado);
    std::filesystem::path container() const;
    std::string request() const;

    support::PrivateSessionBus& bus() { return bus_; }

  private:
    support::TemporaryFolder home_;
    support::PrivateSessionBus bus_;
};

/// The first snapshot of the demo host application, which lets its widgets change everything.
nurva::EstadoParaWidgets music();

/// Lets the main context work until the condition holds. False when it does not in time.
bool soon(const std::function<bool()>& condition,
          std::chrono::milliseconds patience = support::patience);

/// Lets the main context work for a while.
void letPass(std::chrono::milliseconds time);

/// The extension as it is, which may take its time.
widgethost::SessionOptions realExtension();

/// Whether the widget host takes the request of another program to ask for faces again, those of
/// one kind or all of them. It has done so when this returns.
bool isReloadedFromOutside(const std::string& kind);

/// The process of the extension; 0 where none is running.
pid_t extensionProcess();

/// Sends the extension a signal. Throws where none is running.
void signalExtension(int number);

/// Whether somebody reads this label on a face.
bool hasElement(const remote::Face& face, const std::string& label);

/// Somebody who looks at a card, and remembers what was shown.
struct Viewer {
    Viewer(widgethost::Session& session,
           std::string kind,
           double scale = 2,
           bool asPreview = false);

    /// The element of this label; throws where there is none.
    const remote::Element& element(const std::string& label) const;
    bool shows(const std::string& label) const { return face && hasElement(*face, label); }
    void press(const std::string& label);

    int shown = 0;
    std::vector<remote::Face> faces;   // all that were shown
    std::optional<remote::Face> face;  // none where the card says that the extension stopped
    std::vector<std::uint32_t> pixels;
    canvas::PixelSize size;
    std::unique_ptr<widgethost::Display> display;
};

/// A widget host with one card under the first snapshot of the demo host application. Its first
/// picture is there; throws where none comes.
struct OneCard {
    explicit OneCard(std::string kind, const widgethost::SessionOptions& options = realExtension());

    Stage stage{music()};
    widgethost::Session session;
    Viewer viewer;
};
