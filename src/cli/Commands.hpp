#pragma once

namespace CLI {
class App;
}

namespace cli {

// The commands of `nurva`. Each adds itself to the command line with its options and the function
// that runs it, which throws Failure when it could not.

void addRender(CLI::App& app);
void addTimeline(CLI::App& app);
void addPlaceholder(CLI::App& app);
void addWidgets(CLI::App& app);
void addCheck(CLI::App& app);
void addCheckRequest(CLI::App& app);
void addPerform(CLI::App& app);
void addHost(CLI::App& app);
void addReload(CLI::App& app);
void addDesktop(CLI::App& app);
void addDoctor(CLI::App& app);
void addCompletions(CLI::App& app);
void addManual(CLI::App& app);

}  // namespace cli
