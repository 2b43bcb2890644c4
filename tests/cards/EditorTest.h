#pragma once

#include "cards/SchedaCorpo.h"
#include "cards/SchedaIntestazione.h"
#include "cards/mdiScheda.h"
#include "cards/scheda.h"
#include "support/WindowTest.h"

/// Tests of the card editor and its pages, with the athlete 1 "Rossi Mario".
class EditorTest : public WindowTest {
    Q_OBJECT

protected Q_SLOTS:
    void init();

protected:
    /// Adds a card of athlete 1, category 2, with the period of November 2026 and one exercise of each figure
    /// (0 makes it free), its notes "a", "b", …; its key comes back.
    int nuovaScheda(const QList<int>& figure) const;
    /// Adds the user's template 2, "Mio", with one line of figure 1.
    void nuovoModello() const;

    static void apri(int utente, int scheda, int modello);
    static void apriNuova() { apri(1, 0, 0); }
    /// The same, and opens it.
    int apriConFigure(const QList<int>& figure) const;

    static SchedaApribile& aperta() { return *mdiScheda::comune().schedaAperta; }
    static ::scheda& schedaAperta() { return dynamic_cast<::scheda&>(aperta()); }
    /// "figure|durata|serie|note|isLibero" of every line in memory.
    static QString righe();
    static WindowPage editor() { return WindowPage(mdiScheda::comune()); }
    static WindowPage intestazione() { return WindowPage(SchedaIntestazione::comune()); }
    static WindowPage corpo() { return WindowPage(SchedaCorpo::comune()); }
    static toolkit::ScrollBar& barra() { return corpo().find<toolkit::ScrollBar>(QStringLiteral("VS")); }
    /// Presses a button of the editor's toolbar.
    static void comando(const QString& chiave) { editor().press(chiave); }
    /// Saves by the toolbar, which tells of it.
    void salva();
};
