#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QMenu;

namespace quillon {

class LogStore;
class TableQuestions;

/// Renames a column to what was typed. An invalid or taken name becomes the store's error message; an
/// official ADIF field is renamed only if the user says so. Nothing happens if the name is empty or the same.
void commitRename(LogStore& store, TableQuestions& questions, std::string_view column,
                  std::string_view draft);

/// Adds a column with the name as typed. An invalid name becomes the store's error message; that the column
/// exists already, or that nothing was typed, is no error.
void addCustomColumn(LogStore& store, std::string_view name);

/// The usual fields that are no columns yet, in the order in which they are offered.
std::vector<std::string> fieldsToAdd(const LogStore& store);

/// Puts the commands for `column` into the menu, which must not outlive the store. `rename` starts the editor
/// of the column's name.
void addColumnCommands(QMenu& menu, LogStore& store, const std::string& column, std::function<void()> rename);

}  // namespace quillon
