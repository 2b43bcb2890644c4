#pragma once

#include <QIcon>
#include <QString>

namespace artwork {

/// The icon of a toolbar button, menu entry or picture button, in 16, 24 and 32 units and twice as fine, with
/// its hot look as the mode Active. `form` is the window's name ("menu" for menu entries), `key` the button's
/// key or the control's name; both as the program spells them. A null icon if there is none.
QIcon icona(const QString& form, const QString& key);

} // namespace artwork
