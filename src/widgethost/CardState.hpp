#pragma once

#include "platform/foundation/Date.hpp"
#include "platform/remote/PictureMemory.hpp"
#include "widgethost/ExtensionLink.hpp"
#include "widgethost/Session.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace widgethost {

/// What the session knows of a card that somebody looks at.
struct CardState {
    std::string kind;
    double scale = 1;
    Occasion occasion = Occasion::timeline;  // what to ask for next
    Session::Show show;

    std::optional<remote::PictureMemory> memory;
    canvas::PixelSize size;
    std::uint64_t lentTo = 0;  // number of the extension's process that has the memory

    bool showsAnything = false;
    bool isCulprit = false;  // the extension's end came while it was asked for this face
    std::optional<foundation::Date> reloadAfter;
};

}  // namespace widgethost
