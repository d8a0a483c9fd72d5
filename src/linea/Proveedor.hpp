#pragma once

#include "linea/Entrada.hpp"
#include "platform/widgets/Timeline.hpp"

#include <functional>

namespace nurva {

/// How long a timeline stands before it wants to be asked for again, in seconds.
inline constexpr double segundosHastaRecargar = 900;

/// Turns the snapshot into entries, for all four widgets alike. Any thread.
struct Proveedor {
    using Entry = Entrada;
    using Context = widgets::TimelineProviderContext;

    /// The default record, dated now, without a look at any file.
    Entrada placeholder(const Context& context) const;
    /// The snapshot as it is now.
    void getSnapshot(const Context& context, const std::function<void(Entrada)>& completion) const;
    /// The snapshot as it is now, and again in 900 seconds, whether there was one or not.
    void getTimeline(const Context& context,
                     const std::function<void(widgets::Timeline<Entrada>)>& completion) const;
};

}  // namespace nurva
