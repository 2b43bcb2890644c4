#pragma once

#include <QPlainTextEdit>

namespace toolkit {

/// A text box of several lines with a vertical scroll bar; Tab leaves it. Lines are joined by "\n".
class TextArea : public QPlainTextEdit {
    Q_OBJECT
public:
    TextArea(const QString& name, QWidget* parent);

    QString text() const { return toPlainText(); }
    /// `changed` comes at once, before the call returns, and only for another text.
    void setText(const QString& text);
    /// Typed and pasted straight apostrophes become typographic ones.
    void guardApostrophes() { guarded_ = true; }

    /// Characters that the user can bring it to, by typing or pasting; what goes beyond is left out.
    static constexpr int longest = 32767;

Q_SIGNALS:
    void changed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void report();
    /// As much of `text` as still fits in place of the selection.
    QString fitting(const QString& text) const;

    QString reported_;
    bool guarded_ = false;
    bool setting_ = false;
};

} // namespace toolkit
