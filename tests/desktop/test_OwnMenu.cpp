#include "desktop/OwnMenu.h"
#include "platform/toolkit/ImageList.h"
#include "support/WindowTest.h"

#include <QMainWindow>
#include <QMenuBar>

using namespace Qt::StringLiterals;

class TestOwnMenu : public WindowTest {
    Q_OBJECT

private Q_SLOTS:
    void looksAndFollowsTheFontUntilItsEnd() {
        QMainWindow window;
        toolkit::ImageList images;
        QPixmap red(16, 16);
        red.fill(Qt::red);
        images.add(u"rosso"_s, QIcon(red));
        QMenu& menu = *window.menuBar()->addMenu(u"Primo"_s);
        const QStyle* former = menu.style();
        menu.addSeparator()->setVisible(false); // the side bar's own entry
        QAction& pictured = *menu.addAction(u"&Figura\nCtrl+F"_s);
        QAction& plain = *menu.addAction(u"Senza figura"_s);
        OwnMenu::avvia(window, *window.menuBar(), images);
        OwnMenu::registraMenu(0, Qt::yellow, [](const QSize& /*size*/) { return QImage(); });
        OwnMenu::registraVoce(0, u"rosso"_s);
        OwnMenu::aggancia();
        menu.popup({0, 0});
        const auto colour = [&menu](const QPoint& at) {
            menu.resize(menu.sizeHint());
            return menu.grab().toImage().pixelColor(at);
        };

        QCOMPARE(pictured.text(), u"&Figura\tCtrl+F"_s);
        QRect item = menu.actionGeometry(&pictured);
        QCOMPARE(item.left(), StileMenu::lato + 2); // beside the side bar
        QCOMPARE(colour(item.topLeft() + QPoint(StileMenu::colonna, item.height()) / 2), QColor(Qt::red));
        const QColor frame = menu.palette().color(QPalette::Normal, QPalette::Highlight);
        item = menu.actionGeometry(&plain);
        menu.setActiveAction(&plain);
        QCOMPARE(colour(item.topLeft() + QPoint(1, 0)), frame);
        plain.setEnabled(false); // what cannot be chosen has no frame
        QVERIFY(colour(item.topLeft() + QPoint(1, 0)) != frame);

        const QFont before = QApplication::font("QMenu");
        QFont font = before;
        font.setPixelSize(30);
        QApplication::setFont(font, "QMenu"); // while the program runs
        QEvent change(QEvent::ApplicationFontChange);
        QApplication::sendEvent(&window, &change);
        QCOMPARE(menu.actionGeometry(&plain).height(), QFontMetrics(font).height() + 6);
        QApplication::setFont(before, "QMenu");
        OwnMenu::sgancia(window);
        QCOMPARE(menu.style(), former);
    }
};

QUIVERDECK_TEST(TestOwnMenu)
#include "test_OwnMenu.moc"
