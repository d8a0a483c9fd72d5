#include "processes/Stage.hpp"

#include "anfitrion/Escena.hpp"
#include "platform/foundation/SystemClock.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "platform/widgets/WidgetCenter.hpp"
#include "support/Program.hpp"

#include <glib.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <stdexcept>
#include <utility>

namespace {

constexpr const char* group = "group.org.nurva.Nurva";

}  // namespace

Stage::Stage() {
    ::setenv("XDG_DATA_HOME", home_.path().c_str(), 1);
    ::setenv("NURVA_BUNDLE", NURVA_RESOURCES_FOLDER "/NurvaWidgets.appex", 1);
    ::setenv("LC_ALL", "C.UTF-8", 1);
    ::setenv("LANGUAGE", "es", 1);
    // What looks for leaks at a process's end would have to trace it, which its confinement
    // forbids.
    ::setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
}

Stage::Stage(nurva::EstadoParaWidgets estado) : Stage() {
    publish(std::move(estado));
}

Stage::~Stage() {
    ::unsetenv("XDG_DATA_HOME");
}

void Stage::publish(nurva::EstadoParaWidgets estado) {
    const foundation::DefaultFileManager files;
    estado.cuando = foundation::SystemClock().now();
    files.writeAtomically(foundation::JSONEncoder().encode(estado),
                          files.createContainer(group) / "estado.json");
}

std::filesystem::path Stage::container() const {
    return home_.path() / "group-containers" / group;
}

std::string Stage::request() const {
    return support::contentsOf(container() / "peticion.json");
}

nurva::EstadoParaWidgets music() {
    return anfitrion::escenas().front().inicial;
}

bool soon(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    // Whatever happens elsewhere, such as in files, is looked for now and then.
    GSource* const tick = g_timeout_source_new(5);
    g_source_set_callback(
        tick, [](void*) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr, nullptr);
    g_source_attach(tick, nullptr);
    bool holds = condition();
    for (; !holds && std::chrono::steady_clock::now() < deadline; holds = condition())
        g_main_context_iteration(nullptr, TRUE);
    g_source_destroy(tick);
    g_source_unref(tick);
    return holds;
}

void letPass(std::chrono::milliseconds time) {
    soon([] { return false; }, time);
}

bool isReloadedFromOutside(const std::string& kind) {
    using widgets::WidgetCenter::Answer;
    // It waits for an answer of this very thread; and for the widget host to be on the bus.
    auto answer = std::async(std::launch::async, [&] {
        const auto deadline = std::chrono::steady_clock::now() + support::patience;
        Answer last = Answer::noHost;
        while (last != Answer::done && std::chrono::steady_clock::now() < deadline)
            last = widgets::WidgetCenter::reloadTimelines(kind, support::patience);
        return last;
    });
    return soon([&] {
               return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
           }) &&
           answer.get() == Answer::done;
}

widgethost::SessionOptions realExtension() {
    return {.extension = NURVA_EXTENSION, .patience = support::patience};
}

pid_t extensionProcess() {
    std::ifstream children("/proc/thread-self/children");
    for (pid_t child = 0; children >> child;) {
        std::error_code ignored;
        const auto program =
            std::filesystem::read_symlink("/proc/" + std::to_string(child) + "/exe", ignored);
        if (program == NURVA_EXTENSION)
            return child;
    }
    return 0;
}

void signalExtension(int number) {
    const pid_t process = extensionProcess();
    if (process == 0)
        throw std::runtime_error("no extension is running");
    ::kill(process, number);
}

bool hasElement(const remote::Face& face, const std::string& label) {
    return std::ranges::find(face.elements, label, &remote::Element::label) != face.elements.end();
}

Viewer::Viewer(widgethost::Session& session, std::string kind, double scale, bool asPreview) {
    const auto show = [this](const widgethost::Shown& now) {
        ++shown;
        face.reset();
        if (now.face) {
            face = *now.face;
            faces.push_back(*now.face);
            size = now.pixels.size;
            pixels.assign(now.pixels.argb.begin(), now.pixels.argb.end());
        }
    };
    display = asPreview ? session.preview(std::move(kind), scale, show)
                        : session.display(std::move(kind), scale, show);
}

const remote::Element& Viewer::element(const std::string& label) const {
    if (face) {
        const auto found = std::ranges::find(face->elements, label, &remote::Element::label);
        if (found != face->elements.end())
            return *found;
    }
    throw std::runtime_error("nothing on the card is called " + label);
}

void Viewer::press(const std::string& label) {
    display->press(element(label).action.value());
}

OneCard::OneCard(std::string kind, const widgethost::SessionOptions& options)
    : session(options), viewer(session, std::move(kind)) {
    if (!soon([&] { return viewer.face.has_value(); }))
        throw std::runtime_error("no picture comes");
}
