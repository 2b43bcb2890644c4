#pragma once

#include <QStringList>

class QWidget;

/// Walks a window that shows and tells every text that does not show whole: captions of labels, buttons,
/// frames, toolbar buttons and column headers, items of combo boxes and check lists, values of fields.
/// Each line names the control and the text. Hidden controls are left out; `QCOMPARE(cutTexts(form),
/// QStringList())`.
QStringList cutTexts(const QWidget& window);

/// Controls that can take the focus and tell an assistive tool no name; empty when all is well.
QStringList namelessControls(const QWidget& window);

/// Where Tab leaps against the direction of reading: left to right in a row, rows from top to bottom, a
/// column before the one at its right. Frames are read whole before what comes next, pages each
/// for itself. Each line names two controls.
QStringList leapsOfTab(const QWidget& window);

/// How many controls Tab visits.
qsizetype tabStops(const QWidget& window);
