// The steps that the table editor can undo. Included by table_model.cpp alone.
#pragma once

#include <QUndoCommand>
#include <string>
#include <utility>

#include "editors/table/table_model.h"

namespace quenloft {

class TableModel::FieldCommand : public QUndoCommand {
  public:
    FieldCommand(TableModel& model, Field field, std::string text)
        : model_(model), field_(field), before_(model.content_.*field), after_(std::move(text)) {}

    void undo() override { model_.PutField(field_, before_); }
    void redo() override { model_.PutField(field_, after_); }
    int id() const override { return field_ == &TableContent::title ? 1 : 2; }

    /// Letters typed, or deleted, one after the other.
    bool mergeWith(const QUndoCommand* next) override {
        const auto& other = static_cast<const FieldCommand&>(*next);
        if (letter_ == Letter::Neither || other.letter_ != letter_) {
            return false;
        }
        after_ = other.after_;
        return true;
    }

  private:
    enum class Letter { Added, TakenAway, Neither };

    static Letter LetterBetween(const std::string& before, const std::string& after) {
        constexpr std::size_t kMostBytes = 4;  // Of one letter in UTF-8.
        if (after.size() > before.size()) {
            return after.size() - before.size() <= kMostBytes ? Letter::Added : Letter::Neither;
        }
        return before.size() - after.size() <= kMostBytes ? Letter::TakenAway : Letter::Neither;
    }

    TableModel& model_;
    const Field field_;
    const std::string before_;
    std::string after_;
    const Letter letter_ = LetterBetween(before_, after_);
};

class TableModel::RowsCommand : public QUndoCommand {
  public:
    RowsCommand(TableModel& model, RowsEdit edit) : model_(model), edit_(std::move(edit)) {}

    void undo() override { model_.PutRows(edit_); }
    void redo() override { model_.PutRows(edit_); }

  private:
    TableModel& model_;
    RowsEdit edit_;  // What is not in the table now.
};

class TableModel::MoveCommand : public QUndoCommand {
  public:
    MoveCommand(TableModel& model, int first, int count, int to)
        : model_(model), first_(first), count_(count), to_(to) {}

    void undo() override { model_.ShiftRows(to_, count_, first_); }
    void redo() override { model_.ShiftRows(first_, count_, to_); }

  private:
    TableModel& model_;
    const int first_;
    const int count_;
    const int to_;
};

}  // namespace quenloft
