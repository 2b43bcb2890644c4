#pragma once

#include <QGenericPlugin>
#include <QJsonObject>
#include <QLocalServer>

/// Answers, from inside the running program, where a control is: the driver presses it with a real pointer.
/// It reads only; it never touches a control. One question a line, one JSON object a line as the answer:
///   find NAME[#PART:VALUE]   NAME is an object name, or WINDOW/NAME; PART is row, tab, item, node or section
///   windows                  the visible windows, by object name and title
class Probe : public QObject {
    Q_OBJECT

public:
    explicit Probe(const QString& socket, QObject* parent = nullptr);

private:
    void serve();
    static QJsonObject answer(const QString& question);
    static QJsonObject find(const QString& target);
    static QJsonObject windows();

    QLocalServer server;
};

class ProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")

public:
    QObject* create(const QString& key, const QString& options) override;
};
