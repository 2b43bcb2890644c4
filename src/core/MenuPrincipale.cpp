#include "core/MenuPrincipale.h"

#include "artwork/icons/Icone.h"
#include "platform/runtime/Error.h"

#include <QMenu>

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
    setObjectName(QStringLiteral("MenuPrincipale"));
    setNativeMenuBar(false);
    QMenu* menu = nullptr;
    for (const Riga& riga : righe) {
        const QString nome = QString::fromUtf8(riga.nome);
        if (riga.specie == Riga::Menu) {
            menu = addMenu(QString::fromUtf8(riga.testo));
            menu->setObjectName(nome);
        } else if (riga.specie == Riga::Voce) {
            aggiungi(*menu, nome, QString::fromUtf8(riga.testo), QString::fromUtf8(riga.immagine));
        } else {
            QAction* action = menu->addSeparator();
            action->setObjectName(nome);
            action->setVisible(riga.specie == Riga::Separatore);
        }
    }
}

void MenuPrincipale::aggiungi(QMenu& menu, const QString& nome, const QString& testo,
                              const QString& immagine) {
    QAction* action = menu.addAction(testo);
    action->setObjectName(nome);
    action->setMenuRole(QAction::NoRole);
    if (!immagine.isEmpty()) {
        action->setIcon(artwork::icona(QStringLiteral("menu"), immagine));
    }
    connect(action, &QAction::triggered, this, [this, nome] { Q_EMIT scelta(nome); });
}

QAction& MenuPrincipale::voce(const QString& nome) const {
    auto* action = findChild<QAction*>(nome);
    if (action == nullptr) {
        runtime::raise(runtime::ElementNotFound, {}, nome);
    }
    return *action;
}
