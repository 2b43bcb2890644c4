#pragma once

#include <QFrame>
#include <QString>
#include <vector>

class QHBoxLayout;
class QIcon;
class QToolButton;

namespace toolkit {

class ImageList;

/// A flat bar of keyed buttons that take no focus, and separators. Buttons are named by key (their
/// objectName) or by position, counted from 1 with the separators.
class Toolbar : public QFrame {
    Q_OBJECT
public:
    Toolbar(const QString& name, QWidget* parent, Qt::ToolButtonStyle style = Qt::ToolButtonTextBesideIcon);

    QToolButton* addButton(const QString& key, const QString& caption, const QString& tip);
    void addSeparator(const QString& key = {});

    /// The pictures of the buttons, normal and under the mouse; both must outlive the toolbar. Which button
    /// takes which is told by setImage or assegnaImmaginiToolbar.
    void setImageList(const ImageList* normal, const ImageList* hot = nullptr);
    /// Gives the button at `position` the picture `image`, counted from 1.
    void setImage(int position, int image);

    int count() const { return static_cast<int>(entries_.size()); }
    bool isSeparator(int position) const;
    QString key(int position) const;
    /// Raise runtime::ElementNotFound for a key or position that is no button.
    QToolButton& button(const QString& key) const;
    QToolButton& button(int position) const;
    void setButtonEnabled(const QString& key, bool enabled);
    void setButtonEnabled(int position, bool enabled);

Q_SIGNALS:
    /// `key` as it was given; compare it in lower case.
    void buttonClick(const QString& key);

private:
    struct Entry {
        QString key;
        QToolButton* button; ///< nullptr for a separator
    };
    const Entry& entry(int position) const;

    QHBoxLayout* row_;
    std::vector<Entry> entries_;
    const ImageList* normal_ = nullptr;
    const ImageList* hot_ = nullptr;
    Qt::ToolButtonStyle style_;
};

/// Gives each button that is not a separator the next picture, from 1 upwards.
void assegnaImmaginiToolbar(Toolbar& toolbar);

} // namespace toolkit
