#include "support/RecordsTest.h"

using namespace Qt::StringLiterals;

void RecordsTest::init() {
    program_.emplace();
    boxes_.emplace();
}

void RecordsTest::cleanup() {
    const bool good = boxes_->satisfied();
    boxes_.reset();
    program_.reset();
    QVERIFY(good);
}

QString RecordsTest::rows(QStringView query) const {
    return program().rows(query.toString()).join(u", "_s);
}

QString RecordsTest::lines(const SchedaApribile& card) {
    QStringList result;
    for (const auto& line : *card.esercizi)
        result += u"%1:%2:%3"_s.arg(line->ct).arg(line->id_fig).arg(line->isModello);
    return result.join(u' ');
}

void RecordsTest::addLines(SchedaApribile& card, std::initializer_list<qint32> figures) {
    for (const qint32 figure : figures) {
        auto line = std::make_shared<Esercizio>();
        line->id_fig = figure;
        line->isModello = card.isModello;
        line->note = QString::number(card.esercizi->Count() + 1);
        card.esercizi->Add(line);
    }
}
