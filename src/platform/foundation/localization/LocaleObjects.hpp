#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace foundation {

/// Objects that are dear to make, one for each locale in use, made when first asked for and kept. A
/// process has one locale or two; should there be more than a handful, all are forgotten and made
/// anew. Any thread.
template <typename Object>
class LocaleObjects {
  public:
    /// The object of a locale, or null where none can be made. It stays until this thread asks for
    /// another one of its type.
    template <typename Make>
    const Object* object(const std::string& locale, Make make) {
        thread_local Last last;
        if (last.owner != this || last.locale != locale)
            last = {this, locale, shared(locale, make)};
        return last.object.get();
    }

  private:
    struct Last {
        const LocaleObjects* owner = nullptr;
        std::string locale;
        std::shared_ptr<const Object> object;
    };

    template <typename Make>
    std::shared_ptr<const Object> shared(const std::string& locale, Make make) {
        const std::lock_guard lock(mutex_);
        if (const auto found = objects_.find(locale); found != objects_.end())
            return found->second;
        if (objects_.size() == maximumCount)
            objects_.clear();
        return objects_.emplace(locale, make(locale)).first->second;
    }

    static constexpr std::size_t maximumCount = 16;

    std::mutex mutex_;
    std::map<std::string, std::shared_ptr<const Object>> objects_;
};

}  // namespace foundation
