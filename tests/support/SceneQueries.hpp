#pragma once

#include "platform/views/scene/Scene.hpp"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace support {

/// All commands of one kind in drawing order, those in groups too.
template <class Kind>
std::vector<Kind> all(const std::vector<views::Command>& drawing) {
    std::vector<Kind> found;
    for (const views::Command& command : drawing) {
        if (const auto* one = std::get_if<Kind>(&command.alternatives()))
            found.push_back(*one);
        if (const auto* group = std::get_if<views::Group>(&command.alternatives()))
            for (Kind& inner : all<Kind>(group->drawing))
                found.push_back(std::move(inner));
    }
    return found;
}

template <class Kind>
std::vector<Kind> all(const views::Scene& scene) {
    return all<Kind>(scene.drawing);
}

/// The strings of all texts in drawing order.
inline std::vector<std::string> texts(const views::Scene& scene) {
    std::vector<std::string> strings;
    for (const views::DrawText& text : all<views::DrawText>(scene))
        strings.push_back(text.text);
    return strings;
}

/// The one text that reads so; an empty command with an unlikely frame where there is none.
inline views::DrawText textReading(const views::Scene& scene, std::string_view string) {
    for (const views::DrawText& text : all<views::DrawText>(scene))
        if (text.text == string)
            return text;
    return {.frame = {-1, -1, -1, -1}, .text = "no text reads " + std::string(string)};
}

/// The first control with this label, or null.
inline const views::Control* controlLabelled(const views::Scene& scene, std::string_view label) {
    for (const views::Control& control : scene.controls)
        if (control.label == label)
            return &control;
    return nullptr;
}

/// The control that a press at this point meets: the topmost, or null.
inline const views::Control* controlAt(const views::Scene& scene, views::Point point) {
    const views::Control* topmost = nullptr;
    for (const views::Control& control : scene.controls)
        if (control.frame.contains(point))
            topmost = &control;
    return topmost;
}

}  // namespace support
