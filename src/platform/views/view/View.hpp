#pragma once

#include "platform/views/view/BuildMemory.hpp"
#include "platform/views/view/Modifiers.hpp"
#include "platform/views/view/NodePointer.hpp"

#include <concepts>
#include <memory_resource>
#include <type_traits>
#include <utility>
#include <vector>

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
/// whose body is taken once, here. Copies share what they hold, and are used by one thread at a
/// time.
class View : public Modifiers<View> {
  public:
    template <class T>
    requires(Primitive<std::remove_cvref_t<T>> && !std::derived_from<std::remove_cvref_t<T>, View>)
        View(T&& primitive)
        : node_(Holder<std::remove_cvref_t<T>>::make(std::forward<T>(primitive))) {}

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
        using Allocator = std::pmr::polymorphic_allocator<>;

      public:
        template <class From>
        static Holder* make(From&& primitive) {
            Allocator memory(BuildMemory::current());
            return memory.new_object<Holder>(memory, std::forward<From>(primitive));
        }
        template <class From>
        Holder(const Allocator& memory, From&& primitive)
            : Node(spacerLengthOf(primitive)),
              memory_(memory),
              primitive_(std::forward<From>(primitive)) {}
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
        std::optional<double> fixedLength(Axis axis,
                                          std::optional<double> acrossOffer,
                                          LayoutContext& context) const override {
            if constexpr (requires { primitive_.fixedLength(axis, acrossOffer, context); })
                return primitive_.fixedLength(axis, acrossOffer, context);
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
        static std::optional<double> spacerLengthOf(const T& primitive) {
            if constexpr (requires { primitive.spacerLength(); })
                return primitive.spacerLength();
            else
                return std::nullopt;
        }
        void destroy() override { Allocator(memory_).delete_object(this); }

        Allocator memory_;
        T primitive_;
    };

    NodePointer node_;
};

/// Views in order, such as the children of a stack; made with `BuildMemory::current()`.
using Views = std::pmr::vector<View>;

}  // namespace views

#include "platform/views/view/ModifierBodies.hpp"
