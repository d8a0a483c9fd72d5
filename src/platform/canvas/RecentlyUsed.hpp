#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace canvas {

/// Keeps values under byte-string keys, as many of the last used as fit a number of bytes. A value
/// that is handed out stays alive in the hands of who holds it.
template <class Value>
class RecentlyUsed {
  public:
    explicit RecentlyUsed(std::size_t capacity) : capacity_(capacity) {}

    /// The value kept under the key, or nothing.
    std::shared_ptr<const Value> find(std::string_view key) {
        const auto found = byKey_.find(key);
        if (found == byKey_.end())
            return nullptr;
        entries_.splice(entries_.begin(), entries_, found->second);
        return found->second->value;
    }

    /// Keeps a value under a key that `find` did not know. `bytes` is what the value takes.
    void keep(std::string_view key, std::shared_ptr<const Value> value, std::size_t bytes) {
        const std::size_t cost = bytes + key.size() + sizeof(Entry);
        if (cost > capacity_)
            return;
        entries_.push_front({std::string(key), std::move(value), cost});
        byKey_.emplace(entries_.front().key, entries_.begin());
        used_ += cost;
        while (used_ > capacity_) {
            used_ -= entries_.back().cost;
            byKey_.erase(entries_.back().key);
            entries_.pop_back();
        }
    }

    std::size_t bytesUsed() const { return used_; }

  private:
    struct Entry {
        std::string key;
        std::shared_ptr<const Value> value;
        std::size_t cost;
    };

    std::size_t capacity_;
    std::size_t used_ = 0;
    std::list<Entry> entries_;  // the last used first
    std::unordered_map<std::string_view, typename std::list<Entry>::iterator> byKey_;
};

}  // namespace canvas
