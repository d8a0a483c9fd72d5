#include "desktop/card/CardDrag.hpp"

#include "desktop/gtk/Connect.hpp"

#include <cmath>
#include <utility>

namespace desktop {

namespace {

/// A press that moves no farther is no drag.
constexpr double threshold = 6;

bool holdsAlt(GtkGesture* gesture) {
    const auto state = gtk_event_controller_get_current_event_state(GTK_EVENT_CONTROLLER(gesture));
    return (state & GDK_ALT_MASK) != 0;
}

}  // namespace

CardDrag::CardDrag(Card& card, const Mount& mount, Actions actions)
    : card_(card), mount_(mount), actions_(std::move(actions)) {
    GtkGesture* gesture = gtk_gesture_drag_new();
    // Before the controls see it: they would take a press that is meant for the card.
    gtk_event_controller_set_propagation_phase(GTK_EVENT_CONTROLLER(gesture), GTK_PHASE_CAPTURE);
    connect<void(double, double)>(gesture, "drag-begin",
                                  [this, gesture](double x, double y) { begin(gesture, x, y); });
    connect<void(double, double)>(gesture, "drag-update",
                                  [this](double dx, double dy) { update(dx, dy); });
    connect<void(double, double)>(gesture, "drag-end",
                                  [this](double dx, double dy) { end(dx, dy); });
    connect<void(GdkEventSequence*)>(gesture, "cancel", [this](GdkEventSequence*) {
        if (std::exchange(isCarrying_, false))
            actions_.carry(start_);
    });
    gtk_widget_add_controller(card_.widget(), GTK_EVENT_CONTROLLER(gesture));
}

void CardDrag::begin(GtkGesture* gesture, double x, double y) {
    isCarrying_ = false;
    if (card_.hasControlAt(x, y) && !holdsAlt(gesture)) {
        gtk_gesture_set_state(gesture, GTK_EVENT_SEQUENCE_DENIED);
        return;
    }
    gtk_gesture_set_state(gesture, GTK_EVENT_SEQUENCE_CLAIMED);
    gtk_widget_grab_focus(card_.widget());
    start_ = actions_.place();
    // Where the pointer is by now says nothing: it may be far ahead of what is heard of it.
    grip_ = {x, y};
}

void CardDrag::update(double dx, double dy) {
    if (std::hypot(dx, dy) >= threshold)
        isCarrying_ = true;
    if (isCarrying_ && mount_.pointer())
        actions_.carry(destination(dx, dy));
}

void CardDrag::end(double dx, double dy) {
    if (std::exchange(isCarrying_, false))
        actions_.drop(destination(dx, dy));
}

/// Where the window's corner goes. Offsets are of no use for a window that moves along.
views::Point CardDrag::destination(double dx, double dy) const {
    if (const auto pointer = mount_.pointer())
        return {pointer->x - grip_.x, pointer->y - grip_.y};
    return {start_.x + dx, start_.y + dy};
}

}  // namespace desktop
