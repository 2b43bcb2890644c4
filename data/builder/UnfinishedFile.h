#pragma once

#include <QString>

namespace catalogue {

/// A file that is written beside `target` and takes its name only when it is whole. Whatever happens, nothing
/// unfinished is left behind.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const QString& target);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    /// Where to write: the target's name and ".new".
    const QString& path() const { return path_; }
    /// Puts the file in the target's place, in one step. Throws Error if the system refuses.
    void finish();

private:
    QString target_, path_;
};

} // namespace catalogue
