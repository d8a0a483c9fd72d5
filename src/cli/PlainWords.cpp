#include "cli/PlainWords.hpp"

#include <CLI/CLI.hpp>

namespace cli {

void takePlainWords(CLI::Option& list) {
    constexpr int endless = CLI::detail::expected_max_vector_size;
    list.expected(endless, endless)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

}  // namespace cli
