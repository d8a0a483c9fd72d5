#pragma once

namespace views {

enum class Edge { top, horizontal, vertical };

}  // namespace views
