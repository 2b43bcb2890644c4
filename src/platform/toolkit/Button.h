#pragma once

#include <QPushButton>

namespace toolkit {

/// A push button. No button is a window's default; Enter presses the one that has the focus.
class Button : public QPushButton {
    Q_OBJECT
public:
    Button(const QString& name, const QString& caption, QWidget* parent);

    QString caption() const { return text(); }
    void setCaption(const QString& caption) { setText(caption); }
    /// A picture from the program's resources or a file, `size` logical pixels square.
    void setPicture(const QIcon& picture, int size = 16);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace toolkit
