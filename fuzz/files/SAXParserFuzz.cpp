// Any bytes through the parser. The receiver touches every text it is given, and refuses one event now and then.
#include "fuzz/files/TouchingCallback.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    corvex::TouchingCallback callback(size % 16 == 0 ? 5 : 0);
    corvex::SAXParser parser;
    parser.SetCallback(&callback);
    const std::int32_t result = parser.ParseMemory(data, size);
    callback.CheckResult(result);
    return 0;
}
