#pragma once

#include <gtk/gtk.h>

namespace desktop {

class Card;

/// The widget of a card: it asks the card whatever GTK asks it, until the card lets go of it.
GtkWidget* newCardWidget(Card& card, bool isForUse);
void letGo(GtkWidget* cardWidget);

}  // namespace desktop
