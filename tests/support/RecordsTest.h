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
    void init() {
        program_.emplace();
        boxes_.emplace();
    }
    void cleanup() {
        const bool good = boxes_->satisfied();
        boxes_.reset();
        program_.reset();
        QVERIFY(good);
    }

protected:
    using Icon = host::Icon;

    /// Runs statements straight on the store.
    void sql(QStringView statements) const { program().sql(statements.toString()); }
    /// The rows of a query, straight from the store: "1|a, 2|b".
    QString rows(QStringView query) const {
        return program().rows(query.toString()).join(QStringLiteral(", "));
    }
    QStringList log() const { return program().log(); }
    const ScratchProgram& program() const { return *program_; }
    ScriptedBoxes& boxes() { return *boxes_; }

    /// "key:figure:template" of each line.
    static QString lines(const SchedaApribile& card) {
        QStringList result;
        for (const auto& line : *card.esercizi)
            result += QStringLiteral("%1:%2:%3").arg(line->ct).arg(line->id_fig).arg(line->isModello);
        return result.join(u' ');
    }
    /// Adds a line for each figure, 0 for a blank one.
    static void addLines(SchedaApribile& card, std::initializer_list<qint32> figures) {
        for (const qint32 figure : figures) {
            auto line = std::make_shared<Esercizio>();
            line->id_fig = figure;
            line->isModello = card.isModello;
            line->note = QString::number(card.esercizi->Count() + 1);
            card.esercizi->Add(line);
        }
    }

private:
    std::optional<ScratchProgram> program_;
    std::optional<ScriptedBoxes> boxes_;
};
