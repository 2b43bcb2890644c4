#include "monkey/Monkey.h"

#include "cards/FileSospeso.h"
#include "monkey/Ends.h"
#include "monkey/Seen.h"
#include "platform/toolkit/Form.h"

#include <QApplication>
#include <QJsonDocument>
#include <QMessageBox>
#include <QPageSize>
#include <QPrinter>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QTimer>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace monkey {

namespace {

constexpr int patience = 20000; ///< rounds of the event loop, not a time

/// What a user has to choose from.
const QString files[] = {u"images/Q/001.JPG"_s, u"images/BodyMap/corpo.JPG"_s, u"rotta.jpg"_s, u"splash.ps"_s,
                         u"non c’è.jpg"_s,      u"logo grande.bmp"_s};

int handsOff = 0; ///< the program redraws and takes no input meanwhile

} // namespace

QString Desk::openFile(const QString& /*filter*/, const QString& /*folder*/) {
    return dice_.chance(30) ? QString() : folder_ + u'/' + dice_.pick(files);
}

bool Desk::choose(QPrinter& printer, toolkit::PrintRange& range) {
    if (dice_.chance(30))
        return false;
    printer.setOutputFormat(QPrinter::PdfFormat);
    unwritable_ = dice_.chance(15);
    printer.setOutputFileName(folder_ + (unwritable_ ? u"/manca/foglio.pdf"_s : u"/foglio.pdf"_s));
    printer.setPageSize(QPageSize(QPageSize::A4));
    range.from = range.minimum + dice_.roll(range.maximum - range.minimum + 1);
    range.to = std::min(range.maximum, range.from + dice_.roll(2));
    range.copies = 1 + dice_.roll(2);
    return true;
}

Monkey::Monkey(const Orders& orders)
    : orders_(orders), journal_(orders.journal),
      dice_(orders.seed * 1000003U + static_cast<quint32>(orders.first)), hands_(dice_),
      desk_(dice_, orders.folder), number_(orders.first) {
    if (!journal_.open(QIODevice::Append | QIODevice::Unbuffered))
        std::_Exit(2);
    QFile before(orders.before());
    if (before.open(QIODevice::ReadOnly))
        before_ = QJsonDocument::fromJson(before.readAll()).object();
    if (!before_.isEmpty())
        start_ = Start::Expected;
    arm();
}

void Monkey::tell(const QString& kind, const QString& text) {
    journal_.write((kind + u'\t' + QString(text).replace(u'\n', u' ') + u'\n').toUtf8());
}

void Monkey::heard(const QString& warning) {
    // What this platform cannot do; a damaged picture and a sheet that cannot be written, each told in a box.
    const bool known = warning.startsWith("This plugin does not support"_L1) ||
                       warning.contains("JPEG data"_L1) ||
                       (desk_.unwritable() && warning == u"QPainter::begin(): Returned false");
    if (!known)
        tell(u"qt"_s, warning);
}

void Monkey::arm() {
    QTimer::singleShot(0, this, &Monkey::turn);
}

/// The question about a card comes by an event that stands in the queue when the loop begins: it goes first.
bool Monkey::settled() {
    if (!settled_ && waited_++ == 0)
        QMetaObject::invokeMethod(
            this, [this] { settled_ = true; }, Qt::QueuedConnection);
    return settled_;
}

void Monkey::turn() {
    arm();
    if (handsOff != 0 || !settled())
        return;
    host::setFileDialogs(&desk_);
    toolkit::setPrinterDialog(&desk_);
    look();
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr && endIn(*box))
        return;
    if (!answerStart())
        return;
    if (number_ >= orders_.last && !hands_.dragging()) {
        // What the act under way has changed is kept once an event has ended in the loop it runs.
        if (ended_)
            powerOff();
        ended_ = true;
        return;
    }
    const Act act = hands_.dragging() ? hands_.drop() : hands_.choose();
    if (act.run) {
        idle_ = 0;
        perform(act);
    } else if (++idle_ == patience) {
        tell(u"wrong"_s, u"nothing takes the user's input"_s);
    }
}

void Monkey::perform(const Act& act) {
    tell(u"act"_s, u"%1\t%2\t%3"_s.arg(number_++).arg(act.window, act.what));
    act.run();
}

void Monkey::look() {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        QList<const toolkit::Form*> seenHere = window->findChildren<const toolkit::Form*>();
        if (const auto* form = qobject_cast<const toolkit::Form*>(window))
            seenHere.append(form);
        for (const toolkit::Form* form : seenHere) {
            if (form->isVisible() && !forms_.contains(form->objectName())) {
                forms_.insert(form->objectName());
                tell(u"form"_s, form->objectName());
            }
        }
    }
}

/// False while the start is not over: a card that was open must be asked for, and come back.
bool Monkey::answerStart() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    const bool asked = box != nullptr && box->text().startsWith("Ripristinare la scheda che era aperta"_L1);
    if (asked && start_ != Start::Expected)
        tell(u"wrong"_s, u"asked for a card that was not open: "_s + box->text());
    if (start_ == Start::Over)
        return true;
    if (start_ == Start::Expected) {
        if (!asked) {
            if (box == nullptr && ++waited_ > patience) {
                tell(u"wrong"_s, u"an open card was not asked for"_s);
                start_ = Start::Over;
            }
            return box != nullptr; // another box, or the screen's question, comes first
        }
        const bool yes = dice_.chance(80);
        tell(u"asked"_s, yes ? u"yes"_s : u"no"_s);
        start_ = yes ? Start::Taken : Start::Declined;
        QFile::remove(orders_.before());
        pressKey(box->windowHandle(), yes ? Qt::Key_Return : Qt::Key_Escape);
        return false;
    }
    if (start_ == Start::Taken) {
        checkRestored();
        return start_ == Start::Over;
    }
    if (FileSospeso().esiste())
        tell(u"wrong"_s, u"a declined card's file still stands"_s);
    start_ = Start::Over;
    return true;
}

void Monkey::checkRestored() {
    const QJsonObject now = seen();
    if (now.isEmpty() && ++waited_ < patience)
        return;
    const QStringList all = lost(before_, now);
    if (all.isEmpty())
        tell(u"restored"_s, u"%1"_s.arg(now["lines"_L1].toVariant().toList().size()));
    for (const QString& one : all)
        tell(u"wrong"_s, u"lost: "_s + one);
    start_ = Start::Over;
}

bool Monkey::endIn(QMessageBox& box) {
    static const QRegularExpression report(u"^Errore (-?\\d+)\n\n(.*)$"_s,
                                           QRegularExpression::DotMatchesEverythingOption);
    const auto match = report.match(box.text());
    if (box.icon() != QMessageBox::Critical || !match.hasMatch())
        return false;
    const int number = match.captured(1).toInt();
    const QString why = reasonOf(number);
    tell(why.isEmpty() ? u"wrong"_s : u"fatal"_s,
         why.isEmpty() ? u"error %1 ends the program: %2"_s.arg(number).arg(match.captured(2))
                       : u"%1\t%2"_s.arg(number).arg(why));
    if (start_ == Start::Taken)
        tell(u"wrong"_s, u"the restored card ends the program again"_s);
    remember();
    pressKey(box.windowHandle(), Qt::Key_Return);
    return true;
}

/// Keeps what the user sees of the card for the next run, and looks whether the program kept it too.
void Monkey::remember() {
    if (start_ != Start::Over)
        return; // the next run must ask for the same card again
    const QJsonObject now = seen();
    QFile file(orders_.before());
    QFile::remove(file.fileName());
    if (FileSospeso().esiste() == now.isEmpty()) {
        tell(u"wrong"_s, now.isEmpty() ? u"a side file, and no card is open"_s
                                       : u"a card is open without its side file"_s);
        return;
    }
    if (!now.isEmpty() && file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(now).toJson());
}

void Monkey::powerOff() {
    remember();
    tell(u"off"_s, QString());
    std::_Exit(0);
}

} // namespace monkey

// The program lets events through here and there to show what it does, and leaves the user's input out. The
// linker leads these calls here.
#define LETS_THROUGH(symbol, parameters, arguments)                                                          \
    extern "C" void __real_##symbol parameters;  /* NOLINT */                                                \
    extern "C" void __wrap_##symbol parameters { /* NOLINT */                                                \
        const QScopedValueRollback<int> held(monkey::handsOff, monkey::handsOff + 1);                        \
        __real_##symbol arguments;                                                                           \
    }
LETS_THROUGH(_ZN16QCoreApplication13processEventsE6QFlagsIN10QEventLoop17ProcessEventsFlagEE,
             (QEventLoop::ProcessEventsFlags flags), (flags))
LETS_THROUGH(_ZN16QCoreApplication13processEventsE6QFlagsIN10QEventLoop17ProcessEventsFlagEEi,
             (QEventLoop::ProcessEventsFlags flags, int milliseconds), (flags, milliseconds))
