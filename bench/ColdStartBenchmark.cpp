// From the start of a process to the end of one that has written a face as a PNG file: the `nurva`
// command, which reads the snapshot and lays the face out too, against a plain Cairo and Pango
// program that draws a scene it brings along.

#include "support/TemporaryFolder.hpp"

#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>

#include <string>
#include <vector>

namespace {

/// Runs a command; false when it fails.
bool run(std::vector<std::string> command) {
    std::vector<char*> arguments;
    for (std::string& argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawn(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
        return false;
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Starts the command again and again; `command` makes it for the file it is to write.
template <class Command>
void coldStart(benchmark::State& state, const Command& command) {
    const support::TemporaryFolder folder;
    const std::string file = (folder.path() / "face.png").string();
    for (auto _ : state) {
        if (!run(command(file.c_str()))) {
            state.SkipWithError("the program failed");
            break;
        }
    }
}

void nurvaRender(benchmark::State& state, const char* kind) {
    // The example is drawn as it looked a minute after it was written.
    coldStart(state, [&](const char* file) -> std::vector<std::string> {
        return {NURVA_COMMAND, "render",    kind,       "--state", NURVA_EXAMPLE,
                "--now",       "804686460", "--output", file};
    });
}

void plainCairo(benchmark::State& state, const char* face) {
    coldStart(state, [&](const char* file) -> std::vector<std::string> {
        return {NURVA_PLAIN_PROGRAM, face, file};
    });
}

BENCHMARK_CAPTURE(nurvaRender, volume, "nurva.volumenPorApp")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(plainCairo, volume, "volume")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(nurvaRender, whatIsOn, "nurva.queEstaPuesto")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(plainCairo, whatIsOn, "whatIsOn")->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
