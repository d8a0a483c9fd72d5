#pragma once

#include "platform/intents/ArchivedAction.hpp"
#include "platform/remote/Face.hpp"
#include "platform/remote/PictureMemory.hpp"
#include "platform/remote/WidgetDescription.hpp"
#include "platform/remote/Wire.hpp"
#include "widgethost/BusConnection.hpp"
#include "widgethost/ExtensionProcess.hpp"
#include "widgethost/Session.hpp"

#include <chrono>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace widgethost {

enum class Occasion { placeholder, snapshot, timeline };

/// How a process of the extension came to its end.
enum class Ending { byItself, hung, fromOutside };

/// What the connection tells of without being asked.
struct LinkEvents {
    std::function<void(const std::string& name)> onPost;
    /// The extension is gone; no answer comes any more. May destroy the link.
    std::function<void()> onClosed;
};

/// The conversation with one process of the extension. One that leaves a question unanswered for
/// longer than the options' patience counts as hung, and is ended.
class ExtensionLink {
  public:
    /// Starts the program. Throws std::system_error.
    ExtensionLink(const SessionOptions& options, LinkEvents events);
    ~ExtensionLink();

    using Slot = std::uint32_t;

    /// Whether nothing that is asked would be answered any more.
    bool isDead() const { return process_.hasEnded(); }

    /// Whether a question has not been answered yet.
    bool isWaitedFor() const;

    /// Ends the conversation, and the process with it; tells how that had ended before.
    Ending end();

    void listWidgets(std::function<void(std::vector<remote::WidgetDescription>)> then);

    /// The memory stays the extension's to draw into until it is given back or lent anew.
    void lend(Slot slot, const remote::PictureMemory& memory);
    void takeBack(Slot slot);

    /// Asks for a face, drawn into the memory that was lent as `slot`. Without one the extension
    /// could not.
    void requestFace(Occasion occasion,
                     const std::string& kind,
                     double scale,
                     Slot slot,
                     std::function<void(std::optional<remote::Face>)> then);

    void perform(const intents::ArchivedAction& action, std::function<void()> then);

  private:
    struct Call;
    using Answer = std::function<void(sd_bus_message&)>;

    foundation::BusMessage method(const char* member) const;
    void send(const foundation::BusMessage& call) const;
    /// Sends a call; `then` gets the answer, which may be an error.
    void ask(const foundation::BusMessage& call, Answer then);
    static int answered(sd_bus_message* answer, void* call, sd_bus_error*);
    static int posted(sd_bus_message* post, void* link, sd_bus_error*);
    void close();

    std::chrono::microseconds patience_;
    LinkEvents events_;
    ExtensionProcess process_;
    std::list<Call> calls_;
    std::optional<BusConnection> connection_;
};

}  // namespace widgethost
