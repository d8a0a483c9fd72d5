#pragma once

#include <string>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace cli {

/// What is wrong with a command line that could not be parsed, and which help to ask for, in the
/// user's language; CLI11 speaks English only.
std::string wrongUse(const CLI::App& app, const CLI::ParseError& error);

}  // namespace cli
