#include "platform/process/NSExtensionMain.hpp"

// The linker puts this in front of the `main` of an extension's program (`--wrap=main`).

extern "C" int __real_main(int argumentCount, char** arguments);

extern "C" int __wrap_main(int argumentCount, char** arguments) {
    return process::NSExtensionMain(argumentCount, arguments, __real_main);
}
