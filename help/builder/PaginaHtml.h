#pragma once

#include <QString>

#include <functional>

/// How a page's Markdown becomes the plain HTML that help window and manual show.
struct ComeHtml {
    QString screens;   ///< folder of the pictures; one that is not there is left out
    int larghezza = 0; ///< widest picture, in pixels at 96 dots an inch
    /// The text that stands for a link to a page, given its id and what the link says (both plain).
    std::function<QString(const QString& id, const QString& text)> rimando;
};

/// Headings, paragraphs, lists, quotes (which become notes), bold, italic, links and pictures.
QString paginaHtml(const QString& markdown, const ComeHtml& come);
