#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A program's folder of the test's own, with a store of the real schema and a few rows; the settings have
/// a folder of their own too. Its name holds blanks and accents. While it lives, it is the program's
/// directory and the shared db names its store.
///
/// The rows: categories 1 "Forza", 2 "Generale", 3 "Recupero"; figures 1 to 3 of QUIVR (numbers 2, 1.5 and
/// 1, figure 3 with two muscles) and 4 of GLIDR; muscles ADD, GLU, QUA; both machines loaded; the gym's
/// empty row; the parameter PATH_MANUALE; the supplied template 1 "Base" with two lines.
class ScratchProgram {
public:
    ScratchProgram();
    ~ScratchProgram();
    Q_DISABLE_COPY(ScratchProgram)

    /// No separator at the end.
    QString folder() const { return folder_; }
    QString store() const { return folder_ + QStringLiteral("/splash.ps"); }
    QString settingsFolder() const { return root_.filePath(QStringLiteral("impostazioni")); }

    /// Runs statements straight on the store, beside the program's own road; throws std::runtime_error.
    void sql(const QString& statements) const;
    /// The rows of a query, straight from the store: columns joined by "|", Null as "NULL".
    QStringList rows(const QString& query) const;

    /// The lines of log.txt without their date and time.
    QStringList log() const;

private:
    QTemporaryDir root_;
    QString folder_;
};
