#include "desktop/frmDisplay.h"

#include "platform/toolkit/Fonts.h"
#include "platform/toolkit/Twips.h"

using namespace Qt::StringLiterals;

frmDisplay::frmDisplay() : Form(u"frmDisplay"_s), txtDisplay(u"txtDisplay"_s, client()) {
    setCaption(u"Display"_s);
    setInnerSize(10830, 4770);
    setResizable(true);
    txtDisplay.setFont(toolkit::font(u"Verdana"_s, 8.25));
    txtDisplay.setAccessibleName(u"Testo"_s);
    connect(&txtDisplay, &toolkit::TextArea::changed, this,
            [this] { txtDisplay.moveCursor(QTextCursor::End); }); // the latest line shows
}

void frmDisplay::stampa(const QString& s) {
    txtDisplay.setText(txtDisplay.text() + QLatin1Char('\n') + s);
}

void frmDisplay::onResize() {
    toolkit::place(txtDisplay, 0, 0, innerWidth(), innerHeight());
}
