#pragma once

#include <QJsonObject>
#include <QStringList>

class QWidget;

namespace monkey {

/// What the user sees of the open card or template: texts of header and exercise rows by their names, and all
/// of its lines. Empty while the editor is not open. Read from the controls and the record, never from the
/// side file.
QJsonObject seen();

/// What `now` lacks of `before`, one line each: what an unforeseen end has lost.
QStringList lost(const QJsonObject& before, const QJsonObject& now);

/// The window that the control belongs to: the nearest form or dialog around it, by name.
QString windowOf(const QWidget& control);
/// The control's own name, else its nearest named parent's and its class.
QString nameOf(const QWidget& control);

} // namespace monkey
