// SPDX-License-Identifier: GPL-3.0-or-later
#include "TallyrigTool/FileByFile.h"

#include <algorithm>

namespace tallyrig::tool {

ExitStatus forEachFile(const std::vector<std::string>& files, bool asJson, Output& output,
                       const std::function<FileResult(const std::string&)>& resultOf) {
    ExitStatus status = ExitStatus::good;
    bool isFirst = true;
    output.write(asJson ? "[" : "");
    for (const std::string& file : files) {
        FileResult result;
        try {
            result = resultOf(file);
        } catch (const Failure& failure) {
            complain(failure.message);
            status = ExitStatus::failed;
            continue;
        }
        if (!isFirst) {
            output.write(asJson ? ",\n" : "\n");
        }
        isFirst = false;
        status = std::max(status, result(output));
    }
    output.write(asJson ? "]\n" : "");
    return status;
}

}  // namespace tallyrig::tool
