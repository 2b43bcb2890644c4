#pragma once
// The fonts and colours of printed matter, and the makers of its elements.

#include "printing/Element.h"

namespace sheet {

/// "MS Sans Serif", "Arial", "Verdana" and "Times New Roman", each with its stand-in.
Font sansSerif(double points, bool bold = false);
Font arial(double points, bool italic = false);
Font verdana(double points, bool bold = false);
Font times(double points, bool bold = false, bool italic = false);

/// A text box with its upper left corner and size in twips.
Element textBox(const QString& name, int index, const QRectF& box, const Font& font,
                const QString& text = {});
Element pictureBox(const QString& name, int index, const QRectF& box);
Element roundedFrame(const QString& name, int index, const QRectF& box);
/// A level rule of the given length, light grey, two logical pixels wide.
Element levelRule(const QString& name, double length);

} // namespace sheet
