#pragma once

#include <QProgressBar>

namespace toolkit {

/// A progress bar without a text. Raises runtime::InvalidPropertyValue for a value outside its range.
class ProgressBar : public QProgressBar {
    Q_OBJECT
public:
    ProgressBar(const QString& name, QWidget* parent);

    void setMin(int minimum);
    void setMax(int maximum);
    void setValue(int value);
};

} // namespace toolkit
