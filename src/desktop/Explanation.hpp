#pragma once

namespace desktop {

/// A window that says why widgets stand in ordinary windows here.
void showWindowsExplanation();

}  // namespace desktop
