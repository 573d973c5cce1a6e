// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

class LogStore;
class TableQuestions;

/// Renames a column to what was typed. An invalid or taken name becomes the store's error message; an
/// official ADIF field is renamed only if the user says so. Nothing happens if the name is empty or the same.
/// False if there is an error message, so that the user may want to mend what they typed.
bool commitRename(LogStore& store, TableQuestions& questions, std::string_view column,
                  std::string_view draft);

/// Adds a column with the name as typed. An invalid name becomes the store's error message; that the column
/// exists already, or that nothing was typed, is no error. False if there is an error message.
bool addCustomColumn(LogStore& store, std::string_view name);

/// The usual fields that are no columns yet, in the order in which they are offered.
std::vector<std::string> fieldsToAdd(const LogStore& store);

}  // namespace quillon
