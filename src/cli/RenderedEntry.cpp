#include "cli/RenderedEntry.hpp"

#include "platform/views/scene/SceneJSON.hpp"

namespace cli {

namespace {

/// What the face says of its entry.
struct EntrySummary {
    const RenderedEntry& rendered;
};

void encode(foundation::Encoder& encoder, const EntrySummary& summary) {
    encoder.encodeObject([&] {
        encoder.encodeMember("date", summary.rendered.entry.date());
        encoder.encodeMember("hasState", summary.rendered.entry.hasState());
        encoder.encodeMember("reloadAfter", summary.rendered.reloadAfter);
    });
}

}  // namespace

std::string json(const RenderedEntry& rendered) {
    foundation::Encoder encoder;
    encoder.encodeObject([&] {
        encoder.encodeMember("kind", rendered.kind);
        encoder.encodeMember("family", widgets::name(rendered.family));
        encoder.encodeMember("size", rendered.scene.size);
        encoder.encodeMember("scale", rendered.scale);
        encoder.encodeMember("entry", EntrySummary{rendered});
        views::encodeMembers(encoder, rendered.scene);
    });
    return encoder.text() + "\n";
}

std::string json(const widgets::AnyEntry& entry, std::optional<foundation::Date> reloadAfter) {
    foundation::Encoder encoder;
    encoder.encodeObject([&] {
        encoder.encodeMember("date", entry.date());
        entry.encodeState(encoder, "state");
        if (reloadAfter)
            encoder.encodeMember("reloadAfter", *reloadAfter);
        else
            encoder.encodeMember("reloadAfter", nullptr);
    });
    return encoder.text() + "\n";
}

}  // namespace cli
