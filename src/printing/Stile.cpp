#include "printing/Stile.h"

using namespace Qt::StringLiterals;

namespace sheet {

namespace {

Element placed(Kind kind, const QString& name, int index, const QRectF& box) {
    Element element;
    element.name = name;
    element.index = index;
    element.kind = kind;
    element.left = box.left();
    element.top = box.top();
    element.width = box.width();
    element.height = box.height();
    return element;
}

} // namespace

Font sansSerif(double points, bool bold) {
    return {{u"MS Sans Serif"_s, u"Liberation Sans"_s}, points, bold, false};
}

Font arial(double points, bool italic) {
    return {{u"Arial"_s, u"Liberation Sans"_s}, points, false, italic};
}

Font verdana(double points, bool bold) {
    return {{u"Verdana"_s, u"DejaVu Sans"_s}, points, bold, false};
}

Font times(double points, bool bold, bool italic) {
    return {{u"Times New Roman"_s, u"Liberation Serif"_s}, points, bold, italic};
}

Element textBox(const QString& name, int index, const QRectF& box, const Font& font, const QString& text) {
    Element element = placed(Kind::Text, name, index, box);
    element.font = font;
    element.text = text;
    return element;
}

Element pictureBox(const QString& name, int index, const QRectF& box) {
    return placed(Kind::Picture, name, index, box);
}

Element roundedFrame(const QString& name, int index, const QRectF& box) {
    Element element = placed(Kind::Frame, name, index, box);
    element.cornerRadius = 210;
    return element;
}

Element levelRule(const QString& name, double length) {
    Element element = placed(Kind::Rule, name, 0, {0, 0, length, 0});
    element.colour = QColor(192, 192, 192);
    element.lineWidth = 30;
    return element;
}

} // namespace sheet
