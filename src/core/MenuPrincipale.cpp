#include "core/MenuPrincipale.h"

#include "desktop/OwnMenu.h"
#include "platform/runtime/Error.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

/// One row of the menu tree: a top menu, a bar item (no text), an item, or a separator.
struct Riga {
    enum Specie { Menu, Lato, Voce, Separatore } specie;
    const char* nome;
    const char* testo;
    const char* immagine;
};

constexpr Riga righe[] = {
    {Riga::Menu, "mnuQDK", "Zentara Deckforge", ""},
    {Riga::Lato, "mnuQDKBar", "", ""},
    {Riga::Voce, "mnuQDKPersonalizza", "Personalizza", "lista"},
    {Riga::Separatore, "sep0", "", ""},
    {Riga::Voce, "mnuQDKEsci", "Esci", "esci"},
    {Riga::Menu, "mnuUtenti", "Utenti", ""},
    {Riga::Lato, "mnuUtentiBar", "", ""},
    {Riga::Voce, "mnuUtentiGestione", "Gestione...", "utenti"},
    {Riga::Menu, "mnuSchede", "Schede", ""},
    {Riga::Lato, "mnuSchedeBar", "", ""},
    {Riga::Voce, "mnuSchedeNuova", "Nuova Scheda", "nuova"},
    {Riga::Voce, "mnuSchedeApri", "Apri...", "apri"},
    {Riga::Separatore, "sep4", "", ""},
    {Riga::Voce, "mnuSchedeDaModello", "Nuova da Modello", "damodello"},
    {Riga::Voce, "mnuSchedeGestioneModello", "Gestione Schede Modello", "lista"},
    {Riga::Separatore, "sep5", "", ""},
    {Riga::Voce, "mnuSchedeCosaNonFare", "Stampa \"ISTRUZIONI D'USO\"", ""},
    {Riga::Menu, "mnuHelp", "?", ""},
    {Riga::Lato, "mnuHelpBar", "", ""},
    {Riga::Voce, "mnuHelpHelp", "Guida del programma", "hint"},
    {Riga::Separatore, "sep88", "", ""},
    {Riga::Voce, "mnuHelpManuale", "Manuale d'uso di Quiverdeck", ""},
    {Riga::Separatore, "sep9", "", ""},
    {Riga::Voce, "mnuHelpAbout", "Informazioni su...", "info"},
};

} // namespace

MenuPrincipale::MenuPrincipale(QWidget* parent) : QMenuBar(parent) {
    setObjectName(u"MenuPrincipale"_s);
    setNativeMenuBar(false);
    QMenu* menu = nullptr;
    for (const Riga& riga : righe) {
        const QString nome = QString::fromUtf8(riga.nome);
        if (riga.specie == Riga::Menu) {
            menu = addMenu(QString::fromUtf8(riga.testo));
            menu->setObjectName(nome);
        } else if (menu == nullptr) {
            continue; // the table begins with a menu
        } else if (riga.specie == Riga::Voce) {
            aggiungi(*menu, nome, QString::fromUtf8(riga.testo));
        } else {
            QAction* action = menu->addSeparator();
            action->setObjectName(nome);
            action->setVisible(riga.specie == Riga::Separatore);
        }
    }
}

MenuPrincipale::~MenuPrincipale() {
    spoglia();
}

void MenuPrincipale::aggiungi(QMenu& menu, const QString& nome, const QString& testo) {
    QAction* action = menu.addAction(testo);
    action->setObjectName(nome);
    action->setMenuRole(QAction::NoRole);
    connect(action, &QAction::triggered, this, [this, nome] { Q_EMIT scelta(nome); });
}

void MenuPrincipale::vesti(QWidget& finestra, const toolkit::ImageList& immagini,
                           const StileMenu::Disegno& lato) {
    const QColor tinta(255, 128, 128);
    OwnMenu::avvia(finestra, *this, immagini);
    vestita = &finestra;
    int menu = -1;
    int posizione = 0;
    for (const Riga& riga : righe) {
        const QString nome = QString::fromUtf8(riga.nome);
        if (riga.specie == Riga::Lato) {
            const bool mostrato = nome != u"mnuUtentiBar"_s;
            OwnMenu::registraMenu(++menu, tinta, mostrato ? lato : StileMenu::Disegno());
            posizione = 0;
        } else if (riga.specie != Riga::Menu) {
            // Kept: these two stay plain items.
            if (nome != u"sep88"_s && nome != u"mnuHelpManuale"_s)
                OwnMenu::registraVoce(posizione, QString::fromUtf8(riga.immagine));
            ++posizione;
        }
    }
    OwnMenu::aggancia();
}

void MenuPrincipale::spoglia() {
    if (vestita) {
        OwnMenu::sgancia(*vestita);
        vestita = nullptr;
    }
}

QAction& MenuPrincipale::voce(const QString& nome) const {
    auto* action = findChild<QAction*>(nome);
    if (action == nullptr)
        runtime::raise(runtime::ElementNotFound, {}, nome);
    return *action;
}
