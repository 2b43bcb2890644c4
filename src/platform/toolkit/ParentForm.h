#pragma once

#include "platform/toolkit/Form.h"

#include <QList>

class QMdiArea;

namespace toolkit {

/// A window with child pages. Unloading it asks every page first: if one refuses, nothing is unloaded; else
/// the pages unload in the order in which they were attached, then the window itself is asked.
class ParentForm : public Form {
    Q_OBJECT
public:
    explicit ParentForm(const QString& name);
    ~ParentForm() override;

    QMdiArea* area() const { return area_; }
    /// The child pages that are loaded.
    QList<Form*> pages() const;

private:
    /// Activates the next visible page in the order of their making; -1 goes back.
    void turnPage(int step);

    friend class Form;
    bool unloadPages() override;

    QMdiArea* area_;
    QList<QPointer<Form>> pages_;
};

} // namespace toolkit
