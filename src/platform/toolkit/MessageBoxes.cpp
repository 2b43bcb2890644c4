#include "platform/toolkit/MessageBoxes.h"

#include "platform/host/Application.h"
#include "platform/toolkit/DialogOwner.h"
#include "platform/toolkit/Hourglass.h"

#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

QMessageBox::Icon picture(host::Icon icon) {
    switch (icon) {
    case host::Icon::Critical:
        return QMessageBox::Critical;
    case host::Icon::Question:
        return QMessageBox::Question;
    case host::Icon::Exclamation:
        return QMessageBox::Warning;
    case host::Icon::Information:
        return QMessageBox::Information;
    case host::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

/// The box breaks a line at a line feed alone; texts carry carriage returns too.
QString lines(QString text) {
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

} // namespace

host::Answer MessageBoxes::show(host::Icon icon, const QString& text, host::Buttons buttons) {
    const Hourglass::Pause pause;
    QMessageBox box(dialogOwner());
    box.setObjectName(u"messageBox"_s);
    box.setWindowTitle(host::title());
    box.setIcon(picture(icon));
    box.setTextFormat(Qt::PlainText);
    box.setText(lines(text));
    if (buttons == host::Buttons::Ok) {
        QPushButton* ok = box.addButton(u"OK"_s, QMessageBox::AcceptRole);
        box.setDefaultButton(ok);
        box.setEscapeButton(ok);
        box.exec();
        return host::Answer::Ok;
    }
    QPushButton* yes = box.addButton(u"Sì"_s, QMessageBox::YesRole);
    QPushButton* no = box.addButton(u"No"_s, QMessageBox::NoRole);
    QPushButton* escape = no;
    if (buttons == host::Buttons::YesNoCancel)
        escape = box.addButton(u"Annulla"_s, QMessageBox::RejectRole);
    box.setDefaultButton(yes);
    box.setEscapeButton(escape);
    box.exec();
    if (box.clickedButton() == yes)
        return host::Answer::Yes;
    return box.clickedButton() == no ? host::Answer::No : host::Answer::Cancel;
}

} // namespace toolkit
