#include "cli/CommandLine.hpp"

int main(int argumentCount, char** arguments) {
    return cli::run(argumentCount, arguments);
}
