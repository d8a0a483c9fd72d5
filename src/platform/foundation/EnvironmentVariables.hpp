#pragma once

#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

/// The variables a process was started with, as a value. A variable set to nothing counts as not
/// set.
class EnvironmentVariables {
  public:
    EnvironmentVariables() = default;
    explicit EnvironmentVariables(std::map<std::string, std::string, std::less<>> values);

    /// Those of this process, read at the moment of the call.
    static EnvironmentVariables ofProcess();

    std::optional<std::string> value(std::string_view name) const;
    std::optional<std::string> firstSet(std::initializer_list<std::string_view> names) const;

  private:
    std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace foundation
