#include "TallyrigTool/JsonList.h"

#include <nlohmann/json.hpp>

namespace tallyrig::tool {

JsonList::JsonList(Output& outputForIt, const nlohmann::ordered_json& members, const std::string& name)
    : output(outputForIt) {
    std::string head = members.dump();
    head.pop_back();
    output.write(head + ",\"" + name + "\":[");
}

void JsonList::add(const nlohmann::ordered_json& item) {
    output.write(isEmpty ? "\n" : ",\n");
    output.write(item.dump());
    isEmpty = false;
}

void JsonList::finish() {
    output.write(isEmpty ? "]}" : "\n]}");
}

}  // namespace tallyrig::tool
