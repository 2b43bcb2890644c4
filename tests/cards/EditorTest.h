#pragma once

#include "support/WindowTest.h"

class SchedaApribile;
class scheda;

/// Tests of the card editor and its pages, with the athlete 1 "Rossi Mario".
class EditorTest : public WindowTest {
    Q_OBJECT

protected Q_SLOTS:
    void init();

protected:
    /// Adds a card of athlete 1, category 2, with the period of November 2026; its key comes back.
    int nuovaScheda() const;
    /// Adds an exercise to a card: figure 0 makes it free.
    void esercizio(int scheda, int posizione, int figura, const QString& note = {}) const;
    /// Adds the user's template 2, "Mio", with one line of figure 1.
    void nuovoModello() const;

    static void apriNuova() { apri(1, 0, 0); }
    static void apriScheda(int scheda) { apri(1, scheda, 0); }
    /// Opens a new card with one exercise of each figure; its key comes back.
    int apriConFigure(std::initializer_list<int> figure) const;
    static void apri(int utente, int scheda, int modello);

    static SchedaApribile& aperta();
    static ::scheda& schedaAperta();
    /// "figure|durata|serie|note|isLibero" of every line in memory.
    static QString righe();
    static QString stato();

    static WindowPage editor();
    static WindowPage intestazione();
    static WindowPage corpo();
    /// Presses a button of the editor's toolbar.
    static void comando(const QString& chiave) { editor().press(chiave); }
    /// Saves by the toolbar, which tells of it.
    void salva();
};
