#include "desktop/OwnMenu.h"
#include "platform/toolkit/ImageList.h"
#include "support/WindowTest.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor tint(255, 128, 128);

QImage green(const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::green);
    return image;
}

/// How many pixels of `colour` a rectangle of the image holds.
int count(const QImage& image, const QRect& place, const QColor& colour) {
    int found = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            found += image.pixelColor(x, y) == colour ? 1 : 0;
    return found;
}

} // namespace

class TestOwnMenu : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        WindowTest::init();
        window_ = std::make_unique<QMainWindow>();
        bar_ = window_->menuBar();
        images_ = std::make_unique<toolkit::ImageList>();
        QPixmap red(16, 16);
        red.fill(Qt::red);
        images_->add(u"rosso"_s, QIcon(red));
        first_ = bar_->addMenu(u"Primo"_s);
        first_->addSeparator()->setVisible(false); // the side bar's own entry
        pictured_ = first_->addAction(u"&Figura\nCtrl+F"_s);
        first_->addSeparator();
        plain_ = first_->addAction(u"Senza figura"_s);
        second_ = bar_->addMenu(u"Secondo"_s);
        second_->addAction(u"Sola"_s);
        before_ = QApplication::font("QMenu");
    }
    void cleanup() {
        OwnMenu::sgancia(*window_);
        window_.reset();
        QApplication::setFont(before_, "QMenu");
        WindowTest::cleanup();
    }

    void looks() {
        dress();
        QCOMPARE(pictured_->text(), u"&Figura\tCtrl+F"_s);
        const QImage shown = picture(*first_);
        const QRect item = first_->actionGeometry(pictured_);
        const QRect column(item.left(), item.top(), StileMenu::colonna, item.height());
        QCOMPARE(item.left(), StileMenu::lato + 2); // beside the side bar
        QCOMPARE(count(shown, column, Qt::red), 16 * 16);
        QVERIFY(count(shown, QRect(0, 0, StileMenu::lato, shown.height()), Qt::green) > 100);
        QCOMPARE(count(shown, first_->actionGeometry(plain_), Qt::red), 0);
        // The access letter's line, and the second text at the right.
        const QColor text = first_->palette().color(QPalette::Text);
        int longest = 0;
        for (int y = item.top(); y <= item.bottom(); ++y)
            longest = std::max(longest, count(shown, QRect(item.left() + 34, y, 6, 1), text));
        QVERIFY(longest >= 5);
        QVERIFY(second_->actionGeometry(second_->actions().first()).left() < StileMenu::lato); // no side bar
    }

    void theSelectedItemIsFramed() {
        dress();
        first_->popup({0, 0});
        const QColor frame = first_->palette().color(QPalette::Normal, QPalette::Highlight);
        const QRect item = first_->actionGeometry(plain_);
        QVERIFY(count(picture(*first_), item, frame) == 0);
        first_->setActiveAction(plain_);
        QCOMPARE(count(picture(*first_), QRect(item.left() + 1, item.top(), item.width() - 2, 1), frame),
                 item.width() - 2);
        QCOMPARE(count(picture(*first_), first_->actionGeometry(pictured_), frame), 0);
        plain_->setEnabled(false); // what cannot be chosen has none
        QCOMPARE(count(picture(*first_), item, frame), 0);
        first_->hide();
    }

    void itemHeights_data() {
        QTest::addColumn<int>("pixels");
        QTest::addColumn<bool>("smallest");
        QTest::newRow("small") << 8 << true;
        QTest::newRow("large") << 30 << false;
    }
    void itemHeights() {
        QFETCH(int, pixels);
        QFETCH(bool, smallest);
        dress();
        const int width = first_->sizeHint().width();
        QFont font = before_;
        font.setPixelSize(pixels);
        QApplication::setFont(font, "QMenu"); // while the program runs
        QEvent change(QEvent::ApplicationFontChange);
        QApplication::sendEvent(window_.get(), &change);
        const int expected = smallest ? 19 : QFontMetrics(font).height() + 6;
        QCOMPARE(first_->actionGeometry(plain_).height(), expected);
        QCOMPARE(second_->actionGeometry(second_->actions().first()).height(), expected);
        QCOMPARE(first_->sizeHint().width() > width, !smallest);
    }

    void lifecycle() {
        QStyle* const own = first_->style();
        OwnMenu::avvia(*window_, *bar_, *images_);
        QCOMPARE(errorOf([] { OwnMenu::registraVoce(0, {}); }), int(runtime::ObjectNotSet));
        QCOMPARE(errorOf([] { OwnMenu::registraMenu(2, tint, {}); }), int(runtime::SubscriptOutOfRange));
        OwnMenu::registraMenu(0, tint, green);
        QCOMPARE(errorOf([] { OwnMenu::registraVoce(3, {}); }), int(runtime::SubscriptOutOfRange));
        QCOMPARE(errorOf([] { OwnMenu::registraVoce(0, u"verde"_s); }), int(runtime::ElementNotFound));
        QCOMPARE(first_->style(), own); // not hooked yet
        OwnMenu::aggancia();
        OwnMenu::aggancia();
        QVERIFY(first_->style() != own);
        OwnMenu::sgancia(*bar_); // not its window
        QVERIFY(first_->style() != own);
        OwnMenu::sgancia(*window_);
        QCOMPARE(first_->style(), own);
        QCOMPARE(first_->contentsMargins(), QMargins());
    }

private:
    void dress() {
        OwnMenu::avvia(*window_, *bar_, *images_);
        OwnMenu::registraMenu(0, tint, green);
        OwnMenu::registraVoce(0, u"rosso"_s);
        OwnMenu::registraVoce(1, {});
        OwnMenu::registraVoce(2, {});
        OwnMenu::registraMenu(1, tint, {});
        OwnMenu::aggancia();
    }
    static QImage picture(QMenu& menu) {
        menu.ensurePolished();
        menu.resize(menu.sizeHint());
        return menu.grab().toImage();
    }

    std::unique_ptr<QMainWindow> window_;
    std::unique_ptr<toolkit::ImageList> images_;
    QMenuBar* bar_ = nullptr;
    QMenu* first_ = nullptr;
    QMenu* second_ = nullptr;
    QAction* pictured_ = nullptr;
    QAction* plain_ = nullptr;
    QFont before_;
};

QUIVERDECK_TEST(TestOwnMenu)
#include "test_OwnMenu.moc"
