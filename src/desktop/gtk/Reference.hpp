#pragma once

#include <glib-object.h>

#include <memory>

namespace desktop {

struct Unreference {
    void operator()(gpointer object) const { g_object_unref(object); }
};

/// A GObject that this owner keeps alive.
template <class T>
using Reference = std::unique_ptr<T, Unreference>;

/// Keeps an object whose reference the caller was given.
template <class T>
Reference<T> adopted(T* object) {
    return Reference<T>(object);
}

/// Keeps an object that is somebody else's, or nobody's yet.
template <class T>
Reference<T> kept(T* object) {
    return Reference<T>(static_cast<T*>(g_object_ref_sink(object)));
}

}  // namespace desktop
