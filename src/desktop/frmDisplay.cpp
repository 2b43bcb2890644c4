#include "desktop/frmDisplay.h"

#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

frmDisplay::frmDisplay()
    : Form(QStringLiteral("frmDisplay")), txtDisplay(QStringLiteral("txtDisplay"), client()) {
    setCaption(QStringLiteral("Display"));
    setInnerSize(10830, 4770);
    setResizable(true);
    txtDisplay.setFont(toolkit::font(QStringLiteral("Verdana"), 8.25));
    txtDisplay.setAccessibleName(QStringLiteral("Testo"));
    connect(&txtDisplay, &toolkit::TextArea::changed, this,
            [this] { txtDisplay.moveCursor(QTextCursor::End); }); // the latest line shows
}

void frmDisplay::stampa(const QString& s) {
    txtDisplay.setText(txtDisplay.text() + QLatin1Char('\n') + s);
}

void frmDisplay::onResize() {
    toolkit::place(txtDisplay, 0, 0, innerWidth(), innerHeight());
}
