#pragma once

#include "cards/SchedaApribile.h"
#include "support/Errors.h"
#include "support/ScratchProgram.h"
#include "support/ScriptedBoxes.h"
#include "support/Suite.h"

#include <optional>

/// What tests of records share: each function finds a fresh scratch program, and a box that was expected and
/// never came fails it.
class RecordsTest : public QObject {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    using Icon = host::Icon;

    /// Runs statements straight on the store.
    void sql(QStringView statements) const { program().sql(statements.toString()); }
    /// The rows of a query, straight from the store: "1|a, 2|b".
    QString rows(QStringView query) const;
    QStringList log() const { return program().log(); }
    const ScratchProgram& program() const { return *program_; }
    ScriptedBoxes& boxes() { return *boxes_; }

    /// "key:figure:template" of each line.
    static QString lines(const SchedaApribile& card);
    /// Adds a line for each figure, 0 for a blank one.
    static void addLines(SchedaApribile& card, std::initializer_list<qint32> figures);

private:
    std::optional<ScratchProgram> program_;
    std::optional<ScriptedBoxes> boxes_;
};
