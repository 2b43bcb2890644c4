#include "printing/cTime.h"

#include "platform/runtime/Conversions.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr qint16 sessanta = 60;

/// Two digits; a negative number keeps its sign in front of them.
QString dueCifre(qint16 numero) {
    const QString cifre = u"%1"_s.arg(std::abs(numero), 2, 10, QLatin1Char('0'));
    return numero < 0 ? u'-' + cifre : cifre;
}

} // namespace

void cTime::setTime(qint16 newH, qint16 newM, qint16 newS) {
    ore_ = newH;
    minuti_ = newM;
    secondi_ = newS;
}

QString cTime::getTime() const {
    const QString testo = dueCifre(minuti_) + u':' + dueCifre(secondi_);
    return ore_ == 0 ? testo : QString::number(ore_) + u':' + testo;
}

void cTime::Add(qint16 ore, qint16 minuti, qint16 secondi) {
    const qint16 totale = runtime::add16(secondi_, secondi);
    const qint16 conRiporto =
        runtime::toInt16(std::floor(totale / double{sessanta}) + runtime::add16(minuti_, minuti));
    secondi_ = static_cast<qint16>(totale % sessanta);
    minuti_ = static_cast<qint16>(conRiporto % sessanta);
    ore_ = runtime::toInt16(std::floor(conRiporto / double{sessanta}) + runtime::add16(ore_, ore));
}

void cTime::addTime(const cTime& time) {
    Add(time.ore_, time.minuti_, time.secondi_);
}
