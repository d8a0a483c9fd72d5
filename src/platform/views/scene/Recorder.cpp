#include "platform/views/scene/Recorder.hpp"

#include <algorithm>
#include <utility>

namespace views {

namespace {

Rect boundsOf(const std::vector<Point>& points) {
    if (points.empty())
        return {};
    Point least = points.front();
    Point most = least;
    for (const Point& point : points) {
        least = {std::min(least.x, point.x), std::min(least.y, point.y)};
        most = {std::max(most.x, point.x), std::max(most.y, point.y)};
    }
    return {least.x, least.y, most.x - least.x, most.y - least.y};
}

/// How far a stroked line reaches beyond its points.
double reach(const StrokeStyle& style) {
    const double half = style.lineWidth / 2;
    return style.lineJoin == LineJoin::miter ? half * style.miterLimit : half;
}

/// True where one span lies wholly outside the card's 0 to `card`; an empty one may stand on an
/// edge.
bool liesOutside(double start, double length, double card) {
    const double end = start + length;
    return length > 0 ? start >= card || end <= 0 : start > card || end < 0;
}

}  // namespace

Recorder::Recorder(Size card) {
    constexpr std::size_t usualLength = 64;  // of a list in a face, so that few have to grow
    scene_.size = card;
    scene_.drawing.reserve(usualLength);
    scene_.controls.reserve(usualLength);
    scene_.accessibility.reserve(usualLength);
}

void Recorder::fill(FillShape command) {
    // An opaque rectangle on another of the same frame leaves nothing of it to be seen.
    if (std::holds_alternative<Rectangle>(command.shape) && command.color.alpha == 1 &&
        !commands().empty()) {
        const auto* below = std::get_if<FillShape>(&commands().back().alternatives());
        if (below && below->shape == command.shape && below->frame == command.frame)
            commands().pop_back();
    }
    if (command.color.alpha > 0)
        record(command, command.frame);
}

void Recorder::stroke(StrokeShape command) {
    record(command, command.frame.inset(-command.lineWidth / 2));
}

void Recorder::fill(FillPath command) {
    const Rect bounds = boundsOf(command.points);
    if (!command.points.empty() && command.color.alpha > 0)
        record(std::move(command), bounds);
}

void Recorder::stroke(StrokePath command) {
    const Rect bounds = boundsOf(command.points).inset(-reach(command.style));
    if (!command.points.empty())
        record(std::move(command), bounds);
}

void Recorder::draw(DrawSymbol command) {
    const Rect bounds = command.frame;
    record(std::move(command), bounds);
}

void Recorder::draw(DrawText command) {
    const Rect frame = command.frame;
    if (!command.text.empty()) {
        if (buttonTexts_)
            buttonTexts_->push_back(command.text);
        else if (!isOutside(frame))
            scene_.accessibility.push_back(
                {.role = AccessibilityRole::text, .label = command.text, .frame = frame});
    }
    record(std::move(command), frame);
}

void Recorder::background(const Color& color) {
    scene_.background = color;
}

bool Recorder::isOutOfReach(const Rect& frame) const {
    const Size card = scene_.size;
    return isOutside({frame.x - card.width, frame.y - card.height, frame.width + 2 * card.width,
                      frame.height + 2 * card.height});
}

Scene Recorder::finish() && {
    return std::move(scene_);
}

void Recorder::record(Command command, const Rect& bounds) {
    if (!isOutside(bounds))
        commands().push_back(std::move(command));
}

void Recorder::close(double opacity, std::vector<Command> outer) {
    Group group{opacity, std::exchange(commands(), std::move(outer))};
    if (!group.drawing.empty())
        commands().emplace_back(std::move(group));
}

void Recorder::close(Control&& control, const std::vector<std::string>& texts) {
    if (isOutside(control.frame))
        return;
    if (control.label.empty()) {
        for (const std::string& text : texts)
            control.label += (control.label.empty() ? "" : ", ") + text;
    }
    scene_.accessibility.push_back({.role = AccessibilityRole::button,
                                    .label = control.label,
                                    .enabled = control.enabled,
                                    .frame = control.frame});
    scene_.controls.push_back(std::move(control));
}

bool Recorder::isOutside(const Rect& bounds) const {
    return liesOutside(bounds.x, bounds.width, scene_.size.width) ||
           liesOutside(bounds.y, bounds.height, scene_.size.height);
}

}  // namespace views
