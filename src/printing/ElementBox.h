#pragma once

#include "platform/host/Controls.h"
#include "printing/Element.h"

namespace sheet {

/// An element seen as a control's rectangle. The element must outlive it.
class ElementBox final : public host::Box {
public:
    explicit ElementBox(Element& element) : mElement(element) {}

    double left() const override { return mElement.left; }
    double top() const override { return mElement.top; }
    double width() const override { return mElement.width; }
    double height() const override { return mElement.height; }
    void setLeft(double twips) override { mElement.left = twips; }
    void setTop(double twips) override { mElement.top = twips; }
    void setWidth(double twips) override { mElement.width = twips; }
    void setHeight(double twips) override { mElement.height = twips; }
    void setVisible(bool visible) override { mElement.visible = visible; }
    void refresh() override {} ///< The surface is painted as a whole.

private:
    Element& mElement;
};

} // namespace sheet
