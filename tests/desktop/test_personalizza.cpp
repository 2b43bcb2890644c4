#include "desktop/frmPersonalizza.h"
#include "desktop/palestra.h"
#include "platform/host/ProgramDirectory.h"
#include "support/ScriptedDialogs.h"
#include "support/WindowTest.h"

#include <QDir>

using namespace Qt::StringLiterals;

class TestPersonalizza : public WindowTest {
    Q_OBJECT

    ScriptedFileDialogs dialogs_;

    static FormPage open() {
        frmPersonalizza::comune().show();
        return FormPage(frmPersonalizza::comune());
    }
    static const toolkit::PictureBox& logo() { return open().find<toolkit::PictureBox>(u"logo"_s); }
    QString images() const { return program().folder() + u"/images"_s; }
    /// Draws a picture beside the program's own and gives its path.
    QString draw(const QString& name, const QSize& size) const {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        QDir().mkpath(images() + u"/../altrove"_s);
        QString path = images() + u"/../altrove/"_s + name;
        picture.save(path, name.endsWith(u"bmp"_s) ? "BMP" : "JPG");
        return path;
    }
    void choose(const QString& path) {
        dialogs_.answer = path;
        open().press(u"cmdApriIMG"_s);
    }

private Q_SLOTS:
    void savesAndKeeps() {
        const auto stored = [this] { return rows(u"SELECT * FROM palestra"); };
        sql(u"DELETE FROM palestra"_s);
        boxes().expect(Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        const FormPage page = open();
        page.type(u"nome"_s, u"L'Arena"_s);
        page.press(u"cmdApply"_s);
        QCOMPARE(stored(), u"L`Arena||"_s);
        QVERIFY(log().isEmpty());                              // the first one goes unlogged
        page.key(u"nome"_s, Qt::Key_Tab, Qt::ControlModifier); // from the last tab back to the first
        page.type(u"responsabile"_s, u"Ugo"_s);
        page.press(u"cmdApply"_s);
        QCOMPARE(log().join(u'|'),
                 u"Execute - UPDATE palestra SET nome= 'L`Arena',responsabile= 'Ugo',logo='' "_s);
        page.type(u"nome"_s, u"Altro"_s);
        page.press(u"cmdCancel"_s);
        QCOMPARE(open().text(u"nome"_s), u"L`Arena"_s);
        open().type(u"nome"_s, {}); // nothing is mandatory
        open().press(u"cmdOK"_s);
        QVERIFY(!frmPersonalizza::esiste());
        QCOMPARE(stored(), u"|Ugo|"_s);
        sql(u"DELETE FROM palestra; CREATE TRIGGER t BEFORE INSERT ON palestra "
            "BEGIN SELECT RAISE(ABORT,'no'); END");
        QCOMPARE(errorOf([] { return palestra().save(); }), 1811); // the first one's failure rises
    }

    void logos_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("shown"); // pixels; the place begins at 110, 74
        QTest::newRow("logo.jpg") << QSize(400, 100) << QRect(110, 149, 200, 50);
        QTest::newRow("l'ogo è “qui” (1).JPG") << QSize(150, 600) << QRect(185, 74, 50, 200);
        QTest::newRow("a\\b;c%20.bmp") << QSize(40, 20) << QRect(190, 164, 40, 20); // never enlarged
    }
    void logos() {
        QFETCH(QSize, size);
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        choose(draw(name, size));
        QTEST(logo().geometry(), "shown");
        QVERIFY(!open().isVisible(u"noImage"_s));
        const QString stored = host::joined(u"\\images\\"_s + QString(name).replace(u'\\', u'_'));
        QCOMPARE(logo().Tag, stored);
        QCOMPARE(QImage(host::resolve(stored)).size(), size);
        open().press(u"cmdOK"_s);
        QTEST(logo().geometry(), "shown"); // the store's own text finds it too
    }

    void refusedLogos() {
        choose(draw(u"primo.jpg"_s, {100, 100}));
        boxes().expectBeginning(Icon::Critical, u"Immagine non valida: "_s);
        choose(program().store());
        boxes().expectBeginning(Icon::Critical, u"File non trovato: "_s);
        choose(images() + u"/../altrove/gone.jpg"_s);
        choose({}); // dismissed
        QCOMPARE(logo().Tag, host::joined(u"\\images\\primo.jpg"_s));
        QCOMPARE(logo().geometry(), QRect(160, 124, 100, 100));
        QVERIFY(logo().isVisible() && !QFile::exists(images() + u"/splash.ps"_s));
    }

    void replacesAndKeeps() {
        const QString own = images() + u"/Logo.JPG"_s;
        QVERIFY(QFile::rename(draw(u"x.jpg"_s, {50, 50}), own));
        QFile::setPermissions(own, QFile::ReadOwner);
        choose(own); // lies there already
        QCOMPARE(QFile::permissions(own) & QFile::WriteOwner, QFile::Permissions());
        choose(draw(u"logo.jpg"_s, {70, 50})); // another of that name, whatever its case, is replaced
        QCOMPARE(logo().size(), QSize(70, 50));
        QCOMPARE(QDir(images()).entryList({u"logo*"_s}), QStringList(u"Logo.JPG"_s));
        QDir().mkpath(images() + u"/cartella.jpg"_s); // cannot be replaced
        boxes().expectBeginning(Icon::Critical, u"Impossibile copiare l’immagine in: "_s);
        choose(draw(u"cartella.jpg"_s, {70, 50}));
        QCOMPARE(logo().Tag, host::joined(u"\\images\\logo.jpg"_s));
    }

    void storedLogo() {
        QVERIFY(QFile::rename(draw(u"x.jpg"_s, {30, 30}), images() + u"/logo.JPG"_s));
        const auto errorOfLoad = [this](const QString& path) {
            sql(u"UPDATE palestra SET logo='"_s + path + u'\'');
            return errorOf([] { frmPersonalizza::comune().load(); });
        };
        QCOMPARE(errorOfLoad(u"E:\\foto\\altro.jpg"_s), 53);
        QCOMPARE(errorOfLoad(u"/vecchia\\images\\altro.jpg"_s), 53);
        QCOMPARE(errorOfLoad(u"/vecchia palestra\\images\\LOGO.jpg"_s), 0); // the folder was moved
        open().press(u"cmdOK"_s);
        QVERIFY(rows(u"SELECT logo FROM palestra").contains(program().folder())); // the present place
    }
};

QUIVERDECK_TEST(TestPersonalizza)
#include "test_personalizza.moc"
