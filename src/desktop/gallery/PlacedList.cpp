#include "desktop/gallery/PlacedList.hpp"

#include "desktop/gallery/Pieces.hpp"
#include "platform/foundation/localization/Message.hpp"

#include <algorithm>
#include <utility>

namespace desktop {

using foundation::message;

PlacedList::PlacedList(Requests requests)
    : requests_(std::move(requests)), box_(gtk_box_new(GTK_ORIENTATION_VERTICAL, 6)) {}

void PlacedList::show(const std::vector<std::string>& names) {
    const std::size_t focused = focusedRow();
    const bool hadFocus = focused < removeButtons_.size();
    removeButtons_.clear();
    removeChildren(box_);
    gtk_box_append(GTK_BOX(box_), newText(message("En el escritorio"), "nurva-gallery-name"));
    if (names.empty())
        gtk_box_append(GTK_BOX(box_), newText(message("Ninguno todavía."), "dim-label"));
    for (std::size_t i = 0; i < names.size(); ++i)
        gtk_box_append(GTK_BOX(box_), row(names[i], i));
    if (requests_.placeAnew && !names.empty())
        gtk_box_append(GTK_BOX(box_), newButton(message("Recolocar todos"),
                                                message("Recolocar todos"), requests_.placeAnew));
    // Whoever takes away one after the other with the keyboard goes on in the same place.
    if (hadFocus && !removeButtons_.empty())
        gtk_widget_grab_focus(removeButtons_[std::min(focused, removeButtons_.size() - 1)]);
}

GtkWidget* PlacedList::row(const std::string& name, std::size_t index) {
    GtkWidget* text = newText(name, "nurva-placed-name");
    gtk_widget_set_hexpand(text, TRUE);
    GtkWidget* remove = newButton(message("Quitar"), message("Quitar %@", {name}),
                                  [this, index] { requests_.remove(index); });
    removeButtons_.push_back(remove);
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 12);
    gtk_box_append(GTK_BOX(row), text);
    gtk_box_append(GTK_BOX(row), remove);
    return row;
}

/// The row whose button has the keyboard's focus; beyond all of them for none.
std::size_t PlacedList::focusedRow() const {
    const auto found = std::ranges::find_if(
        removeButtons_, [](GtkWidget* button) { return gtk_widget_is_focus(button); });
    return static_cast<std::size_t>(found - removeButtons_.begin());
}

}  // namespace desktop
