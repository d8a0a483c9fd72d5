#pragma once

#include "platform/canvas/PangoTextMeasurer.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "platform/foundation/Environment.hpp"
#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/intents/ActionRuntime.hpp"
#include "platform/process/Extension.hpp"
#include "platform/process/LoopTasks.hpp"
#include "platform/remote/PictureMemory.hpp"
#include "platform/remote/Wire.hpp"
#include "platform/widgets/EntryRenderer.hpp"

#include <cstdint>
#include <map>

namespace process {

/// Answers what the widget host asks over the private socket: which widgets there are, a face drawn
/// into memory that it lent, an action performed. For one thread, on which `tasks` run.
class ExtensionService {
  public:
    /// All must outlive the service.
    ExtensionService(const Extension& extension,
                     const foundation::Environment& environment,
                     LoopTasks& tasks);

    /// Answers a method call of the protocol, now or later. Throws std::system_error,
    /// std::invalid_argument or intents::IntentError for one that cannot be answered; false for one
    /// of another interface.
    bool answer(sd_bus_message& call);

  private:
    enum class Occasion { placeholder, snapshot, timeline };

    void listWidgets(sd_bus_message& call);
    void lend(sd_bus_message& call);
    void giveBack(sd_bus_message& call);
    void draw(Occasion occasion, sd_bus_message& call);
    void perform(sd_bus_message& call);

    const Extension& extension_;
    const foundation::Environment& environment_;
    LoopTasks& tasks_;
    std::map<std::uint32_t, remote::PictureMemory> memories_;
    // Calls to be answered when what they asked for is done.
    std::map<std::uint64_t, foundation::BusMessage> performing_;
    std::uint64_t nextPerformance_ = 0;
    canvas::FontLibrary fonts_;
    canvas::PangoTextMeasurer measurer_{fonts_};
    canvas::PixelCanvas canvas_{fonts_};
    widgets::EntryRenderer renderer_;
    intents::ActionRuntime runtime_;
};

}  // namespace process
