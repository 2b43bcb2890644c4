#pragma once

#include "printing/FittedText.h"
#include "printing/Page.h"
#include "printing/SuperficieScheda.h"
#include "support/Pictures.h"
#include "support/RecordsTest.h"

/// What tests of composed sheets share: each function finds an empty window and a fresh program, in which
/// figure 1 has its picture and figure 2 has none.
class SheetTest : public RecordsTest {
    Q_OBJECT

protected Q_SLOTS:
    void init() {
        RecordsTest::init();
        window = Window();
        givePicture(program(), QStringLiteral("q/001.jpg"), Qt::red);
    }

protected:
    /// A preview window without a window.
    struct Window final : sheet::PreviewWindow {
        sheet::Surface surface = sheet::cardSurface();
        QString firstPanel;

        sheet::Surface& canvas() override { return surface; }
        double width() const override { return 15360; }
        void setFirstPanel(const QString& text) override { firstPanel = text; }
    };

    sheet::Element& el(const char* name, int index = 0) {
        return window.surface.element(QString::fromLatin1(name), index);
    }

    /// A line with every value filled; free if it has a text.
    static std::shared_ptr<Esercizio> exercise(int number, const QString& freeText = {}) {
        auto e = std::make_shared<Esercizio>();
        e->nprog = number;
        e->isLibero = !freeText.isEmpty();
        e->note = e->isLibero ? freeText : QStringLiteral("Schiena dritta");
        e->id_fig = 1;
        e->durata = QStringLiteral("45s");
        e->frequenza = QStringLiteral("35Hz");
        e->ampiezza = QStringLiteral("H");
        e->serie = 3;
        e->recuperoMin = 1;
        e->recuperoSec = 90;
        e->modalita = QStringLiteral("Dinamico a carico aggiuntivo");
        e->peso = QStringLiteral("12 kg");
        return e;
    }

    /// A sheet with the exercises 1 to `exercises`.
    static Page page(int exercises, bool last = true, const QString& notes = {}) {
        Page result;
        result.scheda = std::make_shared<scheda>();
        result.scheda->cognomeUtente = QStringLiteral("D’Angelo");
        result.scheda->nomeUtente = QStringLiteral("Niccolò");
        result.scheda->Istruttore = QStringLiteral("Bianchi Zoë");
        result.scheda->PeriodoDal = QStringLiteral("01/03/2026");
        result.scheda->PeriodoAl = QStringLiteral("22/03/2026");
        result.scheda->FreqAllen = 3;
        result.scheda->GGAllen = QStringLiteral("001010100");
        result.scheda->note = notes;
        result.isLastPage = last;
        for (int i = 1; i <= exercises; ++i)
            result.esercizi.Add(exercise(i));
        return result;
    }

    /// The texts that are cut, set smaller or narrower than that, or wider than their box.
    static QStringList illFitting(const sheet::Surface& surface, double sizeScale, double widthScale) {
        QStringList names;
        for (const sheet::Element& e : surface.elements()) {
            const sheet::FittedText fitted(e);
            if (e.visible && (fitted.isCut() || fitted.sizeScale() < sizeScale ||
                              fitted.widthScale() < widthScale || fitted.bounds().width() > e.width + 1))
                names << e.name + QString::number(e.index);
        }
        return names;
    }

    Window window;
};
