#include "platform/toolkit/Toolkit.h"
#include "support/Errors.h"
#include "support/Suite.h"
#include "support/WindowChecks.h"
#include "support/WindowPage.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>

using namespace toolkit;

class TestControls : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        form_ = std::make_unique<Form>("F");
        form_->setInnerSize(9000, 6000);
    }
    void cleanup() { form_.reset(); }

    void comboClicksAreChoices() {
        auto* combo = add<Combo>("combo", 0, 0, 1500, 315);
        combo->addItems({"30s", "45s", "60s"});
        QCOMPARE(combo->text(), QString());
        add<TextBox>("other", 0, 600, 1500, 285);
        show();
        const QSignalSpy clicks(combo, &Combo::clicked);
        const QSignalSpy changes(combo, &Combo::changed);
        const WindowPage page(*form_);

        page.type("combo", "45S"); // neither completed nor chosen, in whatever case
        page.key("combo", Qt::Key_Return);
        page.press("other");
        QCOMPARE(combo->text(), QString("45S"));
        page.type("combo", "45s");
        page.press("other");
        QCOMPARE(clicks.count(), 0);
        QCOMPARE(combo->count(), 3);
        QVERIFY(changes.count() >= 6);

        page.key("combo", Qt::Key_Down);
        QCOMPARE(clicks.count(), 1);
        combo->setText("45s");
        QCOMPARE(clicks.count(), 1);
        page.key("combo", Qt::Key_Down);
        QCOMPARE(combo->text(), QString("60s"));
        QCOMPARE(clicks.count(), 2);
        combo->selectIndex(0);
        QCOMPARE(combo->text(), QString("30s"));
        QCOMPARE(clicks.count(), 3);
        QCOMPARE(errorOf([&] { combo->selectIndex(3); }), int(runtime::InvalidPropertyValue));
        combo->setText("altro");
        QCOMPARE(combo->index(), -1);
        combo->selectIndex(0); // the item chosen before, under another text
        QCOMPARE(combo->text(), QString("30s"));
        Combo fixed("fixed", form_->client(), Combo::Kind::Fixed);
        fixed.addItems({"Uno", "Due"});
        fixed.setText("Due");
        QCOMPARE(fixed.index(), 1);
        QCOMPARE(errorOf([&] { fixed.setText("due"); }), int(runtime::InvalidPropertyValue));
    }

    void comboPopupChoosesByMouse() {
        auto* combo = add<Combo>("combo", 0, 0, 1500, 315);
        combo->addItems({"30s", "45s"});
        combo->setText("30s");
        show();
        const QSignalSpy clicks(combo, &Combo::clicked);
        combo->showPopup();
        QAbstractItemView* list = combo->view();
        QTRY_VERIFY(list->isVisible());
        // The popup ignores what comes right after it opened, so that the opening click chooses nothing.
        QTRY_COMPARE(
            [&] {
                QTest::mouseMove(list->viewport(), list->visualRect(combo->model()->index(1, 0)).center());
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                                  list->visualRect(combo->model()->index(1, 0)).center());
                return combo->text();
            }(),
            QString("45s"));
        QCOMPARE(clicks.count(), 1);
    }

    void apostrophes_data() {
        QTest::addColumn<QString>("kind");
        QTest::newRow("text box") << "box";
        QTest::newRow("text area") << "area";
        QTest::newRow("combo box") << "combo";
    }
    void apostrophes() {
        QFETCH(QString, kind);
        auto* box = new TextBox("box", form_->client());
        auto* area = new TextArea("area", form_->client());
        auto* combo = new Combo("combo", form_->client());
        place(*box, 0, 0, 3000, 285);
        place(*area, 0, 600, 3000, 900);
        place(*combo, 0, 1800, 3000, 315);
        box->guardApostrophes();
        area->guardApostrophes();
        combo->guardApostrophes();
        show();
        const WindowPage page(*form_);
        page.type(kind, "D'Amico");
        QCOMPARE(page.text(kind), QString("D’Amico"));
        page.type(kind, "");
        QGuiApplication::clipboard()->setText("l'asta d'oro");
        page.key(kind, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(page.text(kind), QString("l’asta d’oro"));
        box->setText("set'ting"); // by program: untouched
        area->setText("set'ting");
        combo->setText("set'ting");
        QCOMPARE(page.text(kind), QString("set'ting"));
    }

    void changesAreToldAtOnceAndOnce() {
        auto* box = new TextBox("box", form_->client());
        auto* area = new TextArea("area", form_->client());
        auto* date = new DatePicker("date", form_->client());
        const QSignalSpy boxed(box, &TextBox::changed);
        const QSignalSpy areaed(area, &TextArea::changed);
        const QSignalSpy dated(date, &DatePicker::changed);
        for (int again = 0; again < 2; ++again) {
            box->setText("testo");
            area->setText("riga\nriga");
            date->setValue(QDate(2026, 1, 2));
        }
        QCOMPARE(boxed.count(), 1);
        QCOMPARE(areaed.count(), 1);
        QCOMPARE(dated.count(), 1);
        QCOMPARE(date->text(), QString("02/01/2026"));
        QCOMPARE(errorOf([&] { date->setValue({}); }), int(runtime::InvalidPropertyValue));
        QCOMPARE(date->calendarWidget()->locale().language(), QLocale::Italian);
        area->setText(QString(32768, QChar(0xe8))); // and nothing of a long one is lost
        QCOMPARE(area->text(), QString(32768, QChar(0xe8)));
    }

    void keyFilterSeesCharactersOnly() {
        auto* box = add<TextBox>("box", 0, 0, 1500, 285);
        box->setKeyFilter([](QChar c) { return c.unicode() == 3 || c.unicode() == 8 || c.isDigit(); });
        show();
        const WindowPage page(*form_);
        page.type("box", "1a2-'3");
        QCOMPARE(box->text(), QString("123"));
        page.key("box", Qt::Key_Backspace);
        page.key("box", Qt::Key_Home);
        page.key("box", Qt::Key_Delete);
        QCOMPARE(box->text(), QString("2"));
        QGuiApplication::clipboard()->setText("99");
        page.key("box", Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(box->text(), QString("2"));
    }

    void scrollBarReportsOnRelease() {
        auto* bar = add<ScrollBar>("bar", 0, 0, 240, 5475);
        bar->setRange(1, 20);
        show();
        const QSignalSpy told(bar, &ScrollBar::changed);
        const QPoint thumb(7, 25);
        QTest::mousePress(bar, Qt::LeftButton, {}, thumb);
        QMouseEvent move(QEvent::MouseMove, thumb + QPoint(0, 150), bar->mapToGlobal(thumb + QPoint(0, 150)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
        QVERIFY(bar->isSliderDown());
        QCOMPARE(told.count(), 0);
        QTest::mouseRelease(bar, Qt::LeftButton, {}, thumb + QPoint(0, 150));
        QCOMPARE(told.count(), 1);
        QVERIFY(bar->value() > 1);
        bar->setValue(3);
        QCOMPARE(told.count(), 2);
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(7, bar->height() - 4)); // the arrow: one step
        QCOMPARE(bar->value(), 4);
        QCOMPARE(told.count(), 3);
    }

    void toolbarAndPanelsByKey() {
        auto* bar = new Toolbar("bar", form_.get());
        bar->addButton("salva", "Salva", "tip");
        bar->addSeparator();
        bar->addButton("Stampa", "Stampa", {});
        form_->addTopBar(bar);
        ImageList images({16, 16});
        QPixmap red(16, 16);
        red.fill(Qt::red);
        QPixmap blue(16, 16);
        blue.fill(Qt::blue);
        images.add("uno", QIcon(red));
        images.add("due", QIcon(blue));
        bar->setImageList(&images);
        assegnaImmaginiToolbar(*bar);
        QCOMPARE(bar->button(3).icon().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::blue));
        show();
        const QSignalSpy told(bar, &Toolbar::buttonClick);
        bar->setButtonEnabled(1, false);
        QTest::mouseClick(&bar->button("salva"), Qt::LeftButton);
        WindowPage(*form_).press("Stampa");
        QCOMPARE(told.count(), 1);
        QCOMPARE(told.at(0).at(0).toString(), QString("Stampa"));
        for (const int position : {0, 2, 4})
            QCOMPARE(errorOf([&] { bar->button(position); }), int(runtime::ElementNotFound));
        StatusBar panels("panels", form_.get());
        panels.addPanel("status");
        panels.setPanel("status", "Totale <b>");
        QCOMPARE(panels.panel("status"), QString("Totale <b>"));
        QCOMPARE(errorOf([&] { panels.setPanel("Status", "x"); }), int(runtime::ElementNotFound));
    }

    void picturesComeOrTellWhy() {
        const QTemporaryDir folder;
        QImage picture(40, 20, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QVERIFY(picture.save(folder.filePath("Figura.BMP")));
        QFile bad(folder.filePath("bad.jpg"));
        QVERIFY(bad.open(QIODevice::WriteOnly));
        bad.write("no picture");
        bad.close();
        PictureBox box("box", form_->client());
        QCOMPARE(errorOf([&] { box.load(folder.filePath("none.jpg")); }), int(runtime::FileNotFound));
        QCOMPARE(errorOf([&] { box.load(folder.filePath("bad.jpg")); }), 481);
        QVERIFY(box.isEmpty());
        box.load(folder.path() + "\\figura.bmp");
        QCOMPARE(box.pictureSize(), QSizeF(600, 300));
        ImageList list({30, 30});
        list.add("a", folder.filePath("Figura.BMP"));
        const QImage fitted = list.pixmap("a").toImage();
        QCOMPARE(fitted.size(), QSize(30, 30));
        QCOMPARE(fitted.pixelColor(15, 2), QColor(Qt::white)); // proportions kept
        QCOMPARE(fitted.pixelColor(15, 15), QColor(Qt::black));
        QCOMPARE(errorOf([&] { list.add("a", folder.filePath("Figura.BMP")); }),
                 int(ImageList::duplicateKey));
        QCOMPARE(errorOf([&] { list.pixmap("b"); }), int(runtime::ElementNotFound));
    }

    void treeIsACopyOnlyDragSource() {
        ImageList images({150, 150});
        QPixmap white(150, 150);
        white.fill(Qt::white);
        images.add("k1", QIcon(white));
        images.add("k2", QIcon(white));
        auto* tree = add<ImageTree>("tree", 0, 0, 3180, 5000);
        tree->setImageList(&images);
        tree->addNode("k1", "[1]", "k1");
        tree->addNode("k2", "[2.5]", "k2");
        tree->setNodeTag("k2", "17");
        QCOMPARE(errorOf([&] { tree->addNode("k1", "x", "k1"); }), int(ImageList::duplicateKey));
        QVERIFY(!tree->contains("K1"));
        QString pressed;
        QObject::connect(tree, &ImageTree::nodePressed, form_.get(),
                         [&](const QString& key) { pressed = key; });
        const QSignalSpy clicks(tree, &ImageTree::nodeClick);
        tree->setDragSource([&] { return pressed.isEmpty() ? QString() : tree->nodeTag(pressed); });
        show();
        const QRect node = tree->visualItemRect(tree->topLevelItem(1));
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, node.center());
        QCOMPARE(pressed, QString("k2"));
        QCOMPARE(clicks.count(), 1);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::ControlModifier, node.center());
        QCOMPARE(tree->selectedKey(), QString("k2"));
        const std::unique_ptr<QMimeData> data(tree->dragData());
        QCOMPARE(data->text(), QString("17"));
        QVERIFY(!(tree->topLevelItem(1)->flags() & Qt::ItemIsEditable));
        pressed.clear();
        QCOMPARE(tree->dragData(), nullptr);
    }

    void captionsRunIntoFreeRoomThenNarrow() {
        auto* free = add<Label>("free", 120, 0, 900, 255, "Frequenza allenamento settimanale:");
        auto* wrapped = new Label("wrapped", "Fare click sul gruppo muscolare di interesse", form_->client());
        wrapped->setFont(toolkit::font("Verdana", 8.25));
        wrapped->setWordWrap(true);
        place(*wrapped, 120, 1500, 3135, 375);
        auto* shut = new Label("shut", "Frequenza allenamento:", form_->client());
        auto* field = new TextBox("field", form_->client());
        show();
        QVERIFY(free->isWhole());
        QVERIFY(wrapped->isWhole());
        QCOMPARE(free->font().stretch(), int(QFont::Unstretched));
        const int needed = shut->fontMetrics().horizontalAdvance(shut->text());
        place(*field, 120 + toTwips(needed * 0.92), 600, 900, 285);
        place(*shut, 120, 600, 600, 255);
        field->show();
        shut->show();
        shut->fit();
        QVERIFY(shut->font().stretch() < 100 && shut->font().stretch() >= Label::narrowestStretch);
        QVERIFY(shut->geometry().right() < field->x());
        place(*shut, 120, 600, 600, 255);
        shut->setCaption("Dal:");
        QCOMPARE(shut->width(), 40); // home again
        QCOMPARE(cutTexts(*form_), QStringList());
        auto* combo = add<Combo>("combo", 0, 2400, 735, 315);
        combo->addItem("30000Hz"); // and the check does see what is cut
        combo->show();
        QCOMPARE(cutTexts(*form_).size(), 1);
    }

private:
    /// A control of the form; its place in twips.
    template <class Control, class... Arguments>
    Control* add(const char* name, double left, double top, double width, double height,
                 Arguments&&... arguments) {
        auto* control = new Control(name, std::forward<Arguments>(arguments)..., form_->client());
        place(*control, left, top, width, height);
        return control;
    }
    void show() {
        form_->show();
        QTRY_VERIFY(form_->isActiveWindow());
    }

    std::unique_ptr<Form> form_;
};

QUIVERDECK_TEST(TestControls)
#include "test_toolkit_controls.moc"
