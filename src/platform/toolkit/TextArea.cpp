#include "platform/toolkit/TextArea.h"

#include "platform/toolkit/ApostropheGuard.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocument>

namespace toolkit {

TextArea::TextArea(const QString& name, QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(name);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
    document()->setDocumentMargin(2);
    connect(this, &QPlainTextEdit::textChanged, this, &TextArea::report);
}

void TextArea::setText(const QString& text) {
    setting_ = true;
    setPlainText(text);
    setting_ = false;
    report();
}

void TextArea::report() {
    if (setting_)
        return;
    const QString now = toPlainText();
    if (now != reported_) { // the editor also tells of changes that are none
        reported_ = now;
        Q_EMIT changed();
    }
}

QString TextArea::fitting(const QString& text) const {
    const QTextCursor cursor = textCursor();
    const qsizetype kept =
        document()->characterCount() - 1 - (cursor.selectionEnd() - cursor.selectionStart());
    qsizetype room = std::clamp<qsizetype>(longest - kept, 0, text.size());
    if (room > 0 && room < text.size() && text.at(room - 1).isHighSurrogate())
        --room; // no half of a character
    return text.left(room);
}

void TextArea::keyPressEvent(QKeyEvent* event) {
    const bool character =
        !event->text().isEmpty() && (event->text().at(0).isPrint() || event->text() == u"\r");
    if (character && fitting(event->text()) != event->text()) {
        event->accept();
        return;
    }
    if (guarded_ && event->text() == QLatin1String("'") && !isReadOnly()) {
        insertPlainText(ApostropheGuard::guarded(event->text()));
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void TextArea::inputMethodEvent(QInputMethodEvent* event) {
    const QString text = fitting(event->commitString());
    event->setCommitString(guarded_ ? ApostropheGuard::guarded(text) : text, event->replacementStart(),
                           event->replacementLength());
    QPlainTextEdit::inputMethodEvent(event);
}

void TextArea::insertFromMimeData(const QMimeData* source) {
    if (source->hasText() && !isReadOnly()) {
        const QString text = fitting(source->text());
        insertPlainText(guarded_ ? ApostropheGuard::guarded(text) : text);
    }
}

} // namespace toolkit
