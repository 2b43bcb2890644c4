#pragma once

#include "platform/host/Controls.h"

#include <QComboBox>

namespace toolkit {

class ApostropheGuard;

/// A combo box. An editable one takes any text, inserts nothing into its list and completes nothing.
///
/// `clicked` tells a choice of an item: by mouse or arrow keys, or by `selectIndex`. Typing is never a click,
/// not even the exact text of an item. `changed` tells every change of the text, however it came about.
class Combo : public QComboBox, public host::ItemList {
    Q_OBJECT
public:
    enum class Kind { Editable, Fixed };

    Combo(const QString& name, QWidget* parent, Kind kind = Kind::Editable);

    void addItem(const QString& text) override;
    void addItems(const QStringList& texts);
    int count() const override { return QComboBox::count(); }
    QString item(int index) const override { return itemText(index); }
    QString text() const override { return currentText(); }

    /// The item whose text the box shows, from 0; -1 if there is none.
    int index() const;

    /// Sets the text without a click. A fixed combo takes only texts of its list
    /// (runtime::InvalidPropertyValue).
    void setText(const QString& text);
    /// Chooses an item, with its click; -1 chooses none and clicks nothing. Raises
    /// runtime::InvalidPropertyValue out of range.
    void selectIndex(int index);

    /// Typed and pasted straight apostrophes become typographic ones.
    void guardApostrophes();

    void showPopup() override;

Q_SIGNALS:
    void clicked();
    void changed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void showItem(int index);

    ApostropheGuard* guard_ = nullptr;
};

} // namespace toolkit
