#include "desktop/StileMenu.h"

#include <QMenu>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace {

constexpr int altezzaMinima = 19;
constexpr int ariaVerticale = 6;
constexpr int ariaTesto = 8;   // between the picture column and the text
constexpr int ariaDestra = 18; // behind the last text
constexpr int altezzaSeparatore = 7;
constexpr int pesoInPiu = 300;

QColor miscela(const QColor& primo, const QColor& secondo, double parte) {
    const auto fra = [parte](int a, int b) { return static_cast<int>(a * parte + b * (1 - parte)); };
    return {fra(primo.red(), secondo.red()), fra(primo.green(), secondo.green()),
            fra(primo.blue(), secondo.blue())};
}

QFont variante(QFont font, bool grassetto, bool sottolineato) {
    if (grassetto)
        font.setWeight(static_cast<QFont::Weight>(std::min(font.weight() + pesoInPiu, 1000)));
    font.setUnderline(sottolineato);
    return font;
}

void disegnaSeparatore(const QRect& posto, const QPalette& colori, QPainter& painter) {
    const int y = posto.center().y();
    const int da = posto.left() + StileMenu::colonna + ariaTesto;
    painter.setPen(colori.color(QPalette::Mid));
    painter.drawLine(da, y, posto.right(), y);
    painter.setPen(colori.color(QPalette::Light));
    painter.drawLine(da, y + 1, posto.right(), y + 1);
}

} // namespace

void StileMenu::rinnovaCaratteri(const QFont& menu) {
    normale_ = variante(menu, false, false);
    sottolineato_ = variante(menu, false, true);
    grassetto_ = variante(menu, true, false);
    grassettoSottolineato_ = variante(menu, true, true);
}

int StileMenu::altezzaVoce() const {
    const int altezza = QFontMetrics(normale_).height() + ariaVerticale;
    return altezza >= 20 ? altezza : altezzaMinima;
}

int StileMenu::larghezzaVuoto() const {
    return 2 * QFontMetrics(normale_).horizontalAdvance(QLatin1Char('0'));
}

void StileMenu::aggiungiLato(QMenu& menu, const QColor& tinta, const Disegno& figura) {
    lati_.insert(&menu, {tinta, figura});
    menu.setContentsMargins(lato, 0, 0, 0);
}

int StileMenu::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_MenuPanelWidth:
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return 1;
    case PM_SmallIconSize:
        return immagine;
    default:
        return QuiverStyle::pixelMetric(metric, option, widget);
    }
}

QSize StileMenu::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const auto* voce = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || voce == nullptr)
        return QuiverStyle::sizeFromContents(type, option, size, widget);
    if (voce->menuItemType == QStyleOptionMenuItem::Separator)
        return {colonna, altezzaSeparatore};
    const int vuoto = voce->text.contains(QLatin1Char('\t')) ? larghezzaVuoto() : 0;
    return {colonna + ariaTesto + size.width() + vuoto + ariaDestra, altezzaVoce()};
}

void StileMenu::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (element == PE_FrameMenu) {
        fillFrame(*painter, option->rect, option->palette.color(QPalette::Mid));
        return;
    }
    if (element != PE_PanelMenu) {
        QuiverStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    QRect posto = option->rect;
    painter->fillRect(posto, option->palette.color(QPalette::Base));
    const auto bordo = lati_.constFind(widget);
    if (bordo != lati_.constEnd()) {
        const QRect barra = posto.adjusted(0, 0, lato - posto.width() + 1, 0);
        QLinearGradient sfumato(barra.topLeft(), barra.bottomLeft());
        sfumato.setColorAt(0, bordo->tinta);
        sfumato.setColorAt(1, bordo->tinta.darker(135));
        painter->fillRect(barra, sfumato);
        if (bordo->figura) {
            const QSize spazio = barra.adjusted(3, 4, -3, -4).size();
            const qreal densita = painter->device()->devicePixelRatioF();
            QImage figura = bordo->figura((QSizeF(spazio) * densita).toSize());
            painter->drawImage(QRect(barra.topLeft() + QPoint(3, 4), spazio), figura);
        }
        posto.setLeft(barra.right());
    }
    painter->fillRect(posto.left() + 1, posto.top(), colonna + 1, posto.height(),
                      option->palette.color(QPalette::Button));
}

void StileMenu::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* voce = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuItem && voce != nullptr) {
        painter->save();
        disegnaVoce(*voce, *painter);
        painter->restore();
    } else if (element != CE_MenuEmptyArea) { // the panel is there already
        QuiverStyle::drawControl(element, option, painter, widget);
    }
}

void StileMenu::disegnaVoce(const QStyleOptionMenuItem& voce, QPainter& painter) const {
    if (voce.menuItemType == QStyleOptionMenuItem::Separator) {
        disegnaSeparatore(voce.rect, voce.palette, painter);
        return;
    }
    const bool attiva = voce.state & State_Enabled;
    if (attiva && (voce.state & State_Selected)) {
        const QColor scelta = voce.palette.color(QPalette::Normal, QPalette::Highlight);
        const QRect cornice = voce.rect.adjusted(1, 0, -1, 0);
        painter.fillRect(cornice, miscela(scelta, voce.palette.color(QPalette::Base), 0.18));
        fillFrame(painter, cornice, scelta);
    }
    disegnaImmagine(voce, {voce.rect.left(), voce.rect.top(), colonna, voce.rect.height()}, painter);
    painter.setPen(voce.palette.color(attiva ? QPalette::Normal : QPalette::Disabled, QPalette::Text));
    const bool grassetto = voce.menuItemType == QStyleOptionMenuItem::DefaultItem;
    const QRect testo = voce.rect.adjusted(colonna + ariaTesto, 0, -ariaDestra, 0);
    scrivi(painter, testo, voce.text.section(QLatin1Char('\t'), 0, 0), grassetto);
    const QString destra = voce.text.section(QLatin1Char('\t'), 1);
    if (!destra.isEmpty()) {
        painter.setFont(normale_);
        painter.drawText(testo, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, destra);
    }
}

void StileMenu::disegnaImmagine(const QStyleOptionMenuItem& voce, const QRect& posto,
                                QPainter& painter) const {
    if (voce.icon.isNull())
        return;
    const bool attiva = voce.state & State_Enabled;
    QRect figura(0, 0, immagine, immagine);
    figura.moveCenter(posto.center());
    if (attiva && (voce.state & State_Selected)) { // raised
        const QRect rilievo = figura.adjusted(-2, 0, 1, -1);
        painter.setPen(voce.palette.color(QPalette::Light));
        painter.drawLine(rilievo.topLeft(), rilievo.topRight());
        painter.drawLine(rilievo.topLeft(), rilievo.bottomLeft());
        painter.setPen(voce.palette.color(QPalette::Mid));
        painter.drawLine(rilievo.bottomLeft(), rilievo.bottomRight());
        painter.drawLine(rilievo.topRight(), rilievo.bottomRight());
    }
    const QIcon::Mode modo = attiva ? QIcon::Normal : QIcon::Disabled;
    painter.drawPixmap(figura, voce.icon.pixmap(figura.size(), painter.device()->devicePixelRatioF(), modo));
}

void StileMenu::scrivi(QPainter& painter, const QRect& posto, const QString& testo, bool grassetto) const {
    const QFont& pieno = grassetto ? grassetto_ : normale_;
    const QFont& sotto = grassetto ? grassettoSottolineato_ : sottolineato_;
    const QFontMetrics misura(pieno);
    int x = posto.left();
    const int y = posto.top() + (posto.height() - misura.height()) / 2 + misura.ascent();
    QString pezzo;
    const auto stampa = [&](const QFont& font, const QString& parte) {
        painter.setFont(font);
        painter.drawText(x, y, parte);
        x += QFontMetrics(font).horizontalAdvance(parte);
    };
    for (qsizetype i = 0; i < testo.size(); ++i) {
        const bool accesso = testo.at(i) == QLatin1Char('&') && i + 1 < testo.size();
        if (accesso && testo.at(i + 1) != QLatin1Char('&')) {
            stampa(pieno, pezzo);
            pezzo.clear();
            stampa(sotto, testo.at(i + 1));
            ++i;
        } else {
            i += accesso ? 1 : 0; // "&&" is one
            pezzo.append(testo.at(i));
        }
    }
    stampa(pieno, pezzo);
}
