#pragma once

#include "platform/runtime/Collection.h"
#include "printing/Page.h"

#include <cstdint>

/// The sheets of one print job: cuts a card into sheets of ten exercises and makes one of them current on the
/// surface of the preview window. The card is read once, by createPages.
class pages {
public:
    /// `window` must outlive this object.
    explicit pages(sheet::PreviewWindow& window) : window_(window) {}

    std::int16_t currentPage = 0; ///< The sheet on show, from 1; 0 before the first PreviewPage.
    std::int32_t id_scheda = 0;
    runtime::Collection<Page> pages_; ///< In order, from 1.

    /// Reads the card `id` (0: the one given before) and builds its sheets anew. A card without exercises
    /// gives none.
    void createPages(std::int32_t id = 0);

    /// Writes the texts that stay the same on every sheet.
    void OpenCanvas();

    /// Composes sheet `numero`, 1 to the number of sheets, and writes its page number. Raises
    /// SubscriptOutOfRange for another number and what Page::setCanvas raises.
    void PreviewPage(std::int16_t numero);

private:
    sheet::PreviewWindow& window_;
};
