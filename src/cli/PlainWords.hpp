#pragma once

namespace CLI {
class Option;
}

namespace cli {

/// Has a list of words take each as it stands. CLI11 takes one such as "[a,b]" apart, as long as
/// it is not told how many words to wait for.
void takePlainWords(CLI::Option& list);

}  // namespace cli
