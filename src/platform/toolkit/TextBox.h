#pragma once

#include <QLineEdit>
#include <functional>

namespace toolkit {

class ApostropheGuard;

/// A text box of one line. `changed` comes at once, also when the program sets another text.
class TextBox : public QLineEdit {
    Q_OBJECT
public:
    TextBox(const QString& name, QWidget* parent);

    void setText(const QString& text);
    /// Selects `length` characters from position `start`, counted from 0.
    void select(int start, int length) { setSelection(start, length); }

    /// Typed and pasted straight apostrophes become typographic ones.
    void guardApostrophes();

    /// Called for each key that gives a character, control characters included (3 = copy, 8 = backspace, 22 =
    /// paste); false drops the key. Delete, Tab and Escape are no characters.
    void setKeyFilter(std::function<bool(QChar)> filter) { filter_ = std::move(filter); }

    static constexpr int longest = 32767;

Q_SIGNALS:
    void changed();
    /// The focus came from another control; behind the mouse press that brought it, if one did (not back from
    /// a popup, a box or another window).
    void gotFocus();
    /// Enter was pressed.
    void enterPressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    ApostropheGuard* guard_ = nullptr;
    std::function<bool(QChar)> filter_;
    bool focusPress_ = false; ///< the press under way brought the focus
};

} // namespace toolkit
