#include "platform/views/view/BuildMemory.hpp"

#include <array>
#include <cstddef>
#include <utility>

namespace views {

/// Counts who still holds a part of it and ends with the last of them.
class BuildMemory::Pieces final : public std::pmr::memory_resource {
  public:
    static inline thread_local Pieces* current = nullptr;

    void giveUp() {
        if (--holders_ == 0)
            delete this;
    }

  private:
    void* do_allocate(std::size_t bytes, std::size_t alignment) override {
        void* const piece = memory_.allocate(bytes, alignment);
        ++holders_;
        return piece;
    }
    void do_deallocate(void*, std::size_t, std::size_t) override { giveUp(); }
    bool do_is_equal(const memory_resource& other) const noexcept override {
        return this == &other;
    }

    // As much as an ordinary face takes.
    alignas(std::max_align_t) std::array<std::byte, std::size_t{32} * 1024> buffer_;
    std::pmr::monotonic_buffer_resource memory_{buffer_.data(), buffer_.size()};
    std::size_t holders_ = 1;  // the build, and each piece
};

std::pmr::memory_resource* BuildMemory::current() {
    return Pieces::current ? Pieces::current : std::pmr::new_delete_resource();
}

BuildMemory::BuildMemory() : pieces_(new Pieces), outer_(std::exchange(Pieces::current, pieces_)) {}

BuildMemory::~BuildMemory() {
    Pieces::current = outer_;
    pieces_->giveUp();
}

}  // namespace views
