#pragma once

#include <QGenericPlugin>

/// A hand inside the running program: it tells where things are, and posts the events of a user who has no
/// pointer. One request a line, its words divided by tabs; one JSON object a line as the answer.
///   see TARGET          whether it shows, to be used, what it reads, and its place on the screen
///   press TARGET        posts a click
///   write TARGET TEXT   posts a click, the key to the end of the field, and the text
///   texts WINDOW        what every field of a window shows, by its target below the window
/// A target is NAME or WINDOW/NAME, and a part of it #row:0, #item:text, #tab:1, #button:text or #at:x,y. The
/// events of one request have been delivered before the next one is read.
class Hand : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "hand.json")
public:
    /// Calls at the socket QUIVERDECK_HAND, where the test listens.
    QObject* create(const QString& key, const QString& options) override;
};
