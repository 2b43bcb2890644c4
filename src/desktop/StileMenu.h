#pragma once

#include "platform/toolkit/QuiverStyle.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <functional>

class QMenu;
class QStyleOptionMenuItem;

/// How the main window's drop-down menus look: a column of pictures at the left, a frame on the selected
/// item, the access letter underlined, a second text at the right, and beside some menus a tinted bar with a
/// picture. Sizes are pixels.
class StileMenu : public toolkit::QuiverStyle {
    Q_OBJECT
public:
    /// A picture drawn for a size in device pixels.
    using Disegno = std::function<QImage(const QSize&)>;

    explicit StileMenu(const QFont& menu) { rinnovaCaratteri(menu); }

    /// Makes the four fonts anew from the desktop's menu font.
    void rinnovaCaratteri(const QFont& menu);
    const QFont& normale() const { return normale_; }

    /// 19, or the characters' height and 6 more where that is 20 or above.
    int altezzaVoce() const;
    /// Between an item's text and its second one: twice the width of "0".
    int larghezzaVuoto() const;

    /// The menu gets a side bar; contents margins make room for it.
    void aggiungiLato(QMenu& menu, const QColor& tinta, const Disegno& figura);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

    static constexpr int lato = 24;    ///< width of the side bar
    static constexpr int colonna = 26; ///< width of the picture column
    static constexpr int immagine = 16;

private:
    struct Lato {
        QColor tinta;
        Disegno figura;
    };

    void disegnaVoce(const QStyleOptionMenuItem& voce, QPainter& painter) const;
    void disegnaImmagine(const QStyleOptionMenuItem& voce, const QRect& posto, QPainter& painter) const;
    /// Writes `testo` piece by piece, so that the letter behind "&" comes out underlined.
    void scrivi(QPainter& painter, const QRect& posto, const QString& testo, bool grassetto) const;

    QFont normale_;
    QFont sottolineato_;
    QFont grassetto_;
    QFont grassettoSottolineato_;
    QHash<const QWidget*, Lato> lati_;
};
