#pragma once

#include "desktop/StileMenu.h"

#include <QMenuBar>
#include <QPointer>

namespace toolkit {
class ImageList;
}

/// The menu bar of the main window. Each menu and item bears the name of its control; the bar items of the
/// menus' sides are there by name and never show as items.
class MenuPrincipale : public QMenuBar {
    Q_OBJECT
public:
    explicit MenuPrincipale(QWidget* parent);

    ~MenuPrincipale() override;

    QAction& voce(const QString& nome) const;

    /// Gives the menus of `finestra` their own look, with the pictures of `immagini` and `lato` in the side
    /// bars.
    void vesti(QWidget& finestra, const toolkit::ImageList& immagini, const StileMenu::Disegno& lato);
    /// Takes it away again.
    void spoglia();

Q_SIGNALS:
    /// An item was chosen.
    void scelta(const QString& nome);

private:
    void aggiungi(QMenu& menu, const QString& nome, const QString& testo);

    QPointer<QWidget> vestita; ///< the window whose menus have their own look
};
