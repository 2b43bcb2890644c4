#pragma once

#include <QHash>
#include <QObject>
#include <functional>

class QWidget;

namespace toolkit {

/// Lets fields of a page keep the focus. When the focus would leave a field for another control of the same
/// page (a press of the mouse on one, a turn of the wheel on a scroll bar, Tab, an access key), the field's
/// check runs first; if it fails, having told the user, the focus stays, the refused text is marked, and the
/// other control does not act. Popups, boxes, other windows and toolbar buttons, which take no focus, ask no
/// check.
class Validation : public QObject {
    Q_OBJECT
public:
    /// `page` is the form or any container of the fields; it owns the validation.
    explicit Validation(QWidget* page);
    ~Validation() override;

    /// `check` shows its message and gives false to keep the focus.
    void add(QWidget* field, const std::function<bool()>& check);

    /// Asked by the application before it delivers an event, ahead of any change of focus: true if a field
    /// keeps the focus and the event must not arrive.
    static bool stops(QObject* receiver, QEvent* event);

private:
    bool stopsHere(QWidget* target, QEvent* event);
    /// The checked field that has the focus, or nullptr.
    QWidget* currentField() const;
    bool leavesFor(QWidget* target, const QWidget* field) const;
    bool refuses(QWidget* field);

    QWidget* page_;
    QHash<QWidget*, std::function<bool()>> checks_;
    bool checking_ = false;
    bool swallowRelease_ = false;
};

} // namespace toolkit
