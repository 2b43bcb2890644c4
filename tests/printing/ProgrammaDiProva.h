#pragma once

#include "cards/Esercizio.h"
#include "cards/scheda.h"

#include <QString>
#include <QTemporaryDir>

/// A program's folder with a fresh store, one figure with its picture and one without; the running test's
/// program directory while it lives.
class ProgrammaDiProva {
public:
    static constexpr int figura = 7;
    static constexpr int figuraSenzaFile = 8;

    ProgrammaDiProva();
    ~ProgrammaDiProva();
    ProgrammaDiProva(const ProgrammaDiProva&) = delete;
    ProgrammaDiProva& operator=(const ProgrammaDiProva&) = delete;

    QString folder() const { return mFolder.path(); }
    void setLogo(const QString& stored) const;

    /// Stores a card with `exercises` lines, numbered from 1; every fifth is free text. Gives its key.
    qint32 storedCard(int exercises) const;

private:
    QTemporaryDir mFolder;
};
