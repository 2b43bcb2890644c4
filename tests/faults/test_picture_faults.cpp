#include "cards/mdiScheda.h"
#include "core/Main.h"
#include "core/Principale.h"
#include "core/variabiliGlobali.h"
#include "desktop/frmSplash.h"
#include "figures/AreeCorpo.h"
#include "figures/BodyMap.h"
#include "platform/runtime/Error.h"
#include "printing/PrinterCanvas.h"
#include "printing/PrinterDaNonFare.h"
#include "support/Pictures.h"
#include "support/ScriptedBoxes.h"
#include "support/ToolkitTest.h"

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

namespace {

enum Damage { Missing, Folder, Empty, Zeros, OtherFile, Half, damages };

void damage(const QString& path, const QByteArray& good, Damage kind) {
    QFile::remove(path);
    if (kind == Folder)
        QDir().mkdir(path);
    QFile file(path);
    if (kind < Empty)
        return;
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write");
    const QByteArray bytes[] = {
        {}, QByteArray(good.size(), '\0'), "nessuna immagine", good.left(good.size() / 2)};
    file.write(bytes[kind - Empty]);
}

} // namespace

/// Every picture that a window loads, missing or damaged one by one: the error names it, or the window shows.
class TestPictureFaults : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        program_ = std::make_unique<ScratchProgram>();
        boxes_ = std::make_unique<ScriptedBoxes>();
        boxes_->onUnexpected = [this](const QString& text) { told_ += text; };
        givePictures(*program_);
        QImage picture(60, 60, QImage::Format_RGB32);
        picture.fill(Qt::red);
        for (int i = 0; i < 5; ++i) {
            const QString path = program_->folder() + u"/images/avvertenze/posa%1.JPG"_s.arg(i);
            QDir().mkpath(QFileInfo(path).path());
            picture.save(path);
        }
        picture.save(program_->folder() + u"/images/logo.JPG"_s);
        program_->sql(u"INSERT INTO Parametri VALUES ('CAMBIO_RISOLUZIONE','8');" // no question any more
                      "UPDATE palestra SET logo = '\\images\\logo.JPG';"
                      "INSERT INTO utenti VALUES (1,'Anna','Rossi',NULL,'F','');"
                      "INSERT INTO schede VALUES (1,1,'','2026-11-02','2026-11-30',2,2,'001010100','','');"
                      "INSERT INTO Esercizi (NProg,ID_Scheda,ID_Fig,Durata,Frequenza,Ampiezza,isLibero)"
                      " VALUES (1,1,1,'30s','30Hz','L',0);"_s);
    }
    void cleanup() {
        closeAll();
        boxes_.reset();
        program_.reset();
    }

    void eachIsNamed_data() {
        QTest::addColumn<QString>("files"); // below images
        QTest::addColumn<std::function<void()>>("open");
        const auto start = [] { Main(); };
        const auto editor = [] {
            idUtenteSelezionato = idSchedaSelezionata = 1;
            mdiScheda::comune().mostra();
        };
        QTest::newRow("start") << u"*/0*.JPG FolderXP.JPG"_s << std::function<void()>(start);
        QTest::newRow("editor") << u"Q/001.JPG BodyMap/corpo.JPG"_s << std::function<void()>(editor);
        QTest::newRow("map") << u"BodyMap/Corpo_*.JPG"_s << std::function<void()>([] {
            BodyMap map(u"mappa"_s, nullptr);
            map.onLoad();
            for (const char* code : codiciMuscoli())
                map.changeMuscle(QLatin1String(code));
        });
        QTest::newRow("sheet") << u"Q/001.JPG logo.JPG"_s << std::function<void()>([] {
            idSchedaSelezionata = 1;
            PrinterCanvas::comune().show();
        });
        QTest::newRow("warnings") << u"avvertenze/*.JPG"_s
                                  << std::function<void()>([] { PrinterDaNonFare::comune().show(); });
    }
    void eachIsNamed() {
        QFETCH(const QString, files);
        QFETCH(const std::function<void()>, open);
        QCOMPARE(errorsOf(open), QStringList());
        const QDir images(program_->folder() + u"/images"_s);
        int met = 0;
        for (const QString& pattern : files.split(u' ')) {
            const QString folder = pattern.section(u'/', 0, -2);
            for (const QString& path : filesLike(images, pattern)) {
                QFile file(path);
                QVERIFY(file.open(QIODevice::ReadOnly));
                const QByteArray good = file.readAll();
                file.close();
                for (int kind = Missing; kind < damages; ++kind) {
                    damage(path, good, Damage(kind));
                    const QStringList errors = errorsOf(open);
                    const QByteArray where = path.toUtf8() + ", damage " + QByteArray::number(kind);
                    QVERIFY2(errors.size() <= 1, (where + errors.join(u'\n').toUtf8()).constData());
                    QVERIFY2(!errors.isEmpty() || kind == Half || QTest::currentDataTag() == "sheet"_L1,
                             where.constData());
                    for (const QString& error : errors)
                        QVERIFY2(error.contains(QFileInfo(path).fileName(), Qt::CaseInsensitive),
                                 error.toUtf8().constData());
                    met += static_cast<int>(errors.size());
                    QDir().rmdir(path);
                    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(good) == good.size());
                    file.close();
                }
            }
        }
        QVERIFY(met > 0);
        QCOMPARE(errorsOf(open), QStringList());
    }

private:
    static QStringList filesLike(const QDir& images, const QString& pattern) {
        QStringList found;
        const QString folders = pattern.contains(u'/') ? pattern.section(u'/', 0, 0) : u"."_s;
        for (const QString& folder : images.entryList({folders}, QDir::Dirs))
            for (const QFileInfo& file :
                 QDir(images.filePath(folder)).entryInfoList({pattern.section(u'/', -1)}, QDir::Files))
                found += file.filePath();
        return found;
    }

    /// What is raised, reported or shown in a box while the windows open; they are closed again.
    QStringList errorsOf(const std::function<void()>& open) {
        told_.clear();
        const ExpectedFatal fatal;
        try {
            open();
            QCoreApplication::processEvents();
        } catch (const runtime::Error& error) {
            told_ += error.description();
        }
        if (fatal.count > 0)
            told_ += fatal.description;
        closeAll();
        return told_;
    }

    static void closeAll() {
        inChiusura = true; // or the shell would stay
        toolkit::Form::destroyAll();
        toolkit::Application::purge();
        inChiusura = false;
        idUtenteSelezionato = idSchedaSelezionata = idModelloSelezionato = 0;
    }

    QStringList told_;
    std::unique_ptr<ScratchProgram> program_;
    std::unique_ptr<ScriptedBoxes> boxes_;
};

QUIVERDECK_WINDOW_TEST_MAIN(TestPictureFaults)
#include "test_picture_faults.moc"
