#include "platform/remote/Wire.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace remote {

namespace {

constexpr const char* parameterType = "(ayv)";
constexpr const char* elementType = "(ybay(dddd)baya(ayv))";
constexpr const char* widgetType = "(ayayayau)";

/// The inside of a type in parentheses, as a container's contents are named.
std::string inside(std::string_view type) {
    return std::string(type.substr(1, type.size() - 2));
}

void write(sd_bus_message& message, const intents::ParameterValue& value) {
    struct Writer {
        sd_bus_message& message;
        void operator()(const std::string& text) const {
            writing(message, 'v', "ay", [&] { remote::write(message, std::string_view(text)); });
        }
        void operator()(bool truth) const {
            writing(message, 'v', "b", [&] { writeTruth(message, truth); });
        }
        void operator()(double number) const {
            writing(message, 'v', "d", [&] { writeNumber(message, number); });
        }
    };
    std::visit(Writer{message}, value);
}

intents::ParameterValue readValue(sd_bus_message& message) {
    const char* contents = nullptr;
    check(sd_bus_message_peek_type(&message, nullptr, &contents));
    const std::string type = contents ? contents : "";
    return reading(message, 'v', type, [&]() -> intents::ParameterValue {
        if (type == "ay")
            return readText(message);
        if (type == "b")
            return readTruth(message);
        return readNumber(message);
    });
}

void write(sd_bus_message& message, const views::Rect& rect) {
    for (const double number : {rect.x, rect.y, rect.width, rect.height})
        writeNumber(message, number);
}

views::Rect readRect(sd_bus_message& message) {
    return reading(message, 'r', "dddd", [&] {
        views::Rect rect;
        for (double* number : {&rect.x, &rect.y, &rect.width, &rect.height})
            *number = readFinite(message);
        return rect;
    });
}

void write(sd_bus_message& message, const Element& element) {
    writeBasic(message, 'y', static_cast<std::uint8_t>(element.role));
    writeTruth(message, element.enabled);
    remote::write(message, std::string_view(element.label));
    writing(message, 'r', "dddd", [&] { write(message, element.frame); });
    writeTruth(message, element.action.has_value());
    remote::write(message, element.action.value_or(intents::ArchivedAction{}));
}

Element readElement(sd_bus_message& message) {
    return reading(message, 'r', inside(elementType), [&] {
        Element element;
        const auto role = readBasic<std::uint8_t>(message, 'y');
        if (role > static_cast<std::uint8_t>(views::AccessibilityRole::button))
            refuse();
        element.role = static_cast<views::AccessibilityRole>(role);
        element.enabled = readTruth(message);
        element.label = readText(message);
        element.frame = readRect(message);
        const bool isControl = readTruth(message);
        intents::ArchivedAction action = readAction(message);
        if (isControl)
            element.action = std::move(action);
        return element;
    });
}

widgets::WidgetFamily readFamily(sd_bus_message& message) {
    const std::uint32_t family = readCount(message);
    if (family > static_cast<std::uint32_t>(widgets::WidgetFamily::systemMedium))
        refuse();
    return static_cast<widgets::WidgetFamily>(family);
}

}  // namespace

void write(sd_bus_message& message, const intents::ArchivedAction& action) {
    write(message, std::string_view(action.identifier));
    writing(message, 'a', parameterType, [&] {
        for (const auto& parameter : action.parameters)
            writing(message, 'r', inside(parameterType), [&] {
                write(message, std::string_view(parameter.first));
                write(message, parameter.second);
            });
    });
}

intents::ArchivedAction readAction(sd_bus_message& message) {
    intents::ArchivedAction action{.identifier = readText(message)};
    action.parameters = readArray(message, parameterType, [&] {
        return reading(message, 'r', inside(parameterType), [&] {
            std::string name = readText(message);
            return std::pair(std::move(name), readValue(message));
        });
    });
    return action;
}

void write(sd_bus_message& message, const Face& face) {
    writeNumber(message, face.date.secondsSinceReferenceDate);
    writeTruth(message, face.reloadAfter.has_value());
    writeNumber(message, face.reloadAfter.value_or(foundation::Date{}).secondsSinceReferenceDate);
    writing(message, 'a', elementType, [&] {
        for (const Element& element : face.elements)
            writing(message, 'r', inside(elementType), [&] { write(message, element); });
    });
}

Face readFace(sd_bus_message& message) {
    Face face;
    face.date = {readFinite(message)};
    const bool wantsReload = readTruth(message);
    const foundation::Date reload{readFinite(message)};
    if (wantsReload)
        face.reloadAfter = reload;
    face.elements = readArray(message, elementType, [&] { return readElement(message); });
    return face;
}

void write(sd_bus_message& message, const std::vector<WidgetDescription>& gallery) {
    writing(message, 'a', widgetType, [&] {
        for (const WidgetDescription& widget : gallery)
            writing(message, 'r', inside(widgetType), [&] {
                for (const std::string& text :
                     {widget.kind, widget.displayName, widget.description})
                    write(message, std::string_view(text));
                writing(message, 'a', "u", [&] {
                    for (const widgets::WidgetFamily family : widget.families)
                        writeBasic(message, 'u', static_cast<std::uint32_t>(family));
                });
            });
    });
}

std::vector<WidgetDescription> readGallery(sd_bus_message& message) {
    return readArray(message, widgetType, [&] {
        return reading(message, 'r', inside(widgetType), [&] {
            WidgetDescription widget;
            for (std::string* text : {&widget.kind, &widget.displayName, &widget.description})
                *text = readText(message);
            widget.families = readArray(message, "u", [&] { return readFamily(message); });
            if (widget.families.empty())
                refuse();
            return widget;
        });
    });
}

}  // namespace remote
