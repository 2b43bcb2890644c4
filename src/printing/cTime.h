#pragma once

#include <QString>

/// Hours, minutes and seconds, each signed 16-bit, with carrying addition.
class cTime {
public:
    /// Stores the values as they come, without carrying: 90 seconds stay 90 until the next addition.
    void setTime(qint16 newH, qint16 newM, qint16 newS);
    /// "mm:ss", or "h:mm:ss" when there are hours.
    QString getTime() const;
    /// Adds with carrying. A sum beyond 16 bits raises error 6.
    void Add(qint16 ore, qint16 minuti, qint16 secondi);
    void addTime(const cTime& time);

private:
    qint16 ore_ = 0;
    qint16 minuti_ = 0;
    qint16 secondi_ = 0;
};
