#pragma once

#include "desktop/StileMenu.h"

#include <QString>

class QMenuBar;

namespace toolkit {
class ImageList;
}

/// Gives the drop-down menus of exactly one window a look of their own (see StileMenu). The order is the
/// one of the window's start: `avvia`, then each menu and each of its items, then `aggancia`; `sgancia` at
/// its end.
namespace OwnMenu {

/// Takes the window, its menu bar and the pictures of its items, which must outlive the menus' use; forgets
/// what was registered before.
void avvia(QWidget& finestra, QMenuBar& barra, const toolkit::ImageList& immagini);

/// The menu at `posizione` in the bar, from 0. `figura` draws the picture of its side bar, which is tinted;
/// without one the menu has no side bar.
void registraMenu(int posizione, const QColor& tinta, const StileMenu::Disegno& figura);

/// An item of the menu registered last, by its position from 0, the side bar's not counted. `chiave` names
/// its picture; empty for none. What stands behind a line feed in its text goes to the right-hand column.
void registraVoce(int posizione, const QString& chiave);

/// The menus take their look, and follow every change of the desktop's font and colours from now on.
void aggancia();
/// The menus of `finestra` have their former look again; nothing if it is not the window in force.
void sgancia(const QWidget& finestra);

} // namespace OwnMenu
