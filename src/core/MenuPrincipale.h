#pragma once

#include <QMenuBar>
#include <functional>

/// The menu bar of the main window. Each menu and item bears the name of its control; the bar items of the
/// menus' sides are there by name and never show as items.
class MenuPrincipale : public QMenuBar {
    Q_OBJECT
public:
    explicit MenuPrincipale(QWidget* parent);

    QAction& voce(const QString& nome) const;

Q_SIGNALS:
    /// An item was chosen.
    void scelta(const QString& nome);

private:
    void aggiungi(QMenu& menu, const QString& nome, const QString& testo, const QString& immagine);
};
