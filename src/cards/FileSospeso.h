#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The side file beside the data file that holds the open card. Readable by its owner alone, replaced as a
/// whole (a reader finds the old contents or the new ones), and never waiting for the disk.
class FileSospeso {
public:
    /// Beside the store of the program's directory.
    FileSospeso();
    explicit FileSospeso(QString percorso) : percorso_(std::move(percorso)) {}

    const QString& percorso() const { return percorso_; }
    bool esiste() const;
    /// The contents; nothing if it cannot be read or is larger than any card.
    std::optional<QByteArray> leggi() const;
    /// False if it cannot be written; what stood there before still does.
    bool scrivi(const QByteArray& contenuto) const;
    void rimuovi() const;
    /// Gives the file another name: its own, `motivo` and date and time. The new name comes back, an empty
    /// one if it cannot be renamed.
    QString mettiDaParte(const QString& motivo) const;

private:
    QString percorso_;
};
