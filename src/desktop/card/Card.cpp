#include "desktop/card/Card.hpp"

#include "desktop/card/CardWidget.hpp"
#include "desktop/card/StoppedNotice.hpp"
#include "desktop/card/Texture.hpp"

#include <cmath>
#include <utility>

namespace desktop {

namespace {

constexpr GdkRGBA plainBackground{0.086F, 0.098F, 0.106F, 1};

}  // namespace

Card::Card(const std::string& name, views::Size size, Press press)
    : size_(size),
      press_(std::move(press)),
      widget_(kept(newCardWidget(*this, static_cast<bool>(press_)))) {
    setName(name);
}

Card::~Card() {
    children_.clear();
    showStopped(false);
    letGo(widget());
}

void Card::show(const widgethost::Shown& shown) {
    picture_ = shown.face ? texture(shown.pixels) : nullptr;
    showStopped(!shown.face);
    if (press_)
        showElements(shown.face ? shown.face->elements : std::vector<remote::Element>());
    gtk_widget_queue_draw(widget());
}

void Card::setName(const std::string& name) {
    gtk_accessible_update_property(GTK_ACCESSIBLE(widget()), GTK_ACCESSIBLE_PROPERTY_LABEL,
                                   name.c_str(), -1);
}

void Card::setUnitsPerPoint(double units) {
    unitsPerPoint_ = units;
    gtk_widget_queue_resize(widget());
}

void Card::showStopped(bool isStopped) {
    if (isStopped == (stopped_ != nullptr))
        return;
    if (isStopped) {
        stopped_ = stoppedNotice();
        gtk_widget_set_parent(stopped_, widget());
    } else {
        gtk_widget_unparent(std::exchange(stopped_, nullptr));
    }
}

void Card::showElements(const std::vector<remote::Element>& elements) {
    if (elements == elements_)
        return;
    const auto before = focused();
    const auto after = before ? focusAfterChange(elements_, *before, elements) : std::nullopt;
    replaceElements(elements);
    if (before && (!after || focused() != after))
        focus(after);
    gtk_widget_queue_allocate(widget());
}

void Card::replaceElements(const std::vector<remote::Element>& elements) {
    elements_ = elements;
    if (children_.size() > elements.size())
        children_.resize(elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i) {
        if (i == children_.size())
            children_.emplace_back();
        if (!children_[i] || children_[i]->role() != elements[i].role) {
            children_[i].reset();
            GtkWidget* previous = i > 0 ? children_[i - 1]->widget() : nullptr;
            children_[i] = std::make_unique<CardElement>(elements[i].role, widget(), previous,
                                                         [this, i] { press(i); });
        }
        children_[i]->update(elements[i]);
    }
}

std::optional<std::size_t> Card::focused() const {
    for (std::size_t i = 0; i < children_.size(); ++i)
        if (gtk_widget_is_focus(children_[i]->widget()))
            return i;
    return std::nullopt;
}

void Card::focus(std::optional<std::size_t> element) {
    gtk_widget_grab_focus(element ? children_[*element]->widget() : widget());
}

bool Card::moveFocus(FocusMove move) {
    const auto from = focused();
    const bool isOnCard = gtk_widget_is_focus(widget());
    // The card itself comes before its elements.
    if (!from && !isOnCard && move != FocusMove::backward)
        return gtk_widget_grab_focus(widget());
    const bool isOnFirstStop = isOnCard && move == FocusMove::backward;
    if (const auto next = isOnFirstStop ? std::nullopt : nextFocus(elements_, from, move))
        return gtk_widget_grab_focus(children_[*next]->widget());
    if (move == FocusMove::backward && !isOnCard)
        return gtk_widget_grab_focus(widget());
    return false;
}

void Card::press(std::size_t element) {
    // A copy: what comes of the press may replace the elements.
    if (const auto action = elements_[element].action)
        press_(*action);
}

bool Card::hasControlAt(double x, double y) const {
    const GtkWidget* at = gtk_widget_pick(widget(), x, y, GTK_PICK_DEFAULT);
    return at && at != widget() && at != stopped_;
}

int Card::length(GtkOrientation orientation) const {
    const double points = orientation == GTK_ORIENTATION_HORIZONTAL ? size_.width : size_.height;
    return static_cast<int>(std::ceil(points * unitsPerPoint_));
}

void Card::allocate(int width, int height) {
    for (std::size_t i = 0; i < children_.size(); ++i)
        children_[i]->allocate(elements_[i].frame, unitsPerPoint_);
    if (stopped_) {
        gtk_widget_measure(stopped_, GTK_ORIENTATION_HORIZONTAL, -1, nullptr, nullptr, nullptr,
                           nullptr);
        const GtkAllocation whole{0, 0, width, height};
        gtk_widget_size_allocate(stopped_, &whole, -1);
    }
}

void Card::snapshot(GtkSnapshot* snapshot) {
    if (picture_)
        snapshotPicture(snapshot);
    else
        snapshotPlainCard(snapshot);
    if (stopped_)
        gtk_widget_snapshot_child(widget(), stopped_, snapshot);
    for (const auto& child : children_)
        gtk_widget_snapshot_child(widget(), child->widget(), snapshot);
}

void Card::snapshotPicture(GtkSnapshot* snapshot) const {
    // A pixel of the picture is one of the screen, as soon as it comes in the scale of the screen:
    // a card need not fill its last unit.
    const auto pixelsPerUnit = static_cast<float>(gtk_widget_get_scale_factor(widget()));
    const auto length = [&](int pixels, double points) {
        const auto exact = static_cast<float>(pixels) / pixelsPerUnit;
        const auto wanted = static_cast<float>(points * unitsPerPoint_);
        return std::abs(exact - wanted) < 1 ? exact : wanted;
    };
    GdkTexture* picture = picture_.get();
    const graphene_rect_t place{{0, 0},
                                {length(gdk_texture_get_width(picture), size_.width),
                                 length(gdk_texture_get_height(picture), size_.height)}};
    gtk_snapshot_append_texture(snapshot, picture, &place);
}

void Card::snapshotPlainCard(GtkSnapshot* snapshot) const {
    const auto units = [&](double points) { return static_cast<float>(points * unitsPerPoint_); };
    const graphene_rect_t place{{0, 0}, {units(size_.width), units(size_.height)}};
    GskRoundedRect card;
    gsk_rounded_rect_init_from_rect(&card, &place, units(cornerRadius));
    gtk_snapshot_push_rounded_clip(snapshot, &card);
    gtk_snapshot_append_color(snapshot, &plainBackground, &place);
    gtk_snapshot_pop(snapshot);
}

}  // namespace desktop
