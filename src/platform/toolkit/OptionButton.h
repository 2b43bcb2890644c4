#pragma once

#include <QRadioButton>

namespace toolkit {

/// One of several choices of the same parent.
class OptionButton : public QRadioButton {
    Q_OBJECT
public:
    OptionButton(const QString& name, const QString& caption, QWidget* parent)
        : QRadioButton(caption, parent) {
        setObjectName(name);
    }

    bool value() const { return isChecked(); }
    /// Switching one on switches its neighbours off; switching one off leaves none chosen.
    void setValue(bool on) {
        setAutoExclusive(on);
        setChecked(on);
        setAutoExclusive(true);
    }
};

} // namespace toolkit
