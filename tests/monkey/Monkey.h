#pragma once

#include "monkey/Acts.h"
#include "platform/host/Services.h"
#include "platform/toolkit/PrinterDialog.h"

#include <QJsonObject>
#include <QObject>

class QMessageBox;

namespace monkey {

/// A line for the test, on the standard output. Kinds: "act" (number, window and control, what), "asked",
/// "restored", "wrong" (a check that failed), and at the end "fatal" (why it may be), "off" (the power
/// failed) or "end" (the program was left). A program that is silent for two minutes aborts.
void tell(const char* kind, const QString& text);

/// What a run of the program is given by the test.
struct Orders {
    QString folder; ///< the program's
    quint32 seed = 1;
    int first = 0; ///< number of the first act
    int last = 0;  ///< behind the last one; there the power fails
    /// File with what the user saw of an open card when the last run ended; missing or empty: no card.
    QString before() const { return folder + QStringLiteral("/visto.json"); }
};

/// Does one act each time that an event loop comes round to taking the user's input, be it the program's own,
/// a modal window's or a drag's. Answers the desktop's dialogs at random too: files good and bad, a PDF in
/// the program's folder.
class Monkey : public QObject, public host::FileDialogs, public toolkit::PrinterDialog {
    Q_OBJECT
public:
    explicit Monkey(const Orders& orders);

    /// A warning of the toolkit tells of a misuse, unless it is a known one.
    void heard(const QString& warning) const;
    QString openFile(const QString& filter, const QString& folder) override;
    bool choose(QPrinter& printer, toolkit::PrintRange& range) override;

private:
    void arm();
    void turn();
    bool started(QMessageBox* box);
    [[nodiscard]] bool endIn(QMessageBox& box);
    void compareSideFile(bool open) const;
    void remember() const;

    Orders orders_;
    Dice dice_;
    Hands hands_;
    int number_;
    int rounds_ = 0;          ///< of the event loop since an act
    bool unwritable_ = false; ///< the last sheet was sent where nothing can be written
    QJsonObject before_;      ///< what must come back; empty if it was declined
    enum class Start { Expected, Answered, Over } start_ = Start::Over;
};

} // namespace monkey
