#include "desktop/TastoAiuto.h"

#include "desktop/FinestraGuida.h"
#include "desktop/PagineGuida.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

/// The nearest window around `widget` that has a page; for a box, the one it stands before.
QString finestraDi(const QWidget* widget) {
    for (const QWidget* uno = widget; uno != nullptr; uno = uno->parentWidget())
        if (haPagina(uno->objectName()))
            return uno->objectName();
    return {};
}

} // namespace

TastoAiuto::TastoAiuto() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool TastoAiuto::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1 ||
        static_cast<QKeyEvent*>(event)->modifiers() != Qt::NoModifier ||
        QApplication::activePopupWidget() != nullptr)
        return false;
    const auto* widget = static_cast<QWidget*>(watched);
    if (widget->window()->objectName() != u"FinestraGuida"_s)
        FinestraGuida::mostra(paginaDellaFinestra(finestraDi(widget)));
    return true;
}
