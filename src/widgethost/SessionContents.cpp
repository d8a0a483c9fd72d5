#include "widgethost/SessionContents.hpp"

#include "platform/foundation/bundle/Entitlements.hpp"
#include "widgethost/ContainerWatch.hpp"

#include <algorithm>
#include <chrono>
#include <utility>

namespace widgethost {

namespace {

/// A timeline that wants to be asked again at once would never let the machine rest.
constexpr double shortestReload = 1;  // seconds

/// The host application has mostly published by then what a press has changed.
constexpr auto answerTime = std::chrono::milliseconds(10);

}  // namespace

Session::Contents::Contents(const SessionOptions& options)
    : pacing([this](const ReloadPacing::Kinds& kinds) { want(kinds); }),
      presses_([this](Slot slot) {
          if (const CardState* const pressed = card(slot))
              pacing.ask(pressed->kind, answerTime);
          goOn();
      }),
      timer_([this] { askWhoIsDue(); }),
      notifications_(foundation::Entitlements::of(foundation::Bundle::main()).notifications),
      supervisor_(options,
                  {.onStarted = [this] { started(); },
                   .onStopped = [this](Ending ending) { stopped(ending); },
                   .onMayStart = [this] { goOn(); },
                   .onPost = [this](const std::string& name) { post(name); }}),
      watches_(
          watchContainers(foundation::Bundle::main(),
                          {.onFile = [this] { changed(); }, .onFolder = [this] { restart(); }})) {
    if (!options.isAlone)
        center_.emplace([this](const std::string& kind) { pacing.ask(kind); });
    supervisor_.link();
}

Session::Contents::Slot Session::Contents::open(std::string kind,
                                                double scale,
                                                Occasion occasion,
                                                Show show) {
    const Slot slot = nextSlot_++;
    cards_.emplace(slot, CardState{.kind = std::move(kind),
                                   .scale = scale,
                                   .occasion = occasion,
                                   .show = std::move(show)});
    want(slot);
    return slot;
}

void Session::Contents::close(Slot slot) {
    if (cards_.at(slot).lentTo == supervisor_.number())
        if (ExtensionLink* const link = supervisor_.running())
            link->takeBack(slot);
    cards_.erase(slot);
    std::erase(waiting_, slot);
    setTimer();
}

void Session::Contents::setScale(Slot slot, double scale) {
    CardState& card = cards_.at(slot);
    if (card.scale == scale)
        return;
    card.scale = scale;
    card.memory.reset();
    want(slot);
}

void Session::Contents::press(Slot slot, const intents::ArchivedAction& action) {
    presses_.add(slot, action);
    goOn();
}

void Session::Contents::goOn() {
    if (presses_.isWaiting())
        if (ExtensionLink* const link = supervisor_.link())
            presses_.performFirst(*link);
    askNext();
}

void Session::Contents::want(Slot slot) {
    enqueue(slot);
    askNext();
}

void Session::Contents::want(const ReloadPacing::Kinds& kinds) {
    for (const auto& [slot, card] : cards_)
        if (kinds.contains("") || kinds.contains(card.kind))
            enqueue(slot);
    // Whoever is known to stop the extension comes last.
    std::stable_partition(waiting_.begin(), waiting_.end(),
                          [&](Slot slot) { return !cards_.at(slot).isCulprit; });
    askNext();
}

void Session::Contents::enqueue(Slot slot) {
    if (std::ranges::find(waiting_, slot) == waiting_.end())
        waiting_.push_back(slot);
}

void Session::Contents::started() {
    // No memory can be lent before the first answer: then only is it settled that descriptors pass.
    supervisor_.running()->listWidgets(
        [this](std::vector<remote::WidgetDescription> widgets) { take(std::move(widgets)); });
}

void Session::Contents::take(std::vector<remote::WidgetDescription> widgets) {
    introduced_ = supervisor_.number();
    if (widgets != gallery) {
        gallery = std::move(widgets);
        if (onGalleryChanged)
            onGalleryChanged();
    }
    askNext();
}

void Session::Contents::stopped(Ending ending) {
    presses_.ended(ending);
    if (const auto slot = std::exchange(asked_, std::nullopt)) {
        supervisor_.blame(ending);
        if (CardState* const asked = card(*slot)) {
            // What stopped by itself would do so again; to hang once may have been an accident, and
            // to be ended by somebody else says nothing of the card.
            const bool isWorthATry =
                ending == Ending::fromOutside || (ending == Ending::hung && !asked->isCulprit);
            asked->isCulprit = ending != Ending::fromOutside;
            if (isWorthATry)
                waiting_.push_front(*slot);
            else
                showStopped(*asked);
        }
    } else if (introduced_ != supervisor_.number()) {
        supervisor_.blame(ending);
    }
    goOn();
}

void Session::Contents::askNext() {
    while (!asked_ && !waiting_.empty()) {
        ExtensionLink* const link = supervisor_.link();
        if (!link)
            return showThatNothingComes();
        if (introduced_ != supervisor_.number())
            return;
        const Slot slot = waiting_.front();
        waiting_.pop_front();
        ask(*link, slot);
    }
}

void Session::Contents::ask(ExtensionLink& link, Slot slot) {
    CardState& card = cards_.at(slot);
    if (!card.memory || card.lentTo != supervisor_.number())
        lend(link, slot);
    if (!card.memory)
        return showStopped(card);
    asked_ = slot;
    link.requestFace(card.occasion, card.kind, card.scale, slot,
                     [this, slot](const std::optional<remote::Face>& face) {
                         asked_.reset();
                         answered(slot, face);
                         askNext();
                     });
}

void Session::Contents::lend(ExtensionLink& link, Slot slot) {
    CardState& card = cards_.at(slot);
    if (!card.memory) {
        const auto widget = std::ranges::find(gallery, card.kind, &remote::WidgetDescription::kind);
        if (widget == gallery.end())
            return;
        card.size = canvas::pixelSize(widgets::cardSize(widget->families.front()), card.scale);
        card.memory = remote::PictureMemory::create(card.size.count());
    }
    link.lend(slot, *card.memory);
    card.lentTo = supervisor_.number();
}

void Session::Contents::answered(Slot slot, const std::optional<remote::Face>& face) {
    CardState* const card = this->card(slot);
    // Closed meanwhile, or of another scale: then it is waiting again.
    if (!card || !card->memory)
        return;
    if (!face)
        return showStopped(*card);
    card->isCulprit = false;
    card->showsAnything = true;
    card->reloadAfter = face->reloadAfter;
    if (card->reloadAfter)
        card->reloadAfter->secondsSinceReferenceDate =
            std::max(card->reloadAfter->secondsSinceReferenceDate,
                     clock_.now().addingTimeInterval(shortestReload).secondsSinceReferenceDate);
    setTimer();
    if (card->occasion == Occasion::placeholder) {
        card->occasion = Occasion::snapshot;
        waiting_.push_back(slot);
    }
    card->show({.face = &*face,
                .scale = card->scale,
                .pixels = {card->size, card->memory->pixels().first(card->size.count())}});
}

void Session::Contents::showStopped(CardState& card) {
    card.reloadAfter.reset();
    card.showsAnything = true;
    card.show({});
}

void Session::Contents::showThatNothingComes() {
    const std::deque<Slot> waiting = waiting_;
    for (const Slot slot : waiting)
        if (CardState* const empty = card(slot); empty && !empty->showsAnything)
            showStopped(*empty);
}

CardState* Session::Contents::card(Slot slot) {
    const auto found = cards_.find(slot);
    return found == cards_.end() ? nullptr : &found->second;
}

void Session::Contents::askWhoIsDue() {
    const foundation::Date now = clock_.now();
    for (auto& [slot, card] : cards_)
        if (card.reloadAfter && *card.reloadAfter <= now) {
            card.reloadAfter.reset();
            enqueue(slot);
        }
    setTimer();
    askNext();
}

void Session::Contents::setTimer() {
    std::optional<foundation::Date> next;
    for (const auto& [slot, card] : cards_)
        if (card.reloadAfter && (!next || *card.reloadAfter < *next))
            next = card.reloadAfter;
    timer_.set(next);
}

void Session::Contents::post(const std::string& name) {
    presses_.announced();
    if (center_ && std::ranges::find(notifications_, name) != notifications_.end())
        center_->post(name);
}

void Session::Contents::changed() {
    supervisor_.changed();
    pacing.ask({});
}

void Session::Contents::restart() {
    // What a process may reach is settled when it starts. What this one was asked the next one is.
    supervisor_.end();
    presses_.ended(Ending::fromOutside);
    if (const auto slot = std::exchange(asked_, std::nullopt); slot && card(*slot))
        waiting_.push_front(*slot);
    changed();
    goOn();
}

}  // namespace widgethost
