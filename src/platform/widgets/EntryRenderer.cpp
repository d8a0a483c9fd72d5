#include "platform/widgets/EntryRenderer.hpp"

#include "platform/views/view/BuildEnvironment.hpp"

#include <mutex>

namespace widgets {

EntryRenderer::EntryRenderer(const foundation::Environment& environment,
                             const views::TextMeasurer& measurer)
    : environment_(environment), measurer_(measurer) {}

views::Scene EntryRenderer::render(const AnyEntry& entry, const views::Card& card) const {
    static std::mutex oneBuildAtATime;
    const std::lock_guard turn(oneBuildAtATime);
    // Parts of a view are made as late as when their size is known, so the layout is in the scope
    // too.
    const views::BuildScope scope(environment_);
    return views::layOut(entry.content(), card, measurer_);
}

}  // namespace widgets
