#pragma once

#include "platform/views/view/Node.hpp"

#include <utility>

namespace views {

/// One of the holds on a node, which is gone with the last of them. They are counted plainly, since
/// a view and its copies are used by one thread at a time.
class NodePointer {
  public:
    /// Takes over the hold that a new node comes with.
    explicit NodePointer(Node* node) noexcept : node_(node) {}
    NodePointer(const NodePointer& other) noexcept : node_(other.node_) { ++node_->holders_; }
    NodePointer(NodePointer&& other) noexcept : node_(std::exchange(other.node_, nullptr)) {}
    NodePointer& operator=(NodePointer other) noexcept {
        std::swap(node_, other.node_);
        return *this;
    }
    ~NodePointer() {
        if (node_ && --node_->holders_ == 0)
            node_->destroy();
    }

    const Node& operator*() const { return *node_; }
    const Node* operator->() const { return node_; }

  private:
    Node* node_;
};

}  // namespace views
