#pragma once

#include "platform/views/view/Modifiers.hpp"
#include "platform/views/view/Node.hpp"

#include <concepts>
#include <memory>
#include <type_traits>
#include <utility>

namespace views {

/// A view that says of itself how large it is and what it draws.
template <class T>
concept Primitive = requires(const T& view, const Proposal& p, LayoutContext& c, Recorder& r) {
    { view.sizeThatFits(p, c) } -> std::same_as<Size>;
    view.draw(Placement{}, c, r);
};

/// A view that is described by another one, its body.
template <class T>
concept Composite = requires(const T& view) {
    { view.body() } -> std::convertible_to<View>;
};

/// An immutable piece of a face. It is made implicitly from any primitive, or from any composite,
/// whose body is taken once, here. Copies share what they hold.
class View : public Modifiers<View> {
  public:
    template <Primitive T>
    requires(!std::derived_from<T, View>) View(T primitive)
        : node_(std::make_shared<const Holder<T>>(std::move(primitive))) {}

    template <Composite T>
    requires(!std::derived_from<T, View>) View(const T& composite)
        : View(static_cast<View>(composite.body())) {}

    const Node& node() const { return *node_; }

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const {
        return node_->sizeThatFits(proposal, context);
    }
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const {
        return node_->firstBaseline(proposal, context);
    }
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        node_->draw(place, context, recorder);
    }

  private:
    template <class T>
    class Holder final : public Node {
      public:
        explicit Holder(T primitive) : primitive_(std::move(primitive)) {}
        Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const override {
            return primitive_.sizeThatFits(proposal, context);
        }
        void draw(const Placement& place,
                  LayoutContext& context,
                  Recorder& recorder) const override {
            primitive_.draw(place, context, recorder);
        }
        double firstBaseline(const Proposal& proposal, LayoutContext& context) const override {
            if constexpr (requires { primitive_.firstBaseline(proposal, context); })
                return primitive_.firstBaseline(proposal, context);
            else
                return primitive_.sizeThatFits(proposal, context).height;
        }
        std::optional<double> spacerLength() const override {
            if constexpr (requires { primitive_.spacerLength(); })
                return primitive_.spacerLength();
            else
                return std::nullopt;
        }
        std::optional<std::span<const View>> members() const override {
            if constexpr (requires { primitive_.members(); })
                return primitive_.members();
            else
                return std::nullopt;
        }

      private:
        T primitive_;
    };

    std::shared_ptr<const Node> node_;
};

}  // namespace views

#include "platform/views/view/ModifierBodies.hpp"
