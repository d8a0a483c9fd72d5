#include "platform/views/trees/Tree.hpp"

#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/view/ViewList.hpp"

#include <cmath>

namespace views {

namespace {

using Kind = Tree::Kind;

/// A leaf that trades width for height, as a text does.
struct Wrapping : Modifiers<Wrapping> {
    double idealWidth;
    Frames* drawn;

    Size sizeThatFits(const Proposal& proposal, LayoutContext&) const {
        const double width = std::min(proposal.width.value_or(idealWidth), idealWidth);
        return {width, wrappedHeight(idealWidth, width)};
    }
    void draw(const Placement& place, LayoutContext&, Recorder&) const {
        drawn->push_back(place.frame);
    }
};

class Dice {
  public:
    explicit Dice(std::mt19937& random) : random_(random) {}

    int upTo(int most) { return std::uniform_int_distribution(0, most)(random_); }
    double length(int most) { return upTo(most); }
    bool often() { return upTo(2) > 0; }
    std::optional<double> maybe(int most) {
        return upTo(1) == 0 ? std::nullopt : std::optional(length(most));
    }
    Range range() {
        const double least = often() ? 0 : length(40);
        const double ideal = least + length(20);
        return {least, ideal, often() ? ideal + length(40) : infinity};
    }
    Alignment alignment() {
        return {static_cast<HorizontalAlignment>(upTo(2)), static_cast<VerticalAlignment>(upTo(2))};
    }

  private:
    std::mt19937& random_;
};

Tree leaf(Dice& dice) {
    Tree tree{.kind = dice.upTo(3) == 0 ? Kind::wrapping : Kind::leaf};
    tree.width = dice.range();
    tree.height = dice.range();
    if (dice.often())
        tree.baseline = dice.length(20);
    return tree;
}

std::vector<Tree> members(Dice& dice, std::mt19937& random, int depth, bool spacers) {
    std::vector<Tree> members;
    for (int count = dice.upTo(4); count > 0; --count) {
        const int draw = dice.upTo(9);
        if (draw == 0)
            members.push_back(
                {.kind = Kind::list, .children = ::views::members(dice, random, 1, spacers)});
        else if (spacers && draw < 3)
            members.push_back({.kind = Kind::spacer, .width = Range::exactly(dice.length(12))});
        else
            members.push_back(randomTree(random, depth - 1));
    }
    return members;
}

View stackOf(Kind kind, const Tree& tree, const View& list) {
    const Alignment& alignment = tree.alignment;
    if (kind == Kind::hstack)
        return HStack{.alignment = alignment.vertical, .spacing = tree.spacing}({list});
    if (kind == Kind::vstack)
        return VStack{.alignment = alignment.horizontal, .spacing = tree.spacing}({list});
    return ZStack{.alignment = alignment}({list});
}

}  // namespace

double wrappedHeight(double idealWidth, double width) {
    constexpr double lineHeight = 9;
    return width > 0 ? lineHeight * std::max(std::ceil(idealWidth / width - 1e-6), 1.0)
                     : lineHeight;
}

Tree randomTree(std::mt19937& random, int depth) {
    Dice dice(random);
    const int draw = depth > 0 ? dice.upTo(13) : 0;
    if (draw < 2)
        return leaf(dice);
    Tree tree;
    tree.alignment = dice.alignment();
    tree.spacing = dice.length(9);
    if (draw < 10) {
        tree.kind = draw < 5 ? Kind::hstack : draw < 8 ? Kind::vstack : Kind::zstack;
        if (tree.kind == Kind::hstack && dice.upTo(2) == 0)
            tree.alignment.vertical = VerticalAlignment::firstTextBaseline;
        tree.children = members(dice, random, depth, tree.kind != Kind::zstack);
        return tree;
    }
    const Kind modifiers[] = {Kind::fixedFrame, Kind::flexibleFrame, Kind::padding,
                              Kind::fixedSize,  Kind::offset,        Kind::background};
    tree.kind = modifiers[dice.upTo(5)];
    tree.fixedWidth = dice.maybe(120);
    tree.fixedHeight = dice.maybe(60);
    tree.minWidth = dice.maybe(40);
    tree.maxWidth = dice.maybe(1) ? dice.length(90) + tree.minWidth.value_or(0) : infinity;
    tree.minHeight = dice.maybe(40);
    tree.maxHeight = dice.maybe(1);
    if (tree.maxHeight)
        tree.maxHeight = dice.length(90) + tree.minHeight.value_or(0);
    tree.children.push_back(randomTree(random, depth - 1));
    if (tree.kind == Kind::background)
        tree.children.push_back(randomTree(random, 1));
    return tree;
}

Proposal randomProposal(std::mt19937& random) {
    const auto length = [&]() -> std::optional<double> {
        Dice dice(random);
        switch (dice.upTo(7)) {
            case 0:
                return std::nullopt;
            case 1:
                return 0;
            case 2:
                return infinity;
            default:
                return dice.length(400) / 2;
        }
    };
    const auto width = length();
    return {width, length()};
}

View viewOf(const Tree& tree, Frames& drawn) {
    std::vector<View> children;
    for (const Tree& child : tree.children)
        children.push_back(viewOf(child, drawn));
    switch (tree.kind) {
        case Kind::leaf:
            return Probe{.width = tree.width,
                         .height = tree.height,
                         .drawn = &drawn,
                         .baseline = tree.baseline};
        case Kind::wrapping:
            return Wrapping{.idealWidth = tree.width.ideal, .drawn = &drawn};
        case Kind::spacer:
            return Spacer{.minLength = tree.width.least};
        case Kind::hstack:
        case Kind::vstack:
        case Kind::zstack:
            return stackOf(tree.kind, tree, ViewList(children));
        case Kind::list:
            return ViewList(children);
        case Kind::fixedFrame:
            return children[0].frame({.width = tree.fixedWidth,
                                      .height = tree.fixedHeight,
                                      .alignment = tree.alignment});
        case Kind::flexibleFrame:
            return children[0].frame({.minWidth = tree.minWidth,
                                      .maxWidth = tree.maxWidth,
                                      .minHeight = tree.minHeight,
                                      .maxHeight = tree.maxHeight,
                                      .alignment = tree.alignment});
        case Kind::padding:
            return children[0]
                .padding(Edge::top, tree.spacing)
                .padding(Edge::horizontal, 2 * tree.spacing);
        case Kind::fixedSize:
            return children[0].fixedSize({.horizontal = tree.fixedWidth.has_value(),
                                          .vertical = tree.fixedHeight.has_value()});
        case Kind::offset:
            return children[0].offset(tree.spacing, -tree.spacing);
        case Kind::background:
            return children[0].background(children[1]);
    }
    return ViewList{};
}

}  // namespace views
