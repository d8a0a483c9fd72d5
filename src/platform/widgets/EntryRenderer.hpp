#pragma once

#include "platform/foundation/Environment.hpp"
#include "platform/views/scene/Card.hpp"
#include "platform/views/scene/Scene.hpp"
#include "platform/widgets/AnyEntry.hpp"

namespace widgets {

/// Makes the scene of an entry. Views share process-wide values while they are built, so all
/// renderers of a process take turns here; any thread may ask.
class EntryRenderer {
  public:
    /// Both must outlive the renderer.
    EntryRenderer(const foundation::Environment& environment, const views::TextMeasurer& measurer);

    views::Scene render(const AnyEntry& entry, const views::Card& card) const;

  private:
    const foundation::Environment& environment_;
    const views::TextMeasurer& measurer_;
};

}  // namespace widgets
