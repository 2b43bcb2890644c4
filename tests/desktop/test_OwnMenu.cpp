#include "desktop/OwnMenu.h"
#include "platform/toolkit/ImageList.h"
#include "support/WindowTest.h"

#include <QMainWindow>
#include <QMenuBar>

using namespace Qt::StringLiterals;

class TestOwnMenu : public WindowTest {
    Q_OBJECT

    std::unique_ptr<QMainWindow> window_;
    std::unique_ptr<toolkit::ImageList> images_;
    QMenu* menu_ = nullptr;
    QAction* pictured_ = nullptr;
    QAction* plain_ = nullptr;
    QStyle* former_ = nullptr;

    /// How many pixels of `colour` a rectangle of the menu shows.
    int count(const QRect& place, const QColor& colour) const {
        menu_->ensurePolished();
        menu_->resize(menu_->sizeHint());
        const QImage shown = menu_->grab(place).toImage();
        int found = 0;
        for (int i = 0; i < shown.width() * shown.height(); ++i)
            found += shown.pixelColor(i % shown.width(), i / shown.width()) == colour ? 1 : 0;
        return found;
    }

private Q_SLOTS:
    void init() {
        WindowTest::init();
        window_ = std::make_unique<QMainWindow>();
        images_ = std::make_unique<toolkit::ImageList>();
        QPixmap red(16, 16);
        red.fill(Qt::red);
        images_->add(u"rosso"_s, QIcon(red));
        menu_ = window_->menuBar()->addMenu(u"Primo"_s);
        former_ = menu_->style();
        menu_->addSeparator()->setVisible(false); // the side bar's own entry
        pictured_ = menu_->addAction(u"&Figura\nCtrl+F"_s);
        plain_ = menu_->addAction(u"Senza figura"_s);
        OwnMenu::avvia(*window_, *window_->menuBar(), *images_);
        OwnMenu::registraMenu(0, Qt::yellow, [](const QSize& /*size*/) { return QImage(); });
        OwnMenu::registraVoce(0, u"rosso"_s);
        OwnMenu::registraVoce(1, {});
        OwnMenu::aggancia();
    }

    void looks() {
        QCOMPARE(pictured_->text(), u"&Figura\tCtrl+F"_s);
        const QRect item = menu_->actionGeometry(pictured_);
        QCOMPARE(item.left(), StileMenu::lato + 2); // beside the side bar
        QCOMPARE(count({item.topLeft(), QSize(StileMenu::colonna, item.height())}, Qt::red), 16 * 16);
    }

    void theSelectedItemIsFramed() {
        menu_->popup({0, 0});
        const QColor frame = menu_->palette().color(QPalette::Normal, QPalette::Highlight);
        const QRect item = menu_->actionGeometry(plain_);
        menu_->setActiveAction(plain_);
        QCOMPARE(count({item.left() + 1, item.top(), item.width() - 2, 1}, frame), item.width() - 2);
        plain_->setEnabled(false); // what cannot be chosen has none
        QCOMPARE(count(item, frame), 0);
    }

    void followsTheFontUntilItsEnd() {
        const QFont before = QApplication::font("QMenu");
        for (const int pixels : {8, 30}) {
            QFont font = before;
            font.setPixelSize(pixels);
            QApplication::setFont(font, "QMenu"); // while the program runs
            QEvent change(QEvent::ApplicationFontChange);
            QApplication::sendEvent(window_.get(), &change);
            QCOMPARE(menu_->actionGeometry(plain_).height(),
                     pixels == 8 ? 19 : QFontMetrics(font).height() + 6);
        }
        QApplication::setFont(before, "QMenu");
        OwnMenu::sgancia(*menu_); // not its window
        QVERIFY(menu_->style() != former_);
        OwnMenu::sgancia(*window_);
        QCOMPARE(menu_->style(), former_);
    }
};

QUIVERDECK_TEST(TestOwnMenu)
#include "test_OwnMenu.moc"
