#pragma once

#include <QJsonObject>

class QWidget;

namespace monkey {

/// What the user sees of the open card or template: what header and exercise rows show, by their names, and
/// all of its lines. Empty while the editor is not open. Read from the controls and the record, never from
/// the side file.
QJsonObject seen();

/// The window that the control belongs to: the nearest form or dialog around it, by name.
QString windowOf(const QWidget& control);

} // namespace monkey
