#include "platform/views/trees/ExpectedStack.hpp"

#include <algorithm>
#include <cmath>

namespace views {

namespace {

using Kind = Tree::Kind;

std::vector<Tree> flat(const std::vector<Tree>& trees) {
    std::vector<Tree> members;
    for (const Tree& tree : trees) {
        if (tree.kind != Kind::list) {
            members.push_back(tree);
            continue;
        }
        for (const Tree& member : flat(tree.children))
            members.push_back(member);
    }
    return members;
}

bool isSpacer(const Tree& tree) {
    return tree.kind == Kind::spacer;
}

/// A child as endless as its container fills it.
double room(double container, double child) {
    return std::isinf(container) && std::isinf(child) ? 0 : container - child;
}

/// One child of a row or column, seen along it.
struct Child {
    const Tree* tree;
    std::size_t index;
    double shortest;
    double longest;
};

/// A row or column while it is laid out.
class Line {
  public:
    Line(const Tree& stack, const Proposal& offer)
        : stack_(stack), offer_(offer), members_(flat(stack.children)), places_(members_.size()) {
        share();
        position();
    }

    Size size() const {
        const auto n = static_cast<double>(members_.size());
        double length = n > 0 ? stack_.spacing * (n - 1) : 0;
        for (const Placement& place : places_)
            length += along(place.frame.size());
        return horizontal() ? Size{length, across_} : Size{across_, length};
    }
    const std::vector<Tree>& members() const { return members_; }
    const std::vector<Placement>& places() const { return places_; }

  private:
    bool horizontal() const { return stack_.kind == Kind::hstack; }
    double along(Size size) const { return horizontal() ? size.width : size.height; }
    double across(Size size) const { return horizontal() ? size.height : size.width; }

    Proposal offering(std::optional<double> length) const {
        return horizontal() ? Proposal{length, offer_.height} : Proposal{offer_.width, length};
    }
    Size taken(const Tree& tree, std::optional<double> length) const {
        if (!isSpacer(tree))
            return expectedSize(tree, offering(length));
        const double long_ = std::max(length.value_or(0), tree.width.least);
        return horizontal() ? Size{long_, 0} : Size{0, long_};
    }
    double take(std::size_t i, std::optional<double> length) {
        const Size size = taken(members_[i], length);
        places_[i] = {{0, 0, size.width, size.height}, offering(length)};
        return along(size);
    }

    void share() {
        const std::optional<double> length = horizontal() ? offer_.width : offer_.height;
        if (!length) {
            for (std::size_t i = 0; i < members_.size(); ++i)
                take(i, std::nullopt);
            return;
        }
        std::vector<Child> others;
        std::vector<Child> spacers;
        double kept = 0;
        for (std::size_t i = 0; i < members_.size(); ++i) {
            const Tree& tree = members_[i];
            const Child child{&tree, i, along(taken(tree, 0)), along(taken(tree, infinity))};
            (isSpacer(tree) ? spacers : others).push_back(child);
            kept += isSpacer(tree) ? child.shortest : 0;
        }
        double available =
            *length - stack_.spacing * (static_cast<double>(members_.size()) - 1) - kept;
        available = among(others, available);
        among(spacers, available + kept);
    }

    double among(std::vector<Child> group, double available) {
        std::stable_sort(group.begin(), group.end(), [](const Child& a, const Child& b) {
            if (std::isinf(a.longest) && std::isinf(b.longest))
                return a.shortest > b.shortest;
            return a.longest - a.shortest < b.longest - b.shortest;
        });
        for (std::size_t i = 0; i < group.size(); ++i) {
            const double offer = available / static_cast<double>(group.size() - i);
            const double length = take(group[i].index, std::max(offer, 0.0));
            if (!std::isinf(available))
                available -= length;
        }
        return available;
    }

    void position() {
        double at = 0;
        for (Placement& place : places_) {
            (horizontal() ? place.frame.x : place.frame.y) = at;
            at += along(place.frame.size()) + stack_.spacing;
        }
        if (horizontal() && stack_.alignment.vertical == VerticalAlignment::firstTextBaseline)
            alignOnBaseline();
        else
            align();
    }

    void align() {
        for (const Placement& place : places_)
            across_ = std::max(across_, across(place.frame.size()));
        for (Placement& place : places_) {
            const double left = room(across_, across(place.frame.size()));
            if (horizontal())
                place.frame.y = stack_.alignment.vertical == VerticalAlignment::top      ? 0
                                : stack_.alignment.vertical == VerticalAlignment::center ? left / 2
                                                                                         : left;
            else
                place.frame.x = stack_.alignment.horizontal == HorizontalAlignment::leading ? 0
                                : stack_.alignment.horizontal == HorizontalAlignment::center
                                    ? left / 2
                                    : left;
        }
    }

    void alignOnBaseline() {
        double above = 0;
        double below = 0;
        std::vector<double> baselines;
        for (std::size_t i = 0; i < members_.size(); ++i) {
            baselines.push_back(
                isSpacer(members_[i]) ? 0 : expectedBaseline(members_[i], places_[i].proposal));
            above = std::max(above, baselines[i]);
            below = std::max(below, room(places_[i].frame.height, baselines[i]));
        }
        across_ = above + below;
        for (std::size_t i = 0; i < members_.size(); ++i)
            places_[i].frame.y = room(above, baselines[i]);
    }

    const Tree& stack_;
    Proposal offer_;
    std::vector<Tree> members_;
    std::vector<Placement> places_;
    double across_ = 0;
};

/// The child that a stack of one is.
const Tree* onlyChild(const std::vector<Tree>& members) {
    return members.size() == 1 && !isSpacer(members[0]) ? &members[0] : nullptr;
}

}  // namespace

Size expectedStackSize(const Tree& stack, const Proposal& offer) {
    const auto members = flat(stack.children);
    if (const Tree* only = onlyChild(members))
        return expectedSize(*only, offer);
    if (stack.kind != Kind::zstack)
        return Line(stack, offer).size();
    Size largest;
    for (const Tree& member : members) {
        const Size size = expectedSize(member, offer);
        largest = {std::max(largest.width, size.width), std::max(largest.height, size.height)};
    }
    return largest;
}

double expectedStackBaseline(const Tree& stack, const Proposal& offer) {
    const auto members = flat(stack.children);
    if (const Tree* only = onlyChild(members))
        return expectedBaseline(*only, offer);
    const Size size = expectedStackSize(stack, offer);
    std::vector<double> baselines;
    if (stack.kind == Kind::zstack) {
        const Proposal again = Proposal::exactly(size);
        for (const Tree& member : members)
            baselines.push_back(
                expectedPlace(member, again, stack.alignment, {0, 0, size.width, size.height})
                    .frame.y +
                expectedBaseline(member, again));
    } else {
        const Line line(stack, offer);
        for (std::size_t i = 0; i < members.size(); ++i)
            if (!isSpacer(members[i]))
                baselines.push_back(line.places()[i].frame.y +
                                    expectedBaseline(members[i], line.places()[i].proposal));
    }
    return baselines.empty() ? size.height : *std::min_element(baselines.begin(), baselines.end());
}

void expectStackLeaves(const Tree& stack, const Placement& place, Frames& leaves) {
    const auto members = flat(stack.children);
    if (const Tree* only = onlyChild(members))
        return expectLeaves(*only, place, leaves);
    if (stack.kind == Kind::zstack) {
        const Proposal again = Proposal::exactly(place.frame.size());
        for (const Tree& member : members)
            expectLeaves(member, expectedPlace(member, again, stack.alignment, place.frame),
                         leaves);
        return;
    }
    Proposal offer = place.proposal;
    auto& across = stack.kind == Kind::hstack ? offer.height : offer.width;
    if (!across)
        across = stack.kind == Kind::hstack ? place.frame.height : place.frame.width;
    const Line line(stack, offer);
    for (std::size_t i = 0; i < members.size(); ++i)
        if (!isSpacer(members[i]))
            expectLeaves(members[i],
                         {line.places()[i].frame.movedBy(place.frame.x, place.frame.y),
                          line.places()[i].proposal},
                         leaves);
}

}  // namespace views
