#pragma once

#include "printing/PreviewWindow.h"
#include "printing/SuperficieScheda.h"

/// A preview window without a window.
struct FinestraFinta final : sheet::PreviewWindow {
    sheet::Surface surface = sheet::cardSurface();
    double windowWidth = 15360;
    QString firstPanel;

    sheet::Surface& canvas() override { return surface; }
    double width() const override { return windowWidth; }
    void setFirstPanel(const QString& text) override { firstPanel = text; }

    sheet::Element& el(const char* name, int index = 0) {
        return surface.element(QString::fromLatin1(name), index);
    }

    /// Everything that shows, as text, to compare two compositions.
    QString shown() const {
        QString all;
        for (const sheet::Element& e : surface.elements())
            if (e.visible)
                all += QStringLiteral("%1(%2) %3,%4 %5x%6 %7 \"%8\"\n")
                           .arg(e.name)
                           .arg(e.index)
                           .arg(e.left, 0, 'f', 3)
                           .arg(e.top, 0, 'f', 3)
                           .arg(e.width)
                           .arg(e.height)
                           .arg(e.usableHeight)
                           .arg(e.text);
        return all;
    }
};
