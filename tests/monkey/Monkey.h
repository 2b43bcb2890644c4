#pragma once

#include "monkey/Acts.h"
#include "platform/host/Services.h"
#include "platform/toolkit/PrinterDialog.h"

#include <QFile>
#include <QJsonObject>
#include <QObject>
#include <QSet>
#include <QUrl>

class QMessageBox;

namespace monkey {

/// What a run of the program is given by the test.
struct Orders {
    QString folder;  ///< the program's
    QString journal; ///< told there, a line at a time, what is done and what came of it
    quint32 seed = 1;
    int first = 0; ///< number of the first act
    int last = 0;  ///< behind the last one; there the power fails
    /// File with what the user saw of an open card when the last run ended; empty or missing: no card.
    QString before() const { return folder + QStringLiteral("/visto.json"); }
};

/// The dialogs of the desktop, answered at random: files good and bad, a PDF in the program's folder.
class Desk : public host::FileDialogs, public toolkit::PrinterDialog {
public:
    Desk(Dice& dice, QString folder) : dice_(dice), folder_(std::move(folder)) {}
    QString openFile(const QString& filter, const QString& folder) override;
    bool choose(QPrinter& printer, toolkit::PrintRange& range) override;
    /// The last sheet was sent where nothing can be written.
    bool unwritable() const { return unwritable_; }

private:
    bool unwritable_ = false;
    Dice& dice_;
    QString folder_;
};

/// Does one act each time that an event loop comes round to taking the user's input, be it the program's own,
/// a modal window's or a drag's. Kinds of journal lines: "act", "form" (seen for the first time), "asked",
/// "restored", "wrong" (a check that failed), "fatal" (why it may be), "off" (the power failed), "qt" (a
/// warning).
class Monkey : public QObject {
    Q_OBJECT
public:
    explicit Monkey(const Orders& orders);

    void tell(const QString& kind, const QString& text);
    /// A warning of the toolkit tells of a misuse, unless it is a known one.
    void heard(const QString& warning);
    /// Takes the addresses that would open a browser.
    Q_INVOKABLE void follow(const QUrl& /*address*/) {}

private:
    void arm();
    void turn();
    bool settled();
    void look();
    bool answerStart();
    void checkRestored();
    [[nodiscard]] bool endIn(QMessageBox& box);
    void powerOff();
    void remember();
    void perform(const Act& act);

    Orders orders_;
    QFile journal_;
    Dice dice_;
    Hands hands_;
    Desk desk_;
    int number_;
    bool ended_ = false; ///< the last act is done, and one turn more
    int waited_ = 0;
    int idle_ = 0; ///< rounds in which no act was to be had
    bool settled_ = false;
    QSet<QString> forms_;
    QJsonObject before_; ///< what must come back; empty once it did, or was declined
    enum class Start { Expected, Taken, Declined, Over } start_ = Start::Over;
};

} // namespace monkey
