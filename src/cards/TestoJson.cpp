#include "cards/TestoJson.h"

#include <QStringView>

void TestoJson::apri(char segno) {
    separa();
    testo_ += segno;
    primo_ = true;
}

void TestoJson::chiudi(char segno) {
    testo_ += segno;
    primo_ = false;
}

void TestoJson::separa() {
    if (!primo_)
        testo_ += ',';
    primo_ = false;
}

void TestoJson::nome(QLatin1StringView nome) {
    separa();
    testo_ += '"';
    testo_.append(nome.data(), nome.size());
    testo_ += "\":";
    primo_ = true; // its value needs no comma
}

void TestoJson::nullo() {
    separa();
    testo_ += "null";
}

void TestoJson::valore(bool valore) {
    separa();
    testo_ += valore ? "true" : "false";
}

void TestoJson::valore(qint32 valore) {
    separa();
    testo_ += QByteArray::number(valore);
}

void TestoJson::valore(const QString& valore) {
    separa();
    testo_ += '"';
    const QStringView testo(valore);
    qsizetype da = 0; // what stands from here on is copied as it is
    for (qsizetype i = 0; i < testo.size(); ++i) {
        const char16_t c = testo[i].unicode();
        const bool coppia =
            QChar::isHighSurrogate(c) && i + 1 < testo.size() && testo[i + 1].isLowSurrogate();
        if (coppia) {
            ++i;
        } else if (c < 0x20 || c == u'"' || c == u'\\' || QChar::isSurrogate(c)) {
            testo_ += testo.mid(da, i - da).toUtf8();
            escape(c);
            da = i + 1;
        }
    }
    testo_ += testo.mid(da).toUtf8();
    testo_ += '"';
}

void TestoJson::escape(char16_t c) {
    testo_ += "\\u";
    testo_ += QByteArray::number(c, 16).rightJustified(4, '0');
}
