// Icons and logos: each is there, in each size and look.
#include "artwork/icons/Icone.h"
#include "artwork/logos/Loghi.h"
#include "support/Suite.h"

using namespace Qt::StringLiterals;

namespace {
bool inked(const QImage& image) {
    QImage clear(image.size(), image.format());
    clear.fill(Qt::transparent);
    return image != clear;
}
} // namespace

class TestResources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyButtonHasItsIcon() {
        for (const auto& keys :
             {u"Principale nuova nuovaDaModello apri esci"_s,
              u"UtentiSelezione seleziona annulla nuovo modifica elimina"_s,
              u"mdiScheda salva SalvaSuModello stampa fine"_s,
              u"SchedeSelezione seleziona annulla elimina stampa"_s,
              u"SchedeMODELLOSelezione seleziona annulla nuova modifica elimina"_s,
              u"PrinterCanvas Stampa PagPrec PagSucc esci"_s,
              u"PrinterDaNonFare Stampa PagPrec PagSucc esci"_s,
              u"menu lista esci utenti nuova apri damodello hint info"_s, u"SchedaIntestazione apriGGAllen"_s,
              u"SchedaCorpo InserisciEsecizio EliminaEsercizio"_s, u"SchedaSelezioneFIGURE cmdZoom"_s,
              u"SchedaPreviewFigura cmdClose"_s}) {
            const QStringList names = keys.split(u' ');
            for (const QString& key : names.mid(1)) {
                const QIcon icon = artwork::icona(names.first(), key);
                for (const QSize size : {QSize(16, 16), QSize(24, 24), QSize(32, 32)}) {
                    const QImage normal = icon.pixmap(size, 1, QIcon::Normal).toImage();
                    QVERIFY2(normal.size() == size && inked(normal), qPrintable(key));
                    QVERIFY2(normal != icon.pixmap(size, 1, QIcon::Active).toImage(), qPrintable(key));
                }
            }
        }
        for (const auto logo : {artwork::Logo::QuiverDeck, artwork::Logo::Zentara, artwork::Logo::BarraMenu,
                                artwork::Logo::Programma})
            QVERIFY(inked(artwork::logo(logo, {90, 36})));
    }
};

QUIVERDECK_TEST(TestResources)
#include "test_resources.moc"
