#pragma once

#include <QIcon>
#include <QImage>
#include <QSize>

namespace artwork {

enum class Logo {
    QuiverDeck, ///< the product's, 10 to 3
    Zentara,    ///< the maker's, 13 to 4
    BarraMenu,  ///< white, for the side bar of the menus, 5 to 24, upright
    Programma   ///< the program's icon, square
};

/// The logo drawn sharply into `pixels`, in its own proportions and centred, on a clear ground.
QImage logo(Logo which, const QSize& pixels);

/// The icon of the program's windows, in the usual sizes.
QIcon iconaProgramma();

} // namespace artwork
