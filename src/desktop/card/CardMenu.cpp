#include "desktop/card/CardMenu.hpp"

#include "desktop/gtk/Connect.hpp"
#include "platform/foundation/localization/Message.hpp"

#include <functional>
#include <utility>

namespace desktop {

namespace {

using foundation::message;
using widgethost::Direction;

void add(GSimpleActionGroup* actions, const char* name, std::function<void()> act) {
    const auto action = adopted(g_simple_action_new(name, nullptr));
    connect<void(GVariant*)>(action.get(), "activate",
                             [act = std::move(act)](GVariant*) { act(); });
    g_action_map_add_action(G_ACTION_MAP(actions), G_ACTION(action.get()));
}

void append(GMenu* menu, const std::string& label, const char* action, const char* key = nullptr) {
    const auto item = adopted(g_menu_item_new(label.c_str(), action));
    if (key)
        g_menu_item_set_attribute(item.get(), "accel", "s", key);
    g_menu_append_item(menu, item.get());
}

Reference<GMenu> moves() {
    auto menu = adopted(g_menu_new());
    append(menu.get(), message("A la izquierda"), "card.left", "<Control>Left");
    append(menu.get(), message("A la derecha"), "card.right", "<Control>Right");
    append(menu.get(), message("Arriba"), "card.up", "<Control>Up");
    append(menu.get(), message("Abajo"), "card.down", "<Control>Down");
    return menu;
}

Reference<GMenu> model(bool canMove) {
    auto menu = adopted(g_menu_new());
    const auto card = adopted(g_menu_new());
    append(card.get(), message("Quitar este widget"), "card.remove");
    if (canMove)
        g_menu_append_submenu(card.get(), message("Mover").c_str(), G_MENU_MODEL(moves().get()));
    const auto all = adopted(g_menu_new());
    append(all.get(), message("Añadir widgets…"), "card.add");
    if (canMove)
        append(all.get(), message("Recolocar todos"), "card.place-anew");
    g_menu_append_section(menu.get(), nullptr, G_MENU_MODEL(card.get()));
    g_menu_append_section(menu.get(), nullptr, G_MENU_MODEL(all.get()));
    return menu;
}

}  // namespace

CardMenu::CardMenu(GtkWidget* card, const CardRequests& requests, bool canMove)
    : card_(card), canMove_(canMove), actions_(adopted(g_simple_action_group_new())) {
    GSimpleActionGroup* actions = actions_.get();
    add(actions, "remove", requests.remove);
    add(actions, "add", requests.addWidgets);
    add(actions, "place-anew", requests.placeAnew);
    const auto move = [&](const char* name, Direction direction) {
        add(actions, name, [move = requests.move, direction] { move(direction); });
    };
    move("left", Direction::left);
    move("right", Direction::right);
    move("up", Direction::up);
    move("down", Direction::down);
    gtk_widget_insert_action_group(card_, "card", G_ACTION_GROUP(actions));
}

CardMenu::~CardMenu() {
    gtk_widget_insert_action_group(card_, "card", nullptr);
    if (!popover_)
        return;
    // An open menu holds the pointer and the keyboard.
    gtk_popover_popdown(GTK_POPOVER(popover_));
    gtk_widget_unparent(popover_);
}

void CardMenu::open(double x, double y) {
    if (!popover_) {
        popover_ = gtk_popover_menu_new_from_model(G_MENU_MODEL(model(canMove_).get()));
        gtk_widget_set_parent(popover_, card_);
        gtk_popover_set_has_arrow(GTK_POPOVER(popover_), FALSE);
        gtk_widget_set_halign(popover_, GTK_ALIGN_START);
    }
    // Without a compositor a shadow is a black frame.
    if (gdk_display_is_composited(gtk_widget_get_display(card_)))
        gtk_widget_remove_css_class(popover_, "nurva-opaque");
    else
        gtk_widget_add_css_class(popover_, "nurva-opaque");
    const GdkRectangle at{static_cast<int>(x), static_cast<int>(y), 1, 1};
    gtk_popover_set_pointing_to(GTK_POPOVER(popover_), &at);
    gtk_popover_popup(GTK_POPOVER(popover_));
}

}  // namespace desktop
