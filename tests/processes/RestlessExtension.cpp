#include "platform/foundation/Date.hpp"
#include "platform/process/WidgetBundleMain.hpp"
#include "platform/views/text/Text.hpp"

#include <functional>
#include <optional>

/// An extension whose only widget wants to be asked again before it has answered, over and over.
namespace {

struct Moment {
    foundation::Date date;
};

std::optional<double> state(const Moment& moment) {
    return moment.date.secondsSinceReferenceDate;
}

struct Restless {
    using Entry = Moment;
    using Context = widgets::TimelineProviderContext;

    Moment placeholder(const Context& context) const {
        return {.date = context.environment.clock.now()};
    }
    void getSnapshot(const Context& context, const std::function<void(Moment)>& completion) const {
        completion(placeholder(context));
    }
    void getTimeline(const Context& context,
                     const std::function<void(widgets::Timeline<Moment>)>& completion) const {
        const foundation::Date longAgo = context.environment.clock.now().addingTimeInterval(-3600);
        completion({.entries = {placeholder(context)},
                    .policy = widgets::TimelineReloadPolicy::after(longAgo)});
    }
};

widgets::WidgetBundle onlyRestless() {
    return {widgets::StaticConfiguration("restless", Restless{}, [](const Moment&) {
                return views::Text("now");
            }).supportedFamilies({widgets::WidgetFamily::systemSmall})};
}

const intents::IntentRegistry& noActions() {
    static const intents::IntentRegistry registry;
    return registry;
}

}  // namespace

int main() {
    process::widgetBundleMain({.widgets = onlyRestless, .actions = noActions});
    return 0;
}
