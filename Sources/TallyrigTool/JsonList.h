// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TallyrigTool/Console.h"

#include <string_view>

namespace tallyrig::tool {

/// Writes a JSON object one member of which is a list too long to stand in memory. Each item stands on a line
/// of its own, so that the document suits line-wise tools too.
class JsonList {
  public:
    /// Writes `object`, the JSON text of one that is not empty, with the list `name` behind its
    /// members.
    JsonList(Output& output, std::string_view object, std::string_view name);
    /// Adds a value as JSON text without line breaks.
    void add(std::string_view item);
    /// Ends list and object.
    void finish();
    /// The same with the members of `object`, the JSON text of one that is not empty, behind the list.
    void finish(std::string_view object);

  private:
    Output& output;
    bool isEmpty = true;
};

}  // namespace tallyrig::tool
