#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

#include <memory>

namespace host {

/// Keeps a user to one running program for each program's folder: two on one data file would hand out
/// each other's keys. The first holds a lock and listens; a second one asks it to raise its window.
class SingleInstance : public QObject {
    Q_OBJECT
public:
    /// `folder` is the program's; any spelling of the same folder gives the same lock.
    explicit SingleInstance(const QString& folder, QObject* parent = nullptr);
    ~SingleInstance() override;

    bool isFirst() const { return first_; }
    /// For a second program: asks the first one to raise its window, trying for `milliseconds`. False if
    /// it does not answer.
    bool askToRaise(int milliseconds = 3000) const;

Q_SIGNALS:
    /// A second program was started.
    void raiseRequested();

private:
    void listen();

    QString name_; // of the lock and of the socket, a path in the user's runtime folder
    std::unique_ptr<QLockFile> lock_;
    QLocalServer server_;
    bool first_ = false;
};

} // namespace host
