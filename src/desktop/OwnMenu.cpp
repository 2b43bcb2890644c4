#include "desktop/OwnMenu.h"

#include "platform/runtime/Error.h"
#include "platform/toolkit/ImageList.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <memory>
#include <vector>

namespace {

QFont carattereDeiMenu() {
    return QApplication::font("QMenu");
}

/// Hears of changes of the desktop's font and look, at the window and at its menus.
class Ascolto : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

struct Menu {
    QPointer<QMenu> menu;
    QColor tinta;
    StileMenu::Disegno figura;
};

struct Stato {
    QPointer<QWidget> finestra;
    QPointer<QMenuBar> barra;
    const toolkit::ImageList* immagini = nullptr;
    std::vector<Menu> menu;
    std::unique_ptr<StileMenu> stile;
    std::unique_ptr<Ascolto> ascolto; ///< there while hooked
};

Stato& stato() {
    static Stato unico;
    return unico;
}

/// Fonts anew, and every item is measured again.
void rinnova() {
    stato().stile->rinnovaCaratteri(carattereDeiMenu());
    for (const Menu& uno : stato().menu) {
        if (uno.menu) {
            uno.menu->setFont(stato().stile->normale());
            QEvent misura(QEvent::StyleChange);
            QApplication::sendEvent(uno.menu, &misura);
        }
    }
}

bool Ascolto::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool cambio =
        event->type() == QEvent::ApplicationFontChange || event->type() == QEvent::ThemeChange;
    if (cambio && stato().stile->normale() != carattereDeiMenu())
        rinnova();
    return false;
}

/// The items that can show; the side bar's own entry never does.
QList<QAction*> voci(const QMenu& menu) {
    QList<QAction*> visibili;
    for (QAction* voce : menu.actions())
        if (voce->isVisible() || !voce->isSeparator())
            visibili.append(voce);
    return visibili;
}

} // namespace

void OwnMenu::avvia(QWidget& finestra, QMenuBar& barra, const toolkit::ImageList& immagini) {
    if (stato().finestra)
        sgancia(*stato().finestra);
    stato() = Stato();
    stato().finestra = &finestra;
    stato().barra = &barra;
    stato().immagini = &immagini;
    stato().stile = std::make_unique<StileMenu>(carattereDeiMenu());
}

void OwnMenu::registraMenu(int posizione, const QColor& tinta, const StileMenu::Disegno& figura) {
    const QList<QAction*> menu = stato().barra ? stato().barra->actions() : QList<QAction*>();
    if (posizione < 0 || posizione >= menu.size())
        runtime::raise(runtime::SubscriptOutOfRange);
    stato().menu.push_back({menu.at(posizione)->menu(), tinta, figura});
}

void OwnMenu::registraVoce(int posizione, const QString& chiave) {
    if (stato().menu.empty() || !stato().menu.back().menu)
        runtime::raise(runtime::ObjectNotSet);
    const QList<QAction*> tutte = voci(*stato().menu.back().menu);
    if (posizione < 0 || posizione >= tutte.size())
        runtime::raise(runtime::SubscriptOutOfRange);
    QAction& voce = *tutte.at(posizione);
    if (!chiave.isEmpty()) {
        voce.setIcon(stato().immagini->icon(chiave));
        voce.setIconVisibleInMenu(true);
    }
    const QString testo = voce.text();
    const qsizetype aCapo = testo.indexOf(QLatin1Char('\n'));
    if (aCapo >= 0)
        voce.setText(testo.left(aCapo) + QLatin1Char('\t') + testo.mid(aCapo + 1));
}

void OwnMenu::aggancia() {
    if (stato().ascolto || !stato().finestra)
        return;
    stato().ascolto = std::make_unique<Ascolto>();
    stato().finestra->installEventFilter(stato().ascolto.get());
    for (const Menu& uno : stato().menu) {
        uno.menu->setStyle(stato().stile.get());
        uno.menu->installEventFilter(stato().ascolto.get());
        if (uno.figura)
            stato().stile->aggiungiLato(*uno.menu, uno.tinta, uno.figura);
    }
    rinnova();
}

void OwnMenu::sgancia(const QWidget& finestra) {
    if (stato().finestra != &finestra)
        return;
    if (stato().ascolto) {
        for (const Menu& uno : stato().menu) {
            if (uno.menu) {
                uno.menu->setStyle(nullptr);
                uno.menu->setFont(QFont());
                uno.menu->setContentsMargins(0, 0, 0, 0);
            }
        }
    }
    stato() = Stato();
}
