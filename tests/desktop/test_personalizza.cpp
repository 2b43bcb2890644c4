#include "desktop/frmPersonalizza.h"
#include "platform/host/ProgramDirectory.h"
#include "printing/percorsoLogo.h"
#include "support/ScriptedDialogs.h"
#include "support/WindowTest.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// The window as its user has it.
class Window : public FormPage {
public:
    Window() : FormPage(shown()) {}

    const toolkit::PictureBox& logo() const { return find<toolkit::PictureBox>(u"logo"_s); }

private:
    static toolkit::Form& shown() {
        frmPersonalizza::comune().show();
        return frmPersonalizza::comune();
    }
};

void writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writePicture(const QString& path, const QSize& size) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QDir().mkpath(QFileInfo(path).path());
    QVERIFY(picture.save(path, path.endsWith(u"bmp"_s, Qt::CaseInsensitive) ? "BMP" : "JPG"));
}

/// Two frames of two pixels: red, then blue.
const QByteArray animation =
    QByteArray::fromHex("474946383961020001008000 00ff00000000ff21f90404 0a000000"
                        "2c00000000020001000002028400 21f904040a0000002c000000000200010000020284 5100 3b");

/// The head of a bitmap of `side` pixels squared, and nothing behind it.
QByteArray bitmapHead(qint32 side) {
    QByteArray bytes("BM");
    QDataStream out(&bytes, QIODevice::Append);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint32(54) << quint32(0) << quint32(54) << quint32(40) << side << side << quint16(1)
        << quint16(24) << quint32(0) << quint32(0) << qint32(2835) << qint32(2835) << quint32(0)
        << quint32(0);
    return bytes;
}

} // namespace

class TestPersonalizza : public WindowTest {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        WindowTest::init();
        QDir(program().folder() + u"/images"_s).removeRecursively();
        dialogs_ = std::make_unique<ScriptedFileDialogs>();
        elsewhere_ = std::make_unique<QTemporaryDir>();
    }
    void cleanup() {
        WindowTest::cleanup();
        dialogs_.reset();
    }

    void tabsGoRound() {
        const Window page;
        QVERIFY(page.isVisible(u"noImage"_s));
        QCOMPARE(page.logo().size(), QSize(200, 200));
        const QWidget& panel = page.widget(u"picOptions_0"_s);
        page.key(u"nome"_s, Qt::Key_Tab, Qt::ControlModifier); // from the last tab back to the first
        QVERIFY(panel.isEnabled());
        QCOMPARE(panel.x(), 14);
        QVERIFY(!page.isEnabled(u"picOptions_1"_s));
        QVERIFY(page.widget(u"picOptions_1"_s).x() < -1000);
    }

    void savesAndKeeps() {
        sql(u"DELETE FROM palestra"_s);
        boxes().expect(Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        {
            const Window page;
            page.type(u"nome"_s, u"L'Arena"_s);
            page.press(u"cmdApply"_s); // inserts
            QCOMPARE(rows(u"SELECT * FROM palestra"), u"L`Arena||"_s);
            page.type(u"responsabile"_s, u"Ugo"_s);
            page.press(u"cmdApply"_s); // updates
            page.type(u"nome"_s, u"Altro"_s);
            page.press(u"cmdCancel"_s);
            QVERIFY(!frmPersonalizza::esiste());
            QCOMPARE(rows(u"SELECT * FROM palestra"), u"L`Arena|Ugo|"_s);
        }
        const Window again;
        QCOMPARE(again.text(u"nome"_s), u"L`Arena"_s);
        again.type(u"nome"_s, {}); // nothing is mandatory
        again.type(u"responsabile"_s, {});
        again.press(u"cmdOK"_s);
        QVERIFY(!frmPersonalizza::esiste());
        QCOMPARE(rows(u"SELECT * FROM palestra"), u"||"_s);
    }

    void logos_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("shown"); // pixels; the place begins at 110, 74
        QTest::newRow("wide") << u"logo.jpg"_s << QSize(400, 100) << QRect(110, 149, 200, 50);
        QTest::newRow("tall") << u"LOGO.JPG"_s << QSize(150, 600) << QRect(185, 74, 50, 200);
        QTest::newRow("small, never enlarged") << u"Logo.Bmp"_s << QSize(40, 20) << QRect(190, 164, 40, 20);
        QTest::newRow("a name of its own")
            << u"l'ogo è “qui” (1).JPG"_s << QSize(200, 200) << QRect(110, 74, 200, 200);
        QTest::newRow("two suffixes") << u"a.b;c%20.jpg"_s << QSize(200, 200) << QRect(110, 74, 200, 200);
        QTest::newRow("backslash") << u"a\\b.jpg"_s << QSize(200, 200) << QRect(110, 74, 200, 200);
        QTest::newRow("huge") << u"huge.jpg"_s << QSize(9000, 9000) << QRect(110, 74, 200, 200);
    }
    void logos() {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        const QString chosen = elsewhere_->filePath(name);
        writePicture(chosen, size);
        dialogs_->answer = chosen;
        {
            const Window page;
            page.press(u"cmdApriIMG"_s);
            QCOMPARE(dialogs_->filters, QStringList(u"File Immagine|*.JPG;*.BMP;*.GIF"_s));
            QVERIFY(!page.isVisible(u"noImage"_s));
            QTEST(page.logo().geometry(), "shown");
            const QString stored = host::joined(u"\\images\\"_s + QString(name).replace(u'\\', u'_'));
            QCOMPARE(page.logo().Tag, stored);
            QCOMPARE(readFile(host::resolve(stored)), readFile(chosen));
            page.press(u"cmdOK"_s);
        }
        const Window again; // the store's own text finds it too
        QTEST(again.logo().geometry(), "shown");
    }

    void animatedLogoShowsItsFirstPicture() {
        dialogs_->answer = elsewhere_->filePath(u"moto.GIF"_s);
        writeFile(dialogs_->answer, animation);
        const Window page;
        page.press(u"cmdApriIMG"_s);
        QCOMPARE(page.logo().image().size(), QSize(2, 1));
        QCOMPARE(readFile(program().folder() + u"/images/moto.GIF"_s), animation);
    }

    void refusedLogos_data() {
        QTest::addColumn<QByteArray>("bytes"); // empty: no file at all
        QTest::addColumn<QString>("reason");
        QTest::newRow("gone") << QByteArray() << u"File non trovato: "_s;
        QTest::newRow("no picture") << QByteArray("un testo") << u"Immagine non valida: "_s;
        QTest::newRow("a head alone") << animation.left(20) << u"Immagine non valida: "_s;
        QTest::newRow("100 megapixels")
            << bitmapHead(10000) << u"Immagine troppo grande (10000 × 10000 punti): "_s;
        QTest::newRow("impossible size") << bitmapHead(2'000'000'000) << u"Immagine "_s;
    }
    void refusedLogos() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        dialogs_->answer = elsewhere_->filePath(u"primo.jpg"_s);
        writePicture(dialogs_->answer, {100, 100});
        const Window page;
        page.press(u"cmdApriIMG"_s);
        const QRect before = page.logo().geometry();
        const QString tag = page.logo().Tag;

        dialogs_->answer = elsewhere_->filePath(u"secondo.jpg"_s);
        if (!bytes.isEmpty())
            writeFile(dialogs_->answer, bytes);
        boxes().expectBeginning(Icon::Critical, reason);
        page.press(u"cmdApriIMG"_s);
        QCOMPARE(page.logo().Tag, tag);
        QCOMPARE(page.logo().geometry(), before);
        QVERIFY(page.isVisible(u"logo"_s));
        QCOMPARE(QDir(program().folder() + u"/images"_s).entryList(QDir::Files), QStringList(u"primo.jpg"_s));

        dialogs_->answer.clear(); // dismissed
        page.press(u"cmdApriIMG"_s);
        QCOMPARE(page.logo().Tag, tag);
    }

    void replacesAndKeeps() {
        const QString own = program().folder() + u"/images/Logo.JPG"_s;
        writePicture(own, {50, 50});
        QFile::setPermissions(own, QFile::ReadOwner);
        dialogs_->answer = own;
        const Window page;
        page.press(u"cmdApriIMG"_s); // lies there already
        QCOMPARE(QFile::permissions(own) & QFile::WriteOwner, QFile::Permissions());
        dialogs_->answer = elsewhere_->filePath(u"logo.jpg"_s);
        writePicture(dialogs_->answer, {70, 50});
        page.press(u"cmdApriIMG"_s); // another of that name, whatever its case, is replaced
        QCOMPARE(page.logo().size(), QSize(70, 50));
        QCOMPARE(QDir(program().folder() + u"/images"_s).entryList(QDir::Files), QStringList(u"Logo.JPG"_s));
        QDir().mkpath(program().folder() + u"/images/cartella.jpg"_s); // cannot be replaced
        QFile::copy(dialogs_->answer, elsewhere_->filePath(u"cartella.jpg"_s));
        dialogs_->answer = elsewhere_->filePath(u"cartella.jpg"_s);
        boxes().expectBeginning(Icon::Critical, u"Impossibile copiare l’immagine in: "_s);
        page.press(u"cmdApriIMG"_s);
        QCOMPARE(page.logo().size(), QSize(70, 50));
    }

    void storedLogo_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("error");
        QTest::newRow("of the former folder") << u"/vecchia palestra\\images\\LOGO.jpg"_s << 0;
        QTest::newRow("of a missing drive") << u"E:\\foto\\altro.jpg"_s << 53;
        QTest::newRow("gone") << u"/vecchia\\images\\altro.jpg"_s << 53;
    }
    void storedLogo() {
        QFETCH(QString, stored);
        QFETCH(int, error);
        writePicture(program().folder() + u"/images/logo.JPG"_s, {30, 30});
        sql(u"UPDATE palestra SET logo='"_s + stored + u'\'');
        QCOMPARE(errorOf([] { frmPersonalizza::comune().load(); }), error);
        if (error == 0) {
            const Window page;
            page.press(u"cmdOK"_s); // from now on it is the present place
            QVERIFY(rows(u"SELECT logo FROM palestra").contains(program().folder()));
        }
    }

private:
    std::unique_ptr<ScriptedFileDialogs> dialogs_;
    std::unique_ptr<QTemporaryDir> elsewhere_;
};

QUIVERDECK_TEST(TestPersonalizza)
#include "test_personalizza.moc"
