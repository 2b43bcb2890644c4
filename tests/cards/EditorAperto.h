#pragma once

#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"
#include "support/WindowPage.h"

#include <QStringList>

class SchedaApribile;
class scheda;

/// A program's folder with pictures for its figures and the athlete 1 "Rossi Mario"; the card editor, closed
/// with all its pages at the end. The globals start and end at nothing chosen.
class EditorAperto {
public:
    EditorAperto();
    ~EditorAperto();
    EditorAperto(const EditorAperto&) = delete;
    EditorAperto& operator=(const EditorAperto&) = delete;

    /// Adds a card of athlete 1, category 2, with the period of November 2026; its key comes back.
    int scheda(const QString& campi = {}) const;
    /// Adds an exercise to a card: figure 0 makes it free.
    void esercizio(int scheda, int posizione, int figura, const QString& note = {}) const;

    void apriNuova() const { apri(1, 0, 0); }
    void apriScheda(int scheda) const { apri(1, scheda, 0); }
    void apri(int utente, int scheda, int modello) const;

    static SchedaApribile& aperta();
    static ::scheda& schedaAperta();
    /// "figure|durata|serie|note|isLibero" of every line in memory.
    static QStringList righe();
    static QString stato();

    WindowPage editor() const;
    WindowPage intestazione() const;
    WindowPage corpo() const;
    /// Presses a button of the editor's toolbar.
    void comando(const QString& chiave) const { editor().press(chiave); }

    ScratchProgram programma;
    ScriptedBoxes riquadri;
};
