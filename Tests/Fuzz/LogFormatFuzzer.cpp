// Detects the format of any bytes. The answer must be that of the markers, and must not depend on what it is
// said not to depend on.

#include "Fuzz/Require.h"
#include "Tallyrig/Log/LogFormat.h"
#include "Tallyrig/Text/Decoding.h"
#include "Tallyrig/Text/Text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using namespace tallyrig;

std::string withOtherCase(std::string text) {
    for (char& letter : text) {
        if ((letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z')) {
            letter = static_cast<char>(letter ^ 0x20);
        }
    }
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string data(reinterpret_cast<const char*>(bytes), size);
    const LogFormat format = LogFormatDetector::detect(data);

    const std::string head(text::withoutByteOrderMark(data).substr(0, 2048));
    require(LogFormatDetector::detect(withOtherCase(data)) == format, "case does not count");
    // What stands behind a byte order mark may look like another one.
    if (text::withoutByteOrderMark(head) == head) {
        require(LogFormatDetector::detect(head) == format, "only the head counts");
        require(head.size() > 2044 || LogFormatDetector::detect("\r\n \t" + head) == format,
                "white space in front does not count");
    }
    if (text::isASCII(head)) {
        const std::string upper = text::upper(text::trimmed(head));
        LogFormat expected = LogFormat::adif;
        if (text::contains(upper, "[REG1TEST")) {
            expected = LogFormat::edi;
        } else if (upper.starts_with("START-OF-LOG")) {
            expected = LogFormat::cabrillo;
        } else if (upper.starts_with("<?XML") || text::contains(upper, "<ADX")) {
            expected = LogFormat::adx;
        }
        require(format == expected, "the markers decide, in their order");
    }
    return 0;
}
