#include "monkey/Monkey.h"

#include "cards/FileSospeso.h"
#include "monkey/Ends.h"
#include "monkey/Seen.h"
#include "support/Files.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QPageSize>
#include <QPrinter>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace monkey {

namespace {

constexpr int patience = 20000; ///< rounds of the event loop, not a time

/// What a user has to choose from.
const QString files[] = {u"images/Q/001.JPG"_s, u"images/BodyMap/corpo.JPG"_s, u"rotta.jpg"_s, u"splash.ps"_s,
                         u"non c’è.jpg"_s,      u"logo grande.bmp"_s};

bool handsOff = false; ///< the program redraws and takes no input meanwhile

} // namespace

void tell(const char* kind, const QString& text) {
    ::alarm(120);
    std::printf("%s\t%s\n", kind, qUtf8Printable(QString(text).replace(u'\n', u' ')));
    std::fflush(stdout);
}

Monkey::Monkey(const Orders& orders)
    : orders_(orders), dice_(orders.seed * 1000003U + static_cast<quint32>(orders.first)),
      hands_(dice_,
             [this](const QWidget& control, const QString& what) {
                 rounds_ = 0;
                 const QWidget& own =
                     control.objectName().startsWith("qt_"_L1) ? *control.parentWidget() : control;
                 tell("act",
                      u"%1\t%2/%3\t%4"_s.arg(number_++).arg(windowOf(control), own.objectName(), what));
             }),
      number_(orders.first), before_(QJsonDocument::fromJson(readFile(orders.before())).object()) {
    if (!before_.isEmpty())
        start_ = Start::Expected;
    arm();
}

QString Monkey::openFile(const QString& /*filter*/, const QString& /*folder*/) {
    return dice_.chance(30) ? QString() : orders_.folder + u'/' + dice_.pick(files);
}

bool Monkey::choose(QPrinter& printer, toolkit::PrintRange& range) {
    unwritable_ = dice_.chance(15);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(orders_.folder + (unwritable_ ? u"/manca/foglio.pdf"_s : u"/foglio.pdf"_s));
    printer.setPageSize(QPageSize(QPageSize::A4));
    range.from = range.minimum + dice_.roll(range.maximum - range.minimum + 1);
    range.to = std::min(range.maximum, range.from + dice_.roll(2));
    range.copies = 1 + dice_.roll(2);
    return dice_.chance(70);
}

void Monkey::heard(const QString& warning) const {
    // What this platform cannot do; a damaged picture and a sheet that cannot be written, each told in a box.
    const bool known = warning.startsWith("This plugin does not support"_L1) ||
                       warning.contains("JPEG data"_L1) ||
                       (unwritable_ && warning == u"QPainter::begin(): Returned false");
    if (!known)
        tell("wrong", warning);
}

void Monkey::arm() {
    QTimer::singleShot(0, this, &Monkey::turn);
}

void Monkey::turn() {
    arm();
    // One round passes first: the question about a card stands in the queue when the loop begins, and what an
    // act has changed is kept once an event has ended in the loop that it runs.
    if (handsOff || ++rounds_ == 1)
        return;
    if (rounds_ == patience) {
        tell("wrong", start_ == Start::Over ? u"nothing takes the user's input"_s
                                            : u"an open card does not come back"_s);
        std::_Exit(EXIT_FAILURE);
    }
    host::setFileDialogs(this);
    toolkit::setPrinterDialog(this);
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if ((box != nullptr && endIn(*box)) || !started(box))
        return;
    if (number_ < orders_.last || hands_.dragging()) {
        hands_.act();
    } else {
        remember();
        tell("off", {});
        std::_Exit(EXIT_SUCCESS);
    }
}

/// False while the start is not over: a card that was open must be asked for, and come back.
bool Monkey::started(QMessageBox* box) {
    if (box != nullptr && box->text().startsWith("Ripristinare la scheda che era aperta"_L1)) {
        if (start_ != Start::Expected)
            tell("wrong", u"asked for a card that was not open: "_s + box->text());
        const bool yes = dice_.chance(80);
        tell("asked", yes ? u"yes"_s : u"no"_s);
        start_ = Start::Answered;
        if (!yes)
            before_ = {};
        QFile::remove(orders_.before());
        pressKey(box, yes ? Qt::Key_Return : Qt::Key_Escape);
        return false;
    }
    if (start_ == Start::Expected)
        return box != nullptr; // another box, or the screen's question, comes first
    const QJsonObject now = start_ == Start::Answered ? seen() : QJsonObject();
    if (start_ == Start::Over || (now.isEmpty() && !before_.isEmpty()))
        return start_ == Start::Over;
    start_ = Start::Over;
    compareSideFile(!now.isEmpty());
    for (const QString& name : before_.keys())
        if (before_[name] != now[name])
            tell("wrong", u"lost, was and is: "_s + name +
                              QJsonDocument({before_[name], now[name]}).toJson(QJsonDocument::Compact));
    if (!before_.isEmpty())
        tell("restored", {});
    return true;
}

bool Monkey::endIn(QMessageBox& box) {
    static const QRegularExpression report(u"^Errore (-?\\d+)\n\n"_s);
    const auto match = report.match(box.text());
    if (box.icon() != QMessageBox::Critical || !match.hasMatch())
        return false;
    const QString why = reasonOf(match.captured(1).toInt());
    if (why.isEmpty() || start_ == Start::Answered) // or the restored card ends the program again
        tell("wrong", box.text());
    tell("fatal", match.captured(1) + u": "_s + why);
    remember();
    pressKey(&box, Qt::Key_Return);
    return true;
}

void Monkey::compareSideFile(bool open) const {
    if (FileSospeso().esiste() != open)
        tell("wrong",
             open ? u"a card is open without its side file"_s : u"a side file stands, and no card is open"_s);
}

/// Keeps what the user sees of the card for the next run, and looks whether the program kept it too.
void Monkey::remember() const {
    if (start_ != Start::Over)
        return; // the next run must ask for the same card again
    const QJsonObject now = seen();
    compareSideFile(!now.isEmpty());
    writeFile(orders_.before(), QJsonDocument(now).toJson());
}

} // namespace monkey

// The program lets events through here and there to show what it does, and leaves the user's input out. The
// linker leads these calls here.
#define LETS_THROUGH(prefix) /* NOLINT */                                                                    \
    prefix##_ZN16QCoreApplication13processEventsE6QFlagsIN10QEventLoop17ProcessEventsFlagEE
extern "C" void LETS_THROUGH(__real_)(QEventLoop::ProcessEventsFlags flags);
extern "C" void LETS_THROUGH(__wrap_)(QEventLoop::ProcessEventsFlags flags) {
    const QScopedValueRollback held(monkey::handsOff, true);
    LETS_THROUGH(__real_)(flags);
}
