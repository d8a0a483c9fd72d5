#pragma once

#include <gtk/gtk.h>

#include <functional>
#include <string>

namespace desktop {

// What the gallery is put together from.

/// Words that wrap, in the looks of a class of the style sheet.
GtkWidget* newText(const std::string& words, const char* cssClass);

/// A button, with the words that say without its surroundings what it does.
GtkWidget* newButton(const std::string& words,
                     const std::string& spoken,
                     std::function<void()> press);

void removeChildren(GtkWidget* box);

}  // namespace desktop
