#pragma once

#include "platform/host/Controls.h"
#include "printing/Element.h"

namespace sheet {

/// An element seen as a control's rectangle. The element must outlive it.
class ElementBox final : public host::Box {
public:
    explicit ElementBox(Element& element) : element_(element) {}

    double left() const override { return element_.left; }
    double top() const override { return element_.top; }
    double width() const override { return element_.width; }
    double height() const override { return element_.height; }
    void setLeft(double twips) override { element_.left = twips; }
    void setTop(double twips) override { element_.top = twips; }
    void setWidth(double twips) override { element_.width = twips; }
    void setHeight(double twips) override { element_.height = twips; }
    void setVisible(bool visible) override { element_.visible = visible; }
    void refresh() override {} ///< The surface is painted as a whole.

private:
    Element& element_;
};

} // namespace sheet
