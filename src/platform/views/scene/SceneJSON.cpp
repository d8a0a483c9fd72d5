#include "platform/views/scene/SceneJSON.hpp"

#include "platform/foundation/json/JSONEncoder.hpp"

#include <string>
#include <variant>
#include <vector>

namespace views {

namespace {

using Text = std::string;

Text name(const Shape& shape) {
    struct Name {
        Text operator()(const Rectangle&) const { return "rectangle"; }
        Text operator()(const Circle&) const { return "circle"; }
        Text operator()(const Capsule&) const { return "capsule"; }
        Text operator()(const RoundedRectangle&) const { return "roundedRectangle"; }
    };
    return std::visit(Name{}, shape);
}

Text name(FontWeight weight) {
    switch (weight) {
        case FontWeight::regular:
            return "regular";
        case FontWeight::medium:
            return "medium";
        case FontWeight::semibold:
            return "semibold";
        case FontWeight::bold:
            return "bold";
    }
    return {};
}

Text name(FontDesign design) {
    return design == FontDesign::standard ? "default" : "monospaced";
}

Text name(LineCap cap) {
    return cap == LineCap::butt ? "butt" : "round";
}

Text name(LineJoin join) {
    return join == LineJoin::miter ? "miter" : "round";
}

Text name(AccessibilityRole role) {
    return role == AccessibilityRole::text ? "text" : "button";
}

/// Writes the members of one command's object.
struct CommandMembers {
    foundation::Encoder& encoder;

    void operator()(const FillShape& command) const {
        member("op", Text("fill"));
        shape(command.shape, command.frame);
        member("color", command.color);
    }
    void operator()(const StrokeShape& command) const {
        member("op", Text("stroke"));
        shape(command.shape, command.frame);
        member("lineWidth", command.lineWidth);
        member("color", command.color);
    }
    void operator()(const FillPath& command) const {
        member("op", Text("fill"));
        member("shape", Text("path"));
        member("points", command.points);
        member("color", command.color);
    }
    void operator()(const StrokePath& command) const {
        member("op", Text("stroke"));
        member("shape", Text("path"));
        member("points", command.points);
        member("lineWidth", command.style.lineWidth);
        member("cap", name(command.style.lineCap));
        member("join", name(command.style.lineJoin));
        member("miterLimit", command.style.miterLimit);
        member("color", command.color);
    }
    void operator()(const DrawText& command) const {
        member("op", Text("text"));
        member("frame", command.frame);
        member("text", command.text);
        member("lines", command.lines);
        member("size", command.font.size);
        member("weight", name(command.font.weight));
        member("design", name(command.font.design));
        member("tracking", command.tracking);
        member("color", command.color);
    }
    void operator()(const DrawSymbol& command) const {
        member("op", Text("symbol"));
        member("name", command.name);
        member("frame", command.frame);
        member("size", command.font.size);
        member("weight", name(command.font.weight));
        member("color", command.color);
    }
    void operator()(const Group& command) const {
        member("op", Text("group"));
        member("opacity", command.opacity);
        member("drawing", command.drawing);
    }

  private:
    void shape(const Shape& shape, const Rect& frame) const {
        member("shape", name(shape));
        member("frame", frame);
        if (const auto* rounded = std::get_if<RoundedRectangle>(&shape))
            member("radius", rounded->cornerRadius);
    }
    template <class T>
    void member(std::string_view key, const T& value) const {
        encoder.encodeMember(key, value);
    }
};

struct Parameters {
    const intents::ArchivedAction& action;
};

void encode(foundation::Encoder& encoder, const Parameters& parameters) {
    encoder.encodeObject([&] {
        for (const auto& parameter : parameters.action.parameters)
            std::visit([&](const auto& value) { encoder.encodeMember(parameter.first, value); },
                       parameter.second);
    });
}

}  // namespace

void encode(foundation::Encoder& encoder, const Point& point) {
    encoder.encode(std::vector{point.x, point.y});
}

void encode(foundation::Encoder& encoder, const Size& size) {
    encoder.encode(std::vector{size.width, size.height});
}

void encode(foundation::Encoder& encoder, const Rect& frame) {
    encoder.encode(std::vector{frame.x, frame.y, frame.width, frame.height});
}

void encode(foundation::Encoder& encoder, const Color& color) {
    encoder.encode(std::vector{color.red, color.green, color.blue, color.alpha});
}

void encode(foundation::Encoder& encoder, const Command& command) {
    encoder.encodeObject([&] { std::visit(CommandMembers{encoder}, command.alternatives()); });
}

void encode(foundation::Encoder& encoder, const Control& control) {
    encoder.encodeObject([&] {
        encoder.encodeMember("frame", control.frame);
        encoder.encodeMember("label", control.label);
        encoder.encodeMember("enabled", control.enabled);
        encoder.encodeMember("action", control.action.identifier);
        encoder.encodeMember("parameters", Parameters{control.action});
    });
}

void encode(foundation::Encoder& encoder, const AccessibilityElement& element) {
    encoder.encodeObject([&] {
        encoder.encodeMember("role", name(element.role));
        encoder.encodeMember("label", element.label);
        if (element.role == AccessibilityRole::button)
            encoder.encodeMember("enabled", element.enabled);
        encoder.encodeMember("frame", element.frame);
    });
}

void encodeMembers(foundation::Encoder& encoder, const Scene& scene) {
    encoder.encodeMember("background", scene.background);
    encoder.encodeMember("drawing", scene.drawing);
    encoder.encodeMember("controls", scene.controls);
    encoder.encodeMember("accessibility", scene.accessibility);
}

}  // namespace views
