#pragma once

#include "platform/widgets/AnyEntry.hpp"
#include "platform/widgets/Timeline.hpp"

#include <concepts>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace widgets {

/// What makes a widget's entries. The snapshot and the timeline are answered through `completion`,
/// called exactly once before the call returns. Any thread.
template <class Provider>
concept TimelineProvider =
    requires(const Provider& provider,
             const TimelineProviderContext& context,
             std::function<void(typename Provider::Entry)> entry,
             std::function<void(Timeline<typename Provider::Entry>)> timeline) {
    requires TimelineEntry<typename Provider::Entry>;
    { provider.placeholder(context) } -> std::same_as<typename Provider::Entry>;
    provider.getSnapshot(context, entry);
    provider.getTimeline(context, timeline);
};

/// One widget without settings, as the widget host sees it: what it is called, how large it comes,
/// where its entries come from and how they are drawn. A value; the setters answer changed copies.
class StaticConfiguration {
  public:
    template <TimelineProvider Provider>
    StaticConfiguration(std::string kind,
                        Provider provider,
                        std::function<views::View(const typename Provider::Entry&)> content)
        : kind_(std::move(kind)) {
        using Entry = typename Provider::Entry;
        placeholder_ = [provider, content](const TimelineProviderContext& context) {
            return AnyEntry(provider.placeholder(context), content);
        };
        snapshot_ = [provider, content](const TimelineProviderContext& context) {
            std::optional<AnyEntry> answer;
            provider.getSnapshot(context,
                                 [&](Entry entry) { answer.emplace(std::move(entry), content); });
            return std::move(answer).value();
        };
        timeline_ = [provider, content](const TimelineProviderContext& context) {
            Timeline<AnyEntry> answer;
            provider.getTimeline(context, [&](Timeline<Entry> timeline) {
                for (Entry& entry : timeline.entries)
                    answer.entries.emplace_back(std::move(entry), content);
                answer.policy = timeline.policy;
            });
            return answer;
        };
    }

    /// The Spanish key of the name shown in the gallery.
    StaticConfiguration configurationDisplayName(std::string key) const;
    StaticConfiguration description(std::string key) const;
    StaticConfiguration supportedFamilies(std::vector<WidgetFamily> families) const;

    const std::string& kind() const { return kind_; }
    const std::string& displayNameKey() const { return displayNameKey_; }
    const std::string& descriptionKey() const { return descriptionKey_; }
    const std::vector<WidgetFamily>& families() const { return families_; }

    AnyEntry placeholder(const TimelineProviderContext& context) const {
        return placeholder_(context);
    }
    AnyEntry snapshot(const TimelineProviderContext& context) const { return snapshot_(context); }
    Timeline<AnyEntry> timeline(const TimelineProviderContext& context) const {
        return timeline_(context);
    }

  private:
    std::string kind_;
    std::string displayNameKey_;
    std::string descriptionKey_;
    std::vector<WidgetFamily> families_;
    std::function<AnyEntry(const TimelineProviderContext&)> placeholder_;
    std::function<AnyEntry(const TimelineProviderContext&)> snapshot_;
    std::function<Timeline<AnyEntry>(const TimelineProviderContext&)> timeline_;
};

}  // namespace widgets
