#include "targets.h"

#include <cstddef>
#include <cstdint>

/// libFuzzer's entry; the build says for which target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::FUZZ_TARGET({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
