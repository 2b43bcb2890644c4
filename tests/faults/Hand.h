#pragma once

#include <QGenericPlugin>
#include <QJsonObject>
#include <QLocalServer>

/// A hand inside the running program, loaded by environment as a plug-in of the toolkit's generic kind: it
/// posts the events of a user and reads what shows. One request a line, one JSON object a line as the answer.
/// A target is NAME or WINDOW/NAME, with "@x,y" for a place in it; "box:Sì" is a button of the message box on
/// show.
///   see TARGET             whether it shows and can be used, and its text ("box": the message box)
///   press TARGET           posts a click
///   write TARGET TEXT      posts a click, the keys to the end of the field, and the text
///   texts WINDOW           what every field of a window shows
/// The events of one request have been delivered before the next one is read.
class Hand : public QObject {
    Q_OBJECT
public:
    explicit Hand(const QString& socket);

private:
    void serve();
    QLocalServer server_;
};

class HandPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "hand.json")
public:
    QObject* create(const QString& key, const QString& options) override;
};
