#pragma once

namespace CLI {
class App;
}

namespace cli {

/// Has a command refuse an empty value of an option or argument, which CLI11 takes for what stands
/// there without one.
void refuseEmptyValues(CLI::App& command);

}  // namespace cli
