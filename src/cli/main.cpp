#include "cli/CommandLine.hpp"

#include <libintl.h>

#include <clocale>

int main(int argumentCount, char** arguments) {
    // The C library says in the user's language too why something failed. Numbers and the like stay
    // as they are, and without the locale's character set these texts have to be told theirs.
    std::setlocale(LC_MESSAGES, "");
    ::bind_textdomain_codeset("libc", "UTF-8");
    return cli::run(argumentCount, arguments);
}
