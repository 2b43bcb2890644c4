#pragma once

#include <QObject>

/// While it lives, F1 in any window of the program opens the guide on that window's page; inside the card
/// editor, on the page of the part that has the focus.
class TastoAiuto : public QObject {
    Q_OBJECT
public:
    TastoAiuto();

    bool eventFilter(QObject* watched, QEvent* event) override;
};
