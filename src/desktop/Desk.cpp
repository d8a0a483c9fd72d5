#include "desktop/Desk.hpp"

#include "desktop/Explanation.hpp"
#include "desktop/Zoom.hpp"
#include "platform/foundation/localization/Message.hpp"
#include "widgethost/Arrangement.hpp"
#include "widgethost/Changes.hpp"

#include <algorithm>
#include <utility>

namespace desktop {

using widgethost::Grid;
using widgethost::PlacedWidget;

namespace {

std::int64_t span(const remote::WidgetDescription& widget) {
    return Grid::span(widgets::cardSize(widget.families.front()));
}

}  // namespace

Desk::Desk(Surroundings surroundings,
           WidgetSource& source,
           Mount& mount,
           widgethost::PlacementFile file)
    : surroundings_(std::move(surroundings)),
      source_(source),
      mount_(mount),
      file_(std::move(file)),
      unitsPerPoint_(unitsPerPoint(surroundings_.display, surroundings_.scale)),
      monitors_(surroundings_.display, mount_, [this] { later_.run([this] { adapt(); }); }),
      resolutionChanges_(
          gtk_settings_get_for_display(surroundings_.display),
          connect<void(GParamSpec*)>(gtk_settings_get_for_display(surroundings_.display),
                                     "notify::gtk-xft-dpi",
                                     [this](GParamSpec*) { later_.run([this] { adapt(); }); })) {}

Desk::~Desk() {
    if (patience_ != 0)
        g_source_remove(patience_);
}

void Desk::open() {
    auto remembered = file_.load();
    isNew_ = !remembered;
    placement_ = std::move(remembered).value_or(widgethost::Placement{});
    for (const PlacedWidget& widget : placement_.widgets)
        putUp(widget);
    arrange();
    source_.onGalleryChanged([this] { later_.run([this] { galleryChanged(); }); });
    galleryChanged();
    if (isNew_)
        awaitWidgets();
    else if (cards_.empty())
        openGallery();
    explainWindows();
}

void Desk::openGallery() {
    if (!gallery_) {
        gallery_ = std::make_unique<Gallery>(
            source_, unitsPerPoint_, mount_.placesWindows(),
            Gallery::Requests{
                .add = [this](const std::string& kind) { later_.run([=, this] { add(kind); }); },
                .remove =
                    [this](std::size_t index) {
                        later_.run([this, card = cards_[index].get()] { remove(card); });
                    },
                .placeAnew = [this] { later_.run([this] { placeAnew(); }); },
                .focusCard = [this](int step) { focusNeighbour(nullptr, step); },
                .close =
                    [this] {
                        later_.run([this] {
                            gallery_.reset();
                            if (cards_.empty())
                                surroundings_.onEmpty();
                        });
                    },
            });
        updateGallery();
    }
    gallery_->present();
}

/// Shows the gallery, which says that it has nothing to show, when no widgets come.
void Desk::awaitWidgets() {
    const auto loseIt = [](gpointer self) -> gboolean {
        auto* desk = static_cast<Desk*>(self);
        desk->patience_ = 0;
        if (desk->isNew_)
            desk->openGallery();
        return G_SOURCE_REMOVE;
    };
    patience_ = g_timeout_add(static_cast<unsigned>(surroundings_.patience.count()), loseIt, this);
}

/// All widgets there are, for a user who has none yet and has not taken them away.
void Desk::welcome() {
    const Screens now = screens();
    for (const remote::WidgetDescription& widget : source_.gallery())
        widgethost::add(placement_, widget.kind, span(widget), now.monitors);
    for (const PlacedWidget& widget : placement_.widgets)
        putUp(widget);
    isNew_ = false;
    arrange();
    remember();
}

void Desk::galleryChanged() {
    if (isNew_ && !source_.gallery().empty())
        welcome();
    for (std::size_t i = 0; i < cards_.size(); ++i)
        cards_[i]->setName(nameOf(placement_.widgets[i].kind));
    if (gallery_)
        gallery_->showWidgets();
    updateGallery();
}

void Desk::putUp(const PlacedWidget& widget) {
    // The requests name the card that is only about to be made.
    auto self = std::make_shared<CardWindow*>(nullptr);
    const auto soon = [this, self](auto act) {
        return [this, self, act] { later_.run([this, self, act] { (this->*act)(*self); }); };
    };
    CardRequests requests{
        .remove = soon(&Desk::remove),
        .addWidgets = [this] { later_.run([this] { openGallery(); }); },
        .placeAnew = [this] { later_.run([this] { placeAnew(); }); },
        .move = [this, self](widgethost::Direction direction) { move(*self, direction); },
        .drop = [this, self](views::Point corner) { drop(*self, corner); },
        .focusNeighbour = [this, self](int step) { focusNeighbour(*self, step); },
    };
    cards_.push_back(std::make_unique<CardWindow>(described(widget), unitsPerPoint_, source_,
                                                  mount_, std::move(requests)));
    *self = cards_.back().get();
}

void Desk::add(const std::string& kind) {
    const auto& all = source_.gallery();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const auto& widget) { return widget.kind == kind; });
    if (found == all.end())
        return;
    if (!widgethost::add(placement_, kind, span(*found), screens().monitors)) {
        if (gallery_)
            gallery_->say(foundation::message("Ya no cabe ninguno más: quita antes otro."));
        return;
    }
    putUp(placement_.widgets.back());
    arrange();
    remember();
}

void Desk::remove(CardWindow* card) {
    const std::size_t index = indexOf(card);
    if (index == cards_.size())
        return;
    placement_.widgets.erase(placement_.widgets.begin() + static_cast<std::ptrdiff_t>(index));
    cards_.erase(cards_.begin() + static_cast<std::ptrdiff_t>(index));
    arrange();
    remember();
    if (cards_.empty() && !gallery_)
        surroundings_.onEmpty();
}

void Desk::placeAnew() {
    widgethost::tidy(placement_, screens().monitors);
    arrange();
    remember();
}

void Desk::move(CardWindow* card, widgethost::Direction direction) {
    widgethost::move(placement_, indexOf(card), direction, screens().monitors);
    arrange();
    remember();
}

void Desk::drop(CardWindow* card, views::Point corner) {
    const views::Point point{corner.x / unitsPerPoint_, corner.y / unitsPerPoint_};
    widgethost::move(placement_, indexOf(card), point, screens().monitors);
    arrange();
    remember();
}

void Desk::focusNeighbour(CardWindow* card, int step) {
    if (cards_.empty())
        return;
    const auto count = static_cast<int>(cards_.size());
    const auto index = static_cast<int>(indexOf(card));
    const int before = index < count ? index : step > 0 ? -1 : 0;
    cards_[static_cast<std::size_t>((before + step + count) % count)]->present();
}

/// Puts every window where its widget stands now.
void Desk::arrange() {
    const Screens now = screens();
    const widgethost::Board board(now.monitors);
    const auto spots = arranged(placement_, now.monitors);
    for (std::size_t i = 0; i < cards_.size(); ++i) {
        if (!spots[i]) {
            cards_[i]->hide();
            continue;
        }
        const views::Point point = board.origin(*spots[i]);
        cards_[i]->stand(now.handles[spots[i]->monitor].get(),
                         {point.x * unitsPerPoint_, point.y * unitsPerPoint_});
    }
    updateGallery();
}

void Desk::remember() {
    file_.save(placement_);
}

void Desk::updateGallery() {
    if (!gallery_)
        return;
    std::vector<std::string> names;
    for (const PlacedWidget& widget : placement_.widgets)
        names.push_back(nameOf(widget.kind));
    gallery_->showPlaced(names);
}

/// Takes the screens as they are now, and the scale that they ask for.
void Desk::adapt() {
    const double units = unitsPerPoint(surroundings_.display, surroundings_.scale);
    if (std::exchange(unitsPerPoint_, units) != units) {
        for (const auto& card : cards_)
            card->setUnitsPerPoint(units);
        if (gallery_)
            gallery_->setUnitsPerPoint(units);
    }
    arrange();
}

void Desk::explainWindows() {
    if (mount_.placesWindows() || std::exchange(placement_.windowsExplained, true))
        return;
    showWindowsExplanation();
    if (!isNew_)
        remember();
}

Screens Desk::screens() const {
    return Screens(surroundings_.display, mount_, unitsPerPoint_);
}

CardWindow::Widget Desk::described(const PlacedWidget& widget) const {
    return {.kind = widget.kind, .name = nameOf(widget.kind), .size = Grid::cardSize(widget.span)};
}

/// What the gallery calls a widget; its kind until the gallery is known.
std::string Desk::nameOf(const std::string& kind) const {
    for (const remote::WidgetDescription& widget : source_.gallery())
        if (widget.kind == kind)
            return widget.displayName;
    return kind;
}

std::size_t Desk::indexOf(CardWindow* card) const {
    const auto found = std::find_if(cards_.begin(), cards_.end(),
                                    [&](const auto& one) { return one.get() == card; });
    return static_cast<std::size_t>(found - cards_.begin());
}

}  // namespace desktop
