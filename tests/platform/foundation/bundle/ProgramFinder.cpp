#include "platform/foundation/bundle/InstalledProgram.hpp"

#include <iostream>

/// Says where a program is of the installation that this one is part of.
int main(int, char** arguments) {
    const auto program = foundation::installedProgram(arguments[1]);
    std::cout << (program ? program->string() : "none");
}
