#pragma once

#include <QStringList>

class QWidget;

/// Walks a window that shows and tells every text that does not show whole: captions of labels, buttons,
/// frames, tabs, toolbar buttons and column headers, items of combo boxes and check lists, values of fields.
/// Each line names the control and the text. Hidden controls are left out; `QCOMPARE(cutTexts(form),
/// QStringList())`.
QStringList cutTexts(const QWidget& window);
