#pragma once

#include <glib-object.h>

#include <functional>
#include <memory>
#include <utility>

namespace desktop {

/// Calls a function object whenever an object emits a signal, as long as the object lives. The type
/// is that of the signal's handler without the object: `connect<void(int, double, double)>(…)`.
template <class Handler>
struct SignalConnection;

template <class Result, class... Arguments>
struct SignalConnection<Result(Arguments...)> {
    using Function = std::function<Result(Arguments...)>;

    static Result call(gpointer /*object*/, Arguments... arguments, gpointer function) {
        return (*static_cast<Function*>(function))(arguments...);
    }
    static void destroy(gpointer function, GClosure* /*closure*/) {
        delete static_cast<Function*>(function);
    }
};

template <class Handler, class Callable>
gulong connect(gpointer object, const char* signal, Callable callable) {
    using Connection = SignalConnection<Handler>;
    auto function = std::make_unique<typename Connection::Function>(std::move(callable));
    return g_signal_connect_data(object, signal, G_CALLBACK(&Connection::call), function.release(),
                                 &Connection::destroy, GConnectFlags{});
}

/// Ends a connection with its owner, which may outlive the object.
class Connected {
  public:
    Connected() = default;
    Connected(gpointer object, gulong handler) : object_(G_OBJECT(object)), handler_(handler) {
        g_object_add_weak_pointer(object_, &pointer());
    }
    Connected(const Connected&) = delete;
    Connected& operator=(const Connected&) = delete;
    ~Connected() {
        if (!object_)
            return;
        g_object_remove_weak_pointer(object_, &pointer());
        g_signal_handler_disconnect(object_, handler_);
    }

  private:
    gpointer& pointer() { return reinterpret_cast<gpointer&>(object_); }

    GObject* object_ = nullptr;
    gulong handler_ = 0;
};

}  // namespace desktop
