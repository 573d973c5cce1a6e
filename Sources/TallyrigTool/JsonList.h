#pragma once

#include "TallyrigTool/Console.h"

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace tallyrig::tool {

/// Writes a JSON object whose last member is a list too long to stand in memory. Each item stands on a line
/// of its own, so that the document suits line-wise tools too.
class JsonList {
  public:
    /// Begins the object with the `members` in front of the list; `name` is the list's own.
    JsonList(Output& output, const nlohmann::ordered_json& members, const std::string& name);
    void add(const nlohmann::ordered_json& item);
    /// Ends list and object.
    void finish();

  private:
    Output& output;
    bool isEmpty = true;
};

}  // namespace tallyrig::tool
