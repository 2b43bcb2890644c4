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
    QString images() const { return program().folder() + u"/images/"_s; }
    /// Draws a picture beside the program's own and gives its path.
    QString draw(const QString& name, const QSize& size) const {
        givePicture(program(), u"altrove/nuova.bmp"_s, Qt::darkGreen, size);
        QFile::rename(images() + u"altrove/nuova.bmp"_s, images() + u"altrove/"_s + name);
        return images() + u"altrove/"_s + name;
    }
    void choose(const QString& path) {
        dialogs_.answer = path;
        open().press(u"cmdApriIMG"_s);
    }

private Q_SLOTS:
    void savesAndKeeps() {
        sql(u"DELETE FROM palestra"_s);
        boxes().expect(Icon::Critical, u"Archivio Vuoto o Problemi di connessione!"_s);
        const FormPage page = open();
        page.type(u"nome"_s, u"L'Arena"_s);
        page.press(u"cmdApply"_s);
        QCOMPARE(rows(u"SELECT * FROM palestra"), u"L`Arena||"_s);
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
        QCOMPARE(rows(u"SELECT * FROM palestra"), u"|Ugo|"_s);
        sql(u"DELETE FROM palestra; CREATE TRIGGER t BEFORE INSERT ON palestra "
            "BEGIN SELECT RAISE(ABORT,'no'); END");
        QCOMPARE(errorOf([] { return palestra().save(); }), 1811); // the first one's failure rises
    }

    void logos() {
        for (const auto& [name, size, shown] : // pixels; the place begins at 110, 74
             std::initializer_list<std::tuple<QString, QSize, QRect>>{
                 {u"logo.jpg"_s, {400, 100}, {110, 149, 200, 50}},
                 {u"l'ogo è “qui” (1).JPG"_s, {150, 600}, {185, 74, 50, 200}},
                 {u"a\\b;c%20.bmp"_s, {40, 20}, {190, 164, 40, 20}}}) { // never enlarged
            choose(draw(name, size));
            QCOMPARE(logo().geometry(), shown);
            const QString stored = host::joined(u"\\images\\"_s + QString(name).replace(u'\\', u'_'));
            QCOMPARE(logo().Tag, stored);
            QCOMPARE(QImage(host::resolve(stored)).size(), size);
            open().press(u"cmdOK"_s);
            QCOMPARE(logo().geometry(), shown); // the store's own text finds it too
        }
        frmPersonalizza::comune().unload();
        sql(u"UPDATE palestra SET logo='/vecchia palestra\\images\\LOGO.jpg'"); // the folder was moved
        open().press(u"cmdOK"_s);
        QVERIFY(rows(u"SELECT logo FROM palestra").contains(program().folder())); // the present place
        sql(u"UPDATE palestra SET logo='/vecchia\\images\\altro.jpg'");
        QCOMPARE(errorOf([] { frmPersonalizza::comune().load(); }), 53);
    }

    void refusesAndReplaces() {
        const QString own = images() + u"Logo.JPG"_s;
        givePicture(program(), u"Logo.JPG"_s, Qt::red, {50, 50});
        QFile::setPermissions(own, QFile::ReadOwner);
        choose(own); // lies there already
        QCOMPARE(QFile::permissions(own) & QFile::WriteOwner, QFile::Permissions());
        choose(draw(u"logo.jpg"_s, {100, 100})); // another of that name, whatever its case, is replaced
        boxes().expectBeginning(Icon::Critical, u"Immagine non valida: "_s);
        choose(program().store());
        boxes().expectBeginning(Icon::Critical, u"File non trovato: "_s);
        choose(images() + u"altrove/gone.jpg"_s);
        choose({});                              // dismissed
        QDir(images()).mkdir(u"cartella.jpg"_s); // cannot be replaced
        boxes().expectBeginning(Icon::Critical, u"Impossibile copiare l’immagine in: "_s);
        choose(draw(u"cartella.jpg"_s, {70, 50}));
        QVERIFY(logo().isVisible() && logo().Tag == host::joined(u"\\images\\logo.jpg"_s));
        QCOMPARE(logo().geometry(), QRect(160, 124, 100, 100));
        QCOMPARE(QDir(images()).entryList({u"logo*"_s, u"splash*"_s}), QStringList(u"Logo.JPG"_s));
    }
};

QUIVERDECK_TEST(TestPersonalizza)
#include "test_personalizza.moc"
