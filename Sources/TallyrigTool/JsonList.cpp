// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/JsonList.h"

namespace tallyrig::tool {

JsonList::JsonList(Output& outputForIt, std::string_view object, std::string_view name)
    : output(outputForIt) {
    object.remove_suffix(1);
    output.write(object);
    output.write(",\"");
    output.write(name);
    output.write("\":[");
}

void JsonList::add(std::string_view item) {
    output.write(isEmpty ? "\n" : ",\n");
    output.write(item);
    isEmpty = false;
}

void JsonList::finish() {
    output.write(isEmpty ? "]}" : "\n]}");
}

void JsonList::finish(std::string_view object) {
    output.write(isEmpty ? "]," : "\n],");
    output.write(object.substr(1));
}

}  // namespace tallyrig::tool
